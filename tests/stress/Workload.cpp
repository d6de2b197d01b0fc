#include "Workload.h"

#include <set>

#include "Routing.h"

namespace vex::stress {

namespace {

const char* const kNamespace = "root/tkz/vex/smi_15";
const char* const kBusyClasses[] = {"VEX_DiskDrive", "VEX_StorageVolume", "VEX_ConcreteStoragePool",
                                    "VEX_ControllerComputerSystem", "VEX_SESElement",
                                    "VEX_DiskDriveView", "VEX_ConcreteJob", "CIM_StorageExtent"};
const char* const kKindNames[Workload::kKinds] = {"enumerate", "enumerate-names", "get", "associators",
                                                  "modify", "rescan", "routine-list"};

template <typename T>
const T& pick(const std::vector<T>& from, std::mt19937& random) {
    return from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(random)];
}

std::vector<cmpihost::ObjectPath> pathsOf(const cmpihost::Response& r) {
    std::vector<cmpihost::ObjectPath> paths = r.paths;
    for (const cmpihost::Instance& instance : r.instances) {
        paths.push_back(instance.path);
    }
    return paths;
}

}  // namespace

Workload::Workload(vexraid::Session& session) : m_session(session) {
    cmpihost::Host& host = session.host();
    for (const char* cls : {"VEX_DiskDrive", "VEX_StorageVolume", "VEX_ControllerComputerSystem",
                            "VEX_ConcreteStoragePool", "VEX_SESElement"}) {
        const cmpihost::Response r = host.enumerateInstanceNames({kNamespace, cls});
        vexraid::requireOk(r);
        m_paths.insert(m_paths.end(), r.paths.begin(), r.paths.end());
        if (std::string(cls) == "VEX_DiskDrive") m_drives = r.paths.size();
        if (std::string(cls) == "VEX_StorageVolume") m_volumes = r.paths.size();
        if (std::string(cls) != "VEX_SESElement") {
            m_sources.insert(m_sources.end(), r.paths.begin(), r.paths.end());
        }
        if (std::string(cls) == "VEX_ControllerComputerSystem" && !r.paths.empty()) {
            m_controller = r.paths.front();
        }
    }
    if (m_drives == 0 || m_volumes == 0 || m_controller.className.empty()) {
        throw std::runtime_error("the stress system needs drives, volumes and a controller");
    }
}

const char* Workload::kindName(unsigned kind) { return kKindNames[kind % kKinds]; }

void Workload::run(unsigned kind, std::mt19937& random) {
    switch (kind % kKinds) {
        case 0: enumerate(random, false); break;
        case 1: enumerate(random, true); break;
        case 2: get(random); break;
        case 3: associate(random); break;
        case 4: modify(); break;
        case 5: method("Rescan"); break;
        default: method("getRoutineList"); break;
    }
}

void Workload::count(const cmpihost::Response& response, const std::string& what) {
    if (m_heartbeat != nullptr) {
        m_heartbeat();
    }
    if (response.ok()) {
        return;
    }
    ++m_failed;
    std::lock_guard<std::mutex> lock(m_errorMutex);
    if (m_errors.size() < 8) {
        m_errors.insert(what + ": " + response.status.toString());
    }
}

std::vector<std::string> Workload::errorSamples() const {
    std::lock_guard<std::mutex> lock(m_errorMutex);
    return {m_errors.begin(), m_errors.end()};
}

void Workload::checkWhole(const std::string& className, const std::vector<cmpihost::ObjectPath>& paths) {
    const std::size_t expected = className == "VEX_DiskDrive" ? m_drives
                                 : className == "VEX_StorageVolume" ? m_volumes : 0;
    if (expected == 0) {
        return;
    }
    std::set<std::string> distinct;
    for (const cmpihost::ObjectPath& path : paths) {
        distinct.insert(path.toString());
    }
    if (paths.size() != expected || distinct.size() != expected) {
        throw Inconsistency(className + ": " + std::to_string(paths.size()) + " instances (" +
                            std::to_string(distinct.size()) + " distinct), expected " +
                            std::to_string(expected));
    }
}

void Workload::enumerate(std::mt19937& random, bool namesOnly) {
    const std::vector<std::string> classes(std::begin(kBusyClasses), std::end(kBusyClasses));
    const std::string requested = pick(classes, random);
    const cmpihost::ObjectPath classPath(kNamespace, requested);
    for (const std::string& cls : vexraid::enumerationClasses(m_session.schema(), classPath)) {
        cmpihost::Host& host = m_session.host();
        const cmpihost::Response r = namesOnly ? host.enumerateInstanceNames({kNamespace, cls})
                                               : host.enumerateInstances({kNamespace, cls});
        count(r, "enumerate " + cls);
        if (r.ok()) {
            checkWhole(cls, pathsOf(r));
        }
    }
}

void Workload::get(std::mt19937& random) {
    const cmpihost::ObjectPath& path = pick(m_paths, random);
    count(m_session.host().getInstance(path), "get " + path.className);
}

void Workload::associate(std::mt19937& random) {
    const cmpihost::ObjectPath& source = pick(m_sources, random);
    for (const std::string& assoc :
         vexraid::associationClasses(m_session.schema(), source, std::nullopt, std::nullopt)) {
        count(m_session.host().associatorNames(source, assoc, {}, {}, {}), "associators " + assoc);
    }
}

void Workload::modify() {
    const bool on = (m_turn++ % 2) == 0;
    cmpihost::Instance changed(m_controller);
    changed.set("CopyBack", cmpihost::Value::boolean(on));
    count(m_session.host().modifyInstance(m_controller, changed, {{"CopyBack"}}), "modify");
}

void Workload::method(const char* name) {
    count(m_session.host().invokeMethod(m_controller, name), name);
}

}  // namespace vex::stress

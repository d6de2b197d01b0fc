// The monitor's thread: start, the cycle loop, stop; and how a finding
// becomes an event.
#include "monitor/FsaRaidMonitor.h"

#include <chrono>
#include <cstdlib>

#include "monitor/EventVocabulary.h"
#include "monitor/MonitorFiles.h"

namespace vex::monitor {

namespace {

std::uint32_t number(const std::string& text) {
    return text.empty() ? storlib::Addr::ANY : static_cast<std::uint32_t>(std::strtoul(text.c_str(), nullptr, 10));
}

// Where an object lives, as the events report it.
storlib::Addr addressOf(const SnapshotObject& o, std::uint32_t adapter) {
    const std::uint32_t channel = number(o.get("channelID"));
    const std::uint32_t device = number(o.get("deviceID"));
    if (o.element == "HardDrive" || o.element == "SES2EnclosureDevice") {
        return storlib::Addr(adapter, channel, device);
    }
    if (o.element == "LogicalDrive") {
        return storlib::Addr(adapter, storlib::Addr::ANY, storlib::Addr::ANY, number(o.get("logicalDriveID")));
    }
    if (o.element == "SESElement") {
        const std::uint64_t element = (static_cast<std::uint64_t>(number(o.get("elementType"))) << 32) |
                                      number(o.get("elementIndex"));
        return storlib::Addr(adapter, channel, device, storlib::Addr::ANY, element);
    }
    if (o.element == "Progress") {
        return storlib::Addr(adapter, channel, device, number(o.get("logicalDriveID")), number(o.get("taskID")));
    }
    return storlib::Addr(adapter);
}

bool endsWith(const std::string& text, const char* tail) {
    const std::string end(tail);
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

FsaRaidMonitor::FsaRaidMonitor(storlib::StorLib* library)
    : BaseRaidMonitor("NRMFSAConfig.xml", "NRMFSADebug.log", "NRMFSAEvents.log"), m_library(library) {}

long FsaRaidMonitor::secondsSinceStart() const {
    const std::time_t started = m_startTime.load();
    return started == 0 ? 0 : static_cast<long>(std::time(nullptr) - started);
}

void FsaRaidMonitor::start() {
    if (m_running.load()) {
        nrmDebug(NRM_DEBUG_ERROR, "ERROR: FsaRaidMonitor::start() Already running!!!!\n");
        return;
    }
    if (m_stopRequested.load()) {  // stopped before its thread came to start it
        m_stopped = true;
        return;
    }
    m_running = true;
    if (m_startTime == 0) {
        m_startTime = std::time(nullptr);
    }
    readConfig();
    initRunningTasksTable();
    poll(CHECK_CONFIG, m_queue);
    if (m_new.adapters.empty()) {
        raise(kKeyNoControllers, storlib::Addr(), {}, {});
    }
    run();
}

void FsaRaidMonitor::run() {
    nrmTrace("Entering FsaRaidMonitor::run().\n\n");
    m_stopped = false;
    while (m_running.load() && !m_stopRequested.load()) {
        if (m_library != nullptr) {
            poll(COMPARE_CONFIG, m_queue);
        }
        nrmTrace("Sleeping...\n\n");
        {
            std::unique_lock<std::mutex> lock(m_sleepMutex);
            m_wake.wait_for(lock, std::chrono::seconds(settings().pollInterval),
                            [this] { return !m_running.load() || m_stopRequested.load(); });
        }
        readConfig();
    }
    nrmTrace("Exiting FsaRaidMonitor::run().\n\n");
    m_stopped = true;
}

void FsaRaidMonitor::stop() {
    {
        std::lock_guard<std::mutex> lock(m_sleepMutex);
        m_stopRequested = true;
        m_running = false;
    }
    m_wake.notify_all();
    m_startTime = 0;
}

bool FsaRaidMonitor::newTaskNews(const std::string& key, std::uint32_t adapter, std::uint32_t task,
                                 long percent) {
    const auto id = std::make_pair(adapter, task);
    if (endsWith(key, "_STARTED")) {
        RunningTask& entry = m_runningTasks[id];
        if (entry.started) {
            return false;
        }
        entry.started = true;
        entry.tenth = percent / 10;
        return true;
    }
    if (endsWith(key, "_PROGRESS")) {
        RunningTask& entry = m_runningTasks[id];
        const long tenth = percent / 10;
        if (tenth <= entry.tenth) {
            return false;
        }
        entry.started = true;
        entry.tenth = tenth;
        return true;
    }
    m_runningTasks.erase(id);  // done, failed or aborted
    return true;
}

void FsaRaidMonitor::report(const Finding& finding, const AdapterSnapshot& adapter) {
    const SnapshotObject& o = *finding.object;
    if (o.element == "Progress" &&
        !newTaskNews(finding.key, adapter.id(), number(o.get("taskID")),
                     std::strtol(o.get("percentageComplete").c_str(), nullptr, 10))) {
        return;
    }
    if (std::string(finding.key) == "EVENT_STRATAVOL_PD_INSERTED" ||
        std::string(finding.key) == "EVENT_STRATAVOL_PD_REMOVED" ||
        std::string(finding.key) == "EVENT_STRATAVOL_LD_CREATED" ||
        std::string(finding.key) == "EVENT_STRATAVOL_LD_DELETED") {
        m_objectsChanged = true;
    }
    raise(finding.key, addressOf(o, adapter.id()),
          {o.get("label"), std::to_string(adapter.id()), finding.newValue, finding.oldValue, finding.detail},
          adapter.serial());
}

FindingSink FsaRaidMonitor::sinkFor(const AdapterSnapshot& adapter) {
    return [this, &adapter](const Finding& finding) { report(finding, adapter); };
}

void FsaRaidMonitor::controllerRemoved(const AdapterSnapshot& adapter, int type) {
    m_objectsChanged = true;
    raise(kKeyControllerRemoved, storlib::Addr(adapter.id()),
          {adapter.controller.get("label"), std::to_string(adapter.id()), adapter.controller.get("model"),
           adapter.serial()},
          adapter.serial(), type);
}

// ---- the per-object comparisons -------------------------------------------------

void FsaRaidMonitor::compareAdapter(const AdapterSnapshot& old, const AdapterSnapshot& now) {
    compareObjects(old, now, {"Controller", "Battery"}, sinkFor(now));
}

void FsaRaidMonitor::checkAdapter(const AdapterSnapshot& now) {
    m_objectsChanged = true;
    raise("EVENT_STRATAVOL_CONTROLLER_ADDED", storlib::Addr(now.id()),
          {now.controller.get("label"), std::to_string(now.id()), now.controller.get("model"), now.serial()},
          now.serial());
    checkObjects(now, {"Controller", "Battery", "SES2EnclosureDevice", "SESElement"}, sinkFor(now));
}

void FsaRaidMonitor::comparePhysicalDrives(const AdapterSnapshot& old, const AdapterSnapshot& now) {
    compareObjects(old, now, {"HardDrive"}, sinkFor(now));
}

void FsaRaidMonitor::checkPhysicalDrives(const AdapterSnapshot& now) {
    checkObjects(now, {"HardDrive"}, sinkFor(now));
}

void FsaRaidMonitor::compareLogicalDrives(const AdapterSnapshot& old, const AdapterSnapshot& now) {
    compareObjects(old, now, {"LogicalDrive"}, sinkFor(now));
}

void FsaRaidMonitor::checkLogicalDrives(const AdapterSnapshot& now) {
    checkObjects(now, {"LogicalDrive"}, sinkFor(now));
}

void FsaRaidMonitor::compareProgress(const AdapterSnapshot& old, const AdapterSnapshot& now) {
    compareObjects(old, now, {"Progress"}, sinkFor(now));
}

// Mode 0: the tasks of a controller the monitor did not know are taken as
// they stand, nothing is told; mode 1: compared like any others (done by
// compareProgress).
void FsaRaidMonitor::checkProgress(const AdapterSnapshot& now, int mode) {
    if (mode != 0) {
        return;
    }
    for (const SnapshotObject& o : now.objects) {
        if (o.element == "Progress") {
            RunningTask& entry = m_runningTasks[std::make_pair(now.id(), number(o.get("taskID")))];
            entry.started = true;
            entry.tenth = std::strtol(o.get("percentageComplete").c_str(), nullptr, 10) / 10;
        }
    }
}

void FsaRaidMonitor::compareSafte(const AdapterSnapshot& old, const AdapterSnapshot& now) {
    compareObjects(old, now, {"SES2EnclosureDevice", "SESElement"}, sinkFor(now));
}

}  // namespace vex::monitor

// The provider serves what its schema declares. On each of a few systems
// (the demo, a minimal one, the demo with failed, pulled and warning
// drives, a failed fan and battery), clock stopped, every class that has a
// plug-in is enumerated in each namespace it is registered in, as an
// object manager would ask for it, and each instance and instance name is
// checked against the class declaration. Registered classes whose plug-in
// is not built are refused by the provider as invalid classes; they are
// checked once they are built.
#include <gtest/gtest.h>

#include <cmpihost/Host.h>
#include <dlfcn.h>
#include <storlib/Simulator.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>

#include "BuiltinSchema.h"
#include "InstanceConformance.h"
#include "framework/PluginRegistry.h"

namespace vex::moftest {
namespace {

using cmpihost::ObjectPath;
using cmpihost::Response;
using cmpihost::Value;
using mof::builtinSchema;

const char* const kNamespaces[] = {mof::kImplementationNamespace, mof::kInteropNamespace};

struct System {
    const char* name;
    const char* description;  // under storlib/systems
    void (*disturb)(storlib::Simulator&);
};

void troubles(storlib::Simulator& sim) {
    for (const storlib::Ret& done : {sim.failDrive(storlib::Addr::device(0, 0, 1)),
                                     sim.pullDrive(storlib::Addr::device(1, 0, 2)),
                                     sim.setSmartError(storlib::Addr::device(0, 0, 3), true),
                                     sim.setFanFailed(storlib::Addr::device(0, 0, 32), 0, true),
                                     sim.setBatteryFailed(0, true)}) {
        EXPECT_TRUE(done) << done.getReason();
    }
}

void PrintTo(const System& system, std::ostream* out) { *out << system.name; }

const System kSystems[] = {{"demo", "demo.json", nullptr},
                           {"minimal", "minimal.json", nullptr},
                           {"troubled", "demo.json", troubles}};

// Departures are listed once, however many instances show them.
std::string listed(const std::set<std::string>& problems) {
    std::string out;
    for (const std::string& p : problems) out += "\n  " + p;
    return out;
}

class ConformanceTest : public ::testing::TestWithParam<System> {
protected:
    void SetUp() override {
        char pattern[] = "/tmp/vex-conformance-XXXXXX";
        m_stateDir = mkdtemp(pattern);
        setenv("STORVEX_SYSTEM", (std::string(VEX_SYSTEMS_DIR "/") + GetParam().description).c_str(), 1);
        setenv("STORVEX_STATE_DIR", m_stateDir.c_str(), 1);
        setenv("STORVEX_TIME_SCALE", "0", 1);
        if (GetParam().disturb != nullptr) {
            storlib::StorLib lib;
            ASSERT_TRUE(lib.open()) << "simulator state in " << m_stateDir;
            storlib::Simulator sim(lib);
            GetParam().disturb(sim);
        }
        m_host = std::make_unique<cmpihost::Host>(cmpihost::HostConfig::pegasus214());
        for (const mof::ClassDecl& cls : builtinSchema().classes()) m_host->classes().add(cls.name, cls.superClass);
        for (const auto& [cls, super] : builtinSchema().chains().links()) {
            if (!super.empty()) m_host->classes().add(cls, super);
        }
        ObjectPath smis(mof::kInteropNamespace, "PG_RegisteredProfile");
        smis.addKey("InstanceID", Value::string("SNIA+SMI-S+1.5.0"));
        m_host->repository().addPath(smis);
        cmpihost::LoadOptions fresh;
        fresh.freshLife = true;
        const cmpihost::Status loaded = m_host->load(VEX_PROVIDER_SO, "vexRAIDProvider15", fresh);
        ASSERT_TRUE(loaded.ok()) << loaded.toString();
        keepMapped();
    }

    // The provider is never unloaded by an object manager; mapped it stays
    // here too, so its process-lifetime singletons are not taken for leaks.
    void keepMapped() {
        void* handle = dlopen(m_host->openedFile().c_str(), RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
        if (handle != nullptr) dlclose(handle);
    }

    void TearDown() override {
        m_host.reset();
        std::error_code ignored;
        std::filesystem::remove_all(m_stateDir, ignored);
    }

    // Each registered class with a plug-in, in each namespace it is
    // registered in: body(class, namespace).
    template <typename Body>
    static void forEachServedClass(Body body) {
        const cim::fwf::PluginRegistration* rows = cim::fwf::pluginRegistrations();
        for (std::size_t i = 0; i < cim::fwf::pluginRegistrationCount(); ++i) {
            const mof::ClassDecl* cls = builtinSchema().find(rows[i].name);
            if (rows[i].factory == nullptr || cls == nullptr) continue;
            for (const char* ns : kNamespaces) {
                if (builtinSchema().servedIn(cls->name, ns)) body(*cls, ns);
            }
        }
    }

    cmpihost::Host& cimom() { return *m_host; }

private:
    std::string m_stateDir;
    std::unique_ptr<cmpihost::Host> m_host;
};

TEST_P(ConformanceTest, InstancesAreWhatTheirClassDeclares) {
    std::set<std::string> problems;
    std::size_t classes = 0, instances = 0;
    forEachServedClass([&](const mof::ClassDecl& cls, const char* ns) {
        const Response r = cimom().enumerateInstances(ObjectPath(ns, cls.name));
        if (!r.ok()) {
            problems.insert(cls.name + " in " + ns + ": " + r.status.toString());
            return;
        }
        ++classes;
        for (const cmpihost::Instance& instance : r.instances) {
            ++instances;
            for (std::string& p : instanceProblems(instance, cls, builtinSchema())) problems.insert(std::move(p));
        }
    });
    EXPECT_TRUE(problems.empty()) << problems.size() << " departures in " << classes << " classes, "
                                  << instances << " instances:" << listed(problems);
    EXPECT_GT(instances, 20u) << "the system serves too little to check";
}

TEST_P(ConformanceTest, InstanceNamesCarryExactlyTheKeys) {
    std::set<std::string> problems;
    forEachServedClass([&](const mof::ClassDecl& cls, const char* ns) {
        const Response r = cimom().enumerateInstanceNames(ObjectPath(ns, cls.name));
        if (!r.ok()) return;  // reported by the enumeration of instances
        for (const ObjectPath& path : r.paths) {
            for (std::string& p : pathProblems(path, cls)) problems.insert(std::move(p));
        }
    });
    EXPECT_TRUE(problems.empty()) << listed(problems);
}

TEST_P(ConformanceTest, AnInstanceFetchedByItsNameIsTheOneEnumerated) {
    std::set<std::string> problems;
    forEachServedClass([&](const mof::ClassDecl& cls, const char* ns) {
        if (cls.isAssociation()) return;
        const Response all = cimom().enumerateInstances(ObjectPath(ns, cls.name));
        if (!all.ok() || all.instances.empty()) return;
        const cmpihost::Instance& first = all.instances.front();
        const Response one = cimom().getInstance(first.path);
        if (!one.ok() || one.instances.size() != 1 || one.instances.front().properties != first.properties) {
            problems.insert(cls.name + " in " + ns + ": " + one.status.toString() + " for " + first.path.toString());
        }
    });
    EXPECT_TRUE(problems.empty()) << listed(problems);
}

INSTANTIATE_TEST_SUITE_P(Systems, ConformanceTest, ::testing::ValuesIn(kSystems),
                         [](const ::testing::TestParamInfo<System>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace vex::moftest

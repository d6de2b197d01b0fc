// Indications end to end: the built provider in cmpihost on the simulated
// demo system, the monitor polling every second, a client subscribed as
// "vexraid watch" subscribes.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include <storlib/Simulator.h>
#include <storlib/StorLib.h>

#include "cmpihost/Host.h"

namespace vex::eventstest {
namespace {

using Clock = std::chrono::steady_clock;
const char* const kNs = "root/tkz/vex/smi_15";

std::string tempDir() {
    char pattern[] = "/tmp/vex-events-XXXXXX";
    const char* made = mkdtemp(pattern);
    return made != nullptr ? made : "/tmp";
}

std::string stringOf(const cmpihost::Instance& i, const char* name) {
    const cmpihost::Value* v = i.property(name);
    return v != nullptr ? v->toString() : std::string();
}

class ProviderEvents : public ::testing::Test {
protected:
    void SetUp() override {
        m_dir = tempDir();
        std::filesystem::create_directories(m_dir + "/state");
        std::filesystem::create_directories(m_dir + "/nrm");
        std::filesystem::create_directories(m_dir + "/install/conf");
        std::filesystem::copy_file(VEX_CATALOGUE_FILE, m_dir + "/install/conf/RaidNLS.properties");
        setenv("STORVEX_SYSTEM", VEX_STORLIB_SYSTEMS_DIR "/demo.json", 1);
        setenv("STORVEX_STATE_DIR", (m_dir + "/state").c_str(), 1);
        setenv("STORVEX_TIME_SCALE", "0", 1);
        setenv("VEX_NRM_DIR", (m_dir + "/nrm").c_str(), 1);
        setenv("tidalDS", (m_dir + "/install").c_str(), 1);
        ASSERT_TRUE(m_lib.open().ok());
    }

    void TearDown() override {
        m_host.reset();
        m_lib.close();
        std::filesystem::remove_all(m_dir);
    }

    void start(const std::string& settings) {
        std::ofstream(m_dir + "/nrm/NRMConfig.conf") << settings;
        m_host = std::make_unique<cmpihost::Host>(cmpihost::HostConfig::sfcb14());
        cmpihost::LoadOptions options;
        options.freshLife = true;
        ASSERT_TRUE(m_host->load(VEX_PROVIDER_SO, "vexRAIDProvider15", options).ok());
        keepMappedUnderAsan();
        const cmpihost::ObjectPath events(kNs, "VEX_EventIndication");
        const cmpihost::ObjectPath lifecycle(kNs, "CIM_InstModification");
        m_host->activateFilter({"SELECT * FROM VEX_EventIndication"}, std::string("VEX_EventIndication"), events, true);
        m_host->activateFilter({"SELECT * FROM CIM_InstModification"}, std::string("CIM_InstModification"), lifecycle,
                               false);
        m_host->enableIndications();
    }

    // Under AddressSanitizer the provider stays mapped after unload, so that
    // its process-lifetime singletons are not reported as leaks.
    void keepMappedUnderAsan() {
#if defined(__SANITIZE_ADDRESS__)
        if (void* handle = dlopen(m_host->openedFile().c_str(), RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE)) {
            dlclose(handle);
        }
#endif
    }

    // Until the monitor has read the controllers once (its snapshot is
    // written): a fault injected earlier would be part of what it starts from.
    void waitForMonitor() {
        const auto until = Clock::now() + std::chrono::seconds(30);
        while (!std::filesystem::exists(m_dir + "/nrm/NRMFSAConfig.xml") && Clock::now() < until) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        ASSERT_TRUE(std::filesystem::exists(m_dir + "/nrm/NRMFSAConfig.xml"));
    }

    void enumerateJobs() { m_host->enumerateInstances(cmpihost::ObjectPath(kNs, "VEX_ConcreteJob")); }

    // The first indication of the class whose property `name` holds `part`,
    // waiting up to `limit`; null when none came.
    std::unique_ptr<cmpihost::Instance> waitFor(const std::string& className, const char* name,
                                                const std::string& part, std::chrono::seconds limit) {
        const auto until = Clock::now() + limit;
        do {
            for (const auto& d : m_host->indications().all()) {
                if (d.indication.className() == className && stringOf(d.indication, name).find(part) != std::string::npos) {
                    return std::make_unique<cmpihost::Instance>(d.indication);
                }
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        } while (Clock::now() < until);
        return nullptr;
    }

    std::string driveStatus(const std::string& deviceId) {
        for (const auto& i : m_host->enumerateInstances(cmpihost::ObjectPath(kNs, "VEX_DiskDrive")).instances) {
            if (stringOf(i, "DeviceID").find(deviceId) != std::string::npos) {
                return stringOf(i, "OperationalStatus");
            }
        }
        return "?";
    }

    // Seconds from a drive failure injected at `device` to its indication.
    double faultToIndication(std::uint32_t device, std::chrono::seconds limit) {
        const auto injected = Clock::now();
        EXPECT_TRUE(m_sim.failDrive(storlib::Addr(0, 0, device)).ok());
        EXPECT_NE(waitFor("VEX_EventIndication", "eventDesc", "Drive 0:" + std::to_string(device), limit), nullptr);
        return std::chrono::duration<double>(Clock::now() - injected).count();
    }

    std::string m_dir;
    storlib::StorLib m_lib;
    storlib::Simulator m_sim{m_lib};
    std::unique_ptr<cmpihost::Host> m_host;
};

TEST_F(ProviderEvents, FaultsReachTheClientOncePollingAndTheCacheFollows) {
    start("nrm.pollInterval=1\n");
    waitForMonitor();
    ASSERT_TRUE(m_sim.failDrive(storlib::Addr(0, 0, 3)).ok());
    // No indication before a client has looked at the jobs; the events wait.
    std::this_thread::sleep_for(std::chrono::seconds(3));
    EXPECT_EQ(waitFor("VEX_EventIndication", "eventDesc", "", std::chrono::seconds(0)), nullptr);
    enumerateJobs();
    // Bounds are generous: sanitizer builds on a loaded machine are slow, and
    // the latency itself is measured, not asserted (see below).
    auto failed = waitFor("VEX_EventIndication", "eventDesc", "Drive 0:3 (slot 3) on controller 0 has failed",
                          std::chrono::seconds(30));
    ASSERT_NE(failed, nullptr);
    EXPECT_EQ(stringOf(*failed, "eventCode"), "uint32:42");
    EXPECT_EQ(stringOf(*failed, "devIdentifier"), "string:\"0_0_3_2147483647_9223372036854775807\"");

    // Latency of a fault injected while polling (about one poll interval plus
    // one listener pass): printed for the record.
    const std::string before = driveStatus("0_0_5");
    const double seconds = faultToIndication(5, std::chrono::seconds(30));
    std::printf("fault to indication: %.2f s (poll interval 1 s)\n", seconds);
    // The refresh follows the indication.
    const auto until = Clock::now() + std::chrono::seconds(30);
    while (driveStatus("0_0_5") == before && Clock::now() < until) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    EXPECT_NE(driveStatus("0_0_5"), before);
    // Life-cycle indications are off by default.
    EXPECT_EQ(waitFor("CIM_InstModification", "SourceInstanceModelPath", "", std::chrono::seconds(0)), nullptr);
}

// The figure at the default poll interval of 5 s (about 8 s per run; run
// with --gtest_also_run_disabled_tests).
TEST_F(ProviderEvents, DISABLED_MeasureLatencyAtTheDefaultInterval) {
    start("");
    waitForMonitor();
    enumerateJobs();
    std::this_thread::sleep_for(std::chrono::seconds(2));
    double worst = 0;
    double total = 0;
    for (std::uint32_t device : {3u, 5u, 6u}) {
        const double seconds = faultToIndication(device, std::chrono::seconds(10));
        worst = std::max(worst, seconds);
        total += seconds;
        std::this_thread::sleep_for(std::chrono::milliseconds(1700 * device % 5000));  // a different phase each time
    }
    std::printf("fault to indication at the default interval: mean %.2f s, worst %.2f s (bound 5 + 1 s)\n",
                total / 3, worst);
    EXPECT_LT(worst, 5 + 1 + 2.0);
}

TEST_F(ProviderEvents, LifecycleIndicationsWhenTheSettingIsOn) {
    start("nrm.pollInterval=1\nagent.lifecycleIndications=on\n");
    waitForMonitor();
    enumerateJobs();
    std::this_thread::sleep_for(std::chrono::seconds(2));
    ASSERT_TRUE(m_sim.failDrive(storlib::Addr(0, 0, 3)).ok());
    auto modified = waitFor("CIM_InstModification", "SourceInstanceModelPath", "VEX_DiskDrive", std::chrono::seconds(30));
    ASSERT_NE(modified, nullptr);
    EXPECT_NE(stringOf(*modified, "SourceInstanceModelPath").find("0_0_3"), std::string::npos);
    EXPECT_EQ(stringOf(*modified, "PerceivedSeverity"), "uint16:6");
    EXPECT_NE(stringOf(*modified, "SourceInstance").find("VEX_DiskDrive"), std::string::npos);
}

}  // namespace
}  // namespace vex::eventstest

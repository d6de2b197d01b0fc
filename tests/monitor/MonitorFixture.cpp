#include "MonitorFixture.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace vex::monitortest {

namespace {

// poll's queue argument: the monitor queues into its own.
monitor::NRMEventCollection& unusedQueue() {
    static monitor::NRMEventCollection queue("", 500, 5);
    return queue;
}

}  // namespace

TempDir::TempDir() {
    char pattern[] = "/tmp/vex-monitor-XXXXXX";
    const char* made = mkdtemp(pattern);
    m_path = made != nullptr ? made : "/tmp";
}

TempDir::~TempDir() {
    if (m_path != "/tmp") {
        std::filesystem::remove_all(m_path);
    }
}

void TempDir::write(const std::string& name, const std::string& text) const {
    std::ofstream(file(name), std::ios::binary) << text;
}

void MonitorTest::SetUp() {
    setenv("STORVEX_STATE_DIR", m_state.path().c_str(), 1);
    setenv("STORVEX_TIME_SCALE", "0", 1);
    setenv("VEX_NRM_DIR", m_nrm.path().c_str(), 1);
    setenv("tidalDS", m_install.path().c_str(), 1);
    std::filesystem::create_directories(m_install.file("conf"));
    std::filesystem::copy_file(VEX_CATALOGUE_FILE, m_install.file("conf/RaidNLS.properties"));
    useSystem("demo.json");
}

void MonitorTest::TearDown() {
    m_sim.reset();
    m_lib.reset();
}

void MonitorTest::useSystem(const std::string& file) {
    m_sim.reset();
    m_lib.reset();
    setenv("STORVEX_SYSTEM", (std::string(VEX_STORLIB_SYSTEMS_DIR "/") + file).c_str(), 1);
    m_lib = std::make_unique<storlib::StorLib>();
    ASSERT_TRUE(m_lib->open().ok());
    m_sim = std::make_unique<storlib::Simulator>(*m_lib);
}

std::unique_ptr<monitor::FsaRaidMonitor> MonitorTest::startMonitor(bool settled) {
    auto m = std::make_unique<monitor::FsaRaidMonitor>(m_lib.get());
    m->readConfig();
    m->poll(monitor::CHECK_CONFIG, unusedQueue());
    if (settled) {
        cycle(*m);
    }
    return m;
}

std::vector<monitor::NRMEvent> MonitorTest::cycle(monitor::FsaRaidMonitor& m) {
    drain(m);
    m.poll(monitor::COMPARE_CONFIG, unusedQueue());
    return drain(m);
}

std::vector<monitor::NRMEvent> MonitorTest::drain(monitor::FsaRaidMonitor& m) {
    std::vector<monitor::NRMEvent> events(static_cast<std::size_t>(m.getNumberOfEvents()));
    events.resize(static_cast<std::size_t>(m.getEvents(events.data(), static_cast<int>(events.size()))));
    return events;
}

const monitor::NRMEvent* MonitorTest::find(const std::vector<monitor::NRMEvent>& events, const std::string& key) {
    for (const monitor::NRMEvent& e : events) {
        if (e.getKey() == key) {
            return &e;
        }
    }
    return nullptr;
}

std::string MonitorTest::keys(const std::vector<monitor::NRMEvent>& events) {
    std::string all;
    for (const monitor::NRMEvent& e : events) {
        all += e.getKey() + " ";
    }
    return all;
}

}  // namespace vex::monitortest

// Simulated controllers for the monitor: a private state directory with the
// controller clock stopped, a private monitor directory, and the shipped
// catalogue as the installation's.
#ifndef VEX_TESTS_MONITOR_MONITORFIXTURE_H
#define VEX_TESTS_MONITOR_MONITORFIXTURE_H

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include <storlib/Simulator.h>
#include <storlib/StorLib.h>

#include "monitor/FsaRaidMonitor.h"
#include "monitor/NRMEvent.h"

namespace vex::monitortest {

// A fresh directory under /tmp, removed by the destructor.
class TempDir {
public:
    TempDir();
    ~TempDir();
    const std::string& path() const { return m_path; }
    std::string file(const std::string& name) const { return m_path + "/" + name; }
    void write(const std::string& name, const std::string& text) const;

private:
    std::string m_path;
};

class MonitorTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Points the environment at a shipped description and reopens the library.
    void useSystem(const std::string& file);
    // A monitor over the test's library; the first COMPARE_CONFIG poll
    // (always a refresh) is done and its events dropped when settled.
    std::unique_ptr<monitor::FsaRaidMonitor> startMonitor(bool settled = true);
    // One COMPARE_CONFIG poll and the events it queued.
    std::vector<monitor::NRMEvent> cycle(monitor::FsaRaidMonitor& m);
    static std::vector<monitor::NRMEvent> drain(monitor::FsaRaidMonitor& m);
    static const monitor::NRMEvent* find(const std::vector<monitor::NRMEvent>& events, const std::string& key);
    static std::string keys(const std::vector<monitor::NRMEvent>& events);

    TempDir m_state;
    TempDir m_nrm;
    TempDir m_install;
    std::unique_ptr<storlib::StorLib> m_lib;
    std::unique_ptr<storlib::Simulator> m_sim;
};

}  // namespace vex::monitortest

#endif

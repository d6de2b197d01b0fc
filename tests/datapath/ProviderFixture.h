// Tests of the built provider, loaded by cmpihost from its file with a fresh
// life per load, answering from a simulated system.
#ifndef VEX_TESTS_DATAPATH_PROVIDERFIXTURE_H
#define VEX_TESTS_DATAPATH_PROVIDERFIXTURE_H

#include <gtest/gtest.h>

#include <cmpihost/Host.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "SimulatedSystem.h"

namespace vex::datapath {

inline constexpr const char* kImplNs = "root/tkz/vex/smi_15";

class ProviderTest : public ::testing::Test {
protected:
    void TearDown() override;

    // A fresh system on a shipped or generated description, and a fresh
    // provider serving it.
    void startOn(const std::string& descriptionFile);
    void startOn(const storlib::GeneratorParams& params);
    // Loads a fresh provider life on the current system (a restart).
    void restart();

    cmpihost::Host& cimom() { return *m_host; }
    SimulatedSystem& system() { return *m_system; }

    // Every instance of a class; fails the test on a status other than OK.
    std::vector<cmpihost::Instance> enumerate(const std::string& className);

private:
    std::unique_ptr<SimulatedSystem> m_system;
    std::unique_ptr<cmpihost::Host> m_host;
};

// Loads a fresh life of the built provider into host (every factory called).
void loadFreshProvider(cmpihost::Host& host);

// The names of the properties (or keys) of an instance or path.
std::set<std::string> namesOf(const cmpihost::NamedValues& values);

}  // namespace vex::datapath

#endif

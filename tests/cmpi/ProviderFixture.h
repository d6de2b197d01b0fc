// Tests of the built provider loaded by cmpihost from its file. Every test
// gets a fresh life of the provider (a private copy of the shared object), so
// its one-time initialisation and teardown run anew.
#ifndef VEX_TESTS_CMPI_PROVIDERFIXTURE_H
#define VEX_TESTS_CMPI_PROVIDERFIXTURE_H

#include <gtest/gtest.h>

#include <cmpihost/Host.h>

#include <memory>
#include <string>

#include "LogCapture.h"

namespace vex::cmpitest {

inline constexpr const char* kImplNs = "root/tkz/vex/smi_15";
inline constexpr const char* kInteropNs = "root/PG_InterOp";
inline constexpr const char* kInvalidParameters = "The input parameters are invalid";
inline constexpr const char* kNoAdapter = "Failed to get CMPIAdapter singleton instance";

class ProviderTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // The simulated system the next start finds (a file of storlib/systems);
    // "none.json", a host without controllers, unless changed.
    void useSystem(const std::string& file);

    // Loads a fresh life of the provider; with createAll every factory is
    // called at once (four factory calls).
    void start(cmpihost::HostConfig config = cmpihost::HostConfig::pegasus214(),
               bool createAll = false);

    // The message of a response, "" when it has none.
    // The provider as installed, instead of the suite's copy whose access
    // rule reads the password file of VEX_CMPI_PASSWD_FILE.
    void startShipped();
    static std::string message(const cmpihost::Response& response);

    cmpihost::Host& cimom() { return *m_host; }

private:
    std::unique_ptr<cmpihost::Host> m_host;
    std::string m_stateDir;
};

// Loads a fresh life of the provider into `host`.
void loadProvider(cmpihost::Host& host);

// A controller-less simulated system whose state lives in a new directory
// under /tmp; returns that directory.
std::string useSimulatedSystem(const std::string& file);

// The local host name, as the provider reads it.
std::string hostName();

// "rc 4: The input parameters are invalid" and the like, for assertions.
::testing::AssertionResult hasStatus(const cmpihost::Response& response, CMPIrc rc,
                                     const std::string& message);

}  // namespace vex::cmpitest

#endif

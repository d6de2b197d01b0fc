#include "ProviderFixture.h"

#include <unistd.h>

#include <cstdlib>

namespace vex::cmpitest {

void ProviderTest::SetUp() {
    // A controller-less system: the provider starts serving only the host,
    // profile and software classes.
    setenv("STORVEX_SYSTEM", VEX_STORLIB_SYSTEMS_DIR "/none.json", 1);
    clearLog();
}

void ProviderTest::TearDown() { m_host.reset(); }

void ProviderTest::start(cmpihost::HostConfig config, bool createAll) {
    m_host = std::make_unique<cmpihost::Host>(std::move(config));
    cmpihost::LoadOptions options;
    options.freshLife = true;
    options.createAll = createAll;
    cmpihost::Status status = m_host->load(VEX_PROVIDER_SO, "vexRAIDProvider15", options);
    ASSERT_TRUE(status.ok()) << status.toString();
}

std::string ProviderTest::message(const cmpihost::Response& response) {
    return response.status.message.value_or("");
}

std::string hostName() {
    char buffer[256] = {};
    gethostname(buffer, sizeof buffer - 1);
    return buffer;
}

::testing::AssertionResult hasStatus(const cmpihost::Response& response, CMPIrc rc,
                                     const std::string& message) {
    if (response.status.rc == rc && response.status.message.value_or("") == message) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "got " << response.status.toString() << ", expected rc "
                                         << rc << ": " << message;
}

}  // namespace vex::cmpitest

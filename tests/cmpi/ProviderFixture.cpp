#include "ProviderFixture.h"

#include <dlfcn.h>
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

namespace {

// Under AddressSanitizer the provider stays mapped after the host unloads it.
// Its process-lifetime singletons (the log's mutex and buffer, the paths of
// the portability layer) are then still referenced from its static data
// rather than reported as leaks, and a real leak is reported with symbols.
void keepMappedUnderAsan(const cmpihost::Host& host) {
#if defined(__SANITIZE_ADDRESS__)
    void* handle = dlopen(host.openedFile().c_str(), RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
    if (handle != nullptr) {
        dlclose(handle);
    }
#else
    (void)host;
#endif
}

void load(cmpihost::Host& host, bool createAll) {
    cmpihost::LoadOptions options;
    options.freshLife = true;
    options.createAll = createAll;
    cmpihost::Status status = host.load(VEX_PROVIDER_SO, "vexRAIDProvider15", options);
    ASSERT_TRUE(status.ok()) << status.toString();
    keepMappedUnderAsan(host);
}

}  // namespace

void loadProvider(cmpihost::Host& host) { load(host, false); }

void ProviderTest::start(cmpihost::HostConfig config, bool createAll) {
    m_host = std::make_unique<cmpihost::Host>(std::move(config));
    load(*m_host, createAll);
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

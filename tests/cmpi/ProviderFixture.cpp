#include "ProviderFixture.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace vex::cmpitest {

std::string useSimulatedSystem(const std::string& file) {
    char pattern[] = "/tmp/vex-cmpi-XXXXXX";
    const char* dir = mkdtemp(pattern);
    setenv("STORVEX_SYSTEM", (std::string(VEX_STORLIB_SYSTEMS_DIR "/") + file).c_str(), 1);
    setenv("STORVEX_STATE_DIR", dir != nullptr ? dir : "/tmp", 1);
    setenv("STORVEX_TIME_SCALE", "0", 1);
    return dir != nullptr ? dir : "";
}

void ProviderTest::SetUp() {
    // A controller-less system: the provider starts serving only the host,
    // profile and software classes.
    useSystem("none.json");
    clearLog();
}

void ProviderTest::useSystem(const std::string& file) {
    if (!m_stateDir.empty()) {
        std::filesystem::remove_all(m_stateDir);
    }
    m_stateDir = useSimulatedSystem(file);
}

void ProviderTest::TearDown() {
    m_host.reset();
    if (!m_stateDir.empty()) {
        std::filesystem::remove_all(m_stateDir);
    }
}

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

void load(cmpihost::Host& host, bool createAll, const char* file = VEX_PROVIDER_SO) {
    cmpihost::LoadOptions options;
    options.freshLife = true;
    options.createAll = createAll;
    cmpihost::Status status = host.load(file, "vexRAIDProvider15", options);
    ASSERT_TRUE(status.ok()) << status.toString();
    keepMappedUnderAsan(host);
}

}  // namespace

void loadProvider(cmpihost::Host& host) { load(host, false); }

void ProviderTest::start(cmpihost::HostConfig config, bool createAll) {
    m_host = std::make_unique<cmpihost::Host>(std::move(config));
    load(*m_host, createAll);
}

#ifdef VEX_SHIPPED_PROVIDER_SO
void ProviderTest::startShipped() {
    m_host = std::make_unique<cmpihost::Host>(cmpihost::HostConfig::pegasus214());
    load(*m_host, false, VEX_SHIPPED_PROVIDER_SO);
}
#endif

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

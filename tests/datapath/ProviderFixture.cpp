#include "ProviderFixture.h"

#include <dlfcn.h>

namespace vex::datapath {

void loadFreshProvider(cmpihost::Host& host) {
    cmpihost::LoadOptions options;
    options.freshLife = true;
    options.createAll = true;
    const cmpihost::Status status = host.load(VEX_PROVIDER_SO, "vexRAIDProvider15", options);
    ASSERT_TRUE(status.ok()) << status.toString();
#if defined(__SANITIZE_ADDRESS__)
    // Kept mapped after the unload: the provider's process-lifetime singletons
    // stay referenced from its static data instead of showing as leaks, and a
    // real leak is reported with symbols.
    void* handle = dlopen(host.openedFile().c_str(), RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
    if (handle != nullptr) {
        dlclose(handle);
    }
#endif
}

void ProviderTest::TearDown() {
    m_host.reset();
    m_system.reset();
}

void ProviderTest::startOn(const std::string& descriptionFile) {
    m_host.reset();
    m_system = std::make_unique<SimulatedSystem>(descriptionFile);
    restart();
}

void ProviderTest::startOn(const storlib::GeneratorParams& params) {
    m_host.reset();
    m_system = std::make_unique<SimulatedSystem>(params);
    restart();
}

void ProviderTest::restart() {
    m_host.reset();
    m_host = std::make_unique<cmpihost::Host>(cmpihost::HostConfig::pegasus214());
    loadFreshProvider(*m_host);
}

std::vector<cmpihost::Instance> ProviderTest::enumerate(const std::string& className) {
    cmpihost::Response response = cimom().enumerateInstances({kImplNs, className});
    EXPECT_TRUE(response.ok()) << className << ": " << response.status.toString();
    return response.instances;
}

std::set<std::string> namesOf(const cmpihost::NamedValues& values) {
    std::set<std::string> names;
    for (const cmpihost::NamedValue& value : values) {
        names.insert(value.name);
    }
    return names;
}

}  // namespace vex::datapath

#include "InProcessFixture.h"
#include "events/FsaIfEventManager.h"
#include "framework/FacadeControllerStart.h"

#include <cstdarg>
#include <cstdio>
#include <map>
#include <memory>
#include <mutex>

#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"
#include "framework/CIMNamespaces.h"

// ---- log capture -------------------------------------------------------------

namespace {

std::mutex gLogMutex;
std::map<std::string, int> gLogCounts;

void record(const char* text) {
    std::lock_guard<std::mutex> lock(gLogMutex);
    ++gLogCounts[text];
}

}  // namespace

extern "C" int __wrap_TkzLogMsg(int, const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    record(buffer);
    return 0;
}

extern "C" int __wrap_TkzTrace(const char* text) {
    record(text);
    return 0;
}

namespace vex::datapath {

namespace {

using cim::fwf::CIMInstance;
using cim::fwf::CIMObjectPath;

std::unique_ptr<SimulatedSystem> gSystem;
std::mutex gRefreshMutex;

class StartedProvider : public ::testing::Environment {
public:
    void SetUp() override {
        gSystem = std::make_unique<SimulatedSystem>(shippedSystem("demo.json"));
        ASSERT_NE(cim::fwf::FrameworkFacade::getInstance(), nullptr);
        ASSERT_TRUE(cim::fwf::FrameworkFacade::getInstance()->initialize());
        // refreshCycle plays the refresh thread: the provider's own event
        // threads (monitor, listener, refresh) stay stopped.
        cim::fwf::FsaIfEventManager::getInstance()->terminateEventListener();
        cim::fwf::FsaIfEventManager::getInstance()->terminateEventProcessThread();
    }
    void TearDown() override {
        cim::fwf::stopControllerAccess();  // the event threads end before the controllers go
        gSystem.reset();
    }
};

[[maybe_unused]] const ::testing::Environment* const kStarted = ::testing::AddGlobalTestEnvironment(new StartedProvider);

}  // namespace

cim::fwf::FrameworkFacade& facade() { return *cim::fwf::FrameworkFacade::getInstance(); }

SimulatedSystem& demoSystem() { return *gSystem; }

std::vector<CIMInstance> enumerateThroughFacade(const std::string& className) {
    CIMObjectPath path("", cim::fwf::kImplementationNameSpace, className, {});
    std::vector<CIMInstance> instances;
    facade().enumerateInstances(path, instances);
    return instances;
}

unsigned int refreshCycle(bool partial) {
    std::lock_guard<std::mutex> serialised(gRefreshMutex);
    cim::fwf::VexCacheManager::initCacheUpdate();
    const unsigned int status = cim::fwf::VexFSAInterface::getInstance()->initialize(false, false, true, partial);
    cim::fwf::VexCacheManager::exitCacheUpdate();
    return status;
}

int loggedCount(const std::string& text) {
    std::lock_guard<std::mutex> lock(gLogMutex);
    const auto found = gLogCounts.find(text);
    return found == gLogCounts.end() ? 0 : found->second;
}

}  // namespace vex::datapath

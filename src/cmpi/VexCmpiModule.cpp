#include "cmpi/VexCmpiModule.h"

#include "cmpi/CMPIAdapter.h"
#include "cmpi/CmpiCalls.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

std::atomic<const CMPIBroker*> g_Broker{nullptr};
std::atomic<const CMPIContext*> g_Context{nullptr};

namespace {

// Guards refCnt, init and cleanup. Made when the shared object is loaded,
// before any factory call; deleted by the final cleanup (set to null then,
// so that later lock attempts fail and change nothing).
std::atomic<TKZ_MUTEX> mutexObject{TkzMutexInit()};

int refCnt = 0;        // factory calls not yet matched by a terminating cleanup
bool init = false;     // the first initialisation has run (successful or not)
bool cleanup = false;  // the final cleanup has run

void initializeAdapter() {
    TkzLogInit("SMIS");
    TkzTrace("Entering CMPIMI VexInitialize()");
    CMPIAdapter* adapter = CMPIAdapter::getInstance();
    if (adapter == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to create CMPIAdapter instance");
        return;
    }
    adapter->setBroker(g_Broker.load());
    adapter->setContext(g_Context.load());
    if (adapter->initialize()) {
        TkzLogMsg(TKZ_LOG_INFO, "CMPIMI : Provider Initialized successfully");
    } else {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to initialize CMPIAdapter");
    }
}

bool cleanupArgumentsValid(void* mi, const CMPIContext* ctx) {
    return mi != nullptr && ctx != nullptr && ctx->hdl != nullptr;
}

void deleteModuleMutex() {
    TKZ_MUTEX mutex = mutexObject.exchange(nullptr);
    TkzMutexDelete(&mutex);
}

}  // namespace

void VexInitialize() {
    TkzTrace("Entering CMPIMI VexInitialize()");
    TKZ_MUTEX mutex = mutexObject.load();
    if (TkzMutexLock(mutex) != 0) {
        TkzTrace("Leaving CMPIMI VexInitialize()");
        return;
    }
    ++refCnt;
    TkzLogMsg(TKZ_LOG_DEBUG, "Ref count = %d", refCnt);
    if (refCnt == 1 && !init) {
        // A failed initialisation is not retried: the provider stays loaded
        // with what the adapter managed to set up and requests fail there.
        initializeAdapter();
        init = true;
    } else {
        TkzLogMsg(TKZ_LOG_INFO, "Provider Initialization already done");
    }
    TkzMutexUnlock(mutex);
    TkzTrace("Exiting CMPIMI VexInitialize()");
}

void CommonCleanup(void* mi, const CMPIContext* ctx, CMPIStatus& status) {
    TKZ_MUTEX mutex = mutexObject.load();
    if (TkzMutexLock(mutex) != 0) {
        return;
    }
    --refCnt;
    TkzLogMsg(TKZ_LOG_DEBUG, "Ref count at cleanup = %d", refCnt);
    if (refCnt != 0 || cleanup) {
        // Also the answer while other MIs are still in use.
        TkzMutexUnlock(mutex);
        TkzLogMsg(TKZ_LOG_INFO, "Provider CleanUp already done");
        return;
    }
    if (!cleanupArgumentsValid(mi, ctx)) {
        TkzLogMsg(TKZ_LOG_INFO, "The input parameters are invalid");
        calls::setStatus(&status, g_Broker.load(), CMPI_RC_OK,
                         "Warning : The input parameters are invalid");
    }
    CMPIAdapter::deleteInstance();
    cleanup = true;
    TkzMutexUnlock(mutex);
    deleteModuleMutex();
}

}  // namespace vex::cim::adap::cmpi

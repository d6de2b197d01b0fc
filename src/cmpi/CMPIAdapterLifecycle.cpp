// The adapter singleton: creation, initialisation, destruction, accessors.
#include <new>

#include "cmpi/CMPIAdapter.h"
#include "framework/CIMNamespaces.h"
#include "framework/CommonFunctions.h"
#include "framework/FrameworkFacade.h"

namespace vex::cim::adap::cmpi {

CMPIAdapter* CMPIAdapter::m_adapins = nullptr;
// Made when the shared object is loaded, deleted with the adapter.
std::atomic<TKZ_MUTEX> CMPIAdapter::m_mutexObject{TkzMutexInit()};

CMPIAdapter* CMPIAdapter::getInstance() {
    TKZ_MUTEX mutex = m_mutexObject.load();
    if (TkzMutexLock(mutex) != 0) {
        return nullptr;
    }
    if (m_adapins == nullptr) {
        m_adapins = new (std::nothrow) CMPIAdapter();
    }
    CMPIAdapter* adapter = m_adapins;
    TkzMutexUnlock(mutex);
    return adapter;
}

// The singleton pointer is left as it is: there is one life per load, and
// with the class mutex gone getInstance can no longer hand it out. The
// object is destroyed after the mutex is released, so that its destructor
// can delete that mutex.
void CMPIAdapter::deleteInstance() {
    TKZ_MUTEX mutex = m_mutexObject.load();
    if (TkzMutexLock(mutex) != 0) {
        return;
    }
    CMPIAdapter* adapter = m_adapins;
    TkzMutexUnlock(mutex);
    delete adapter;
}

CMPIAdapter::CMPIAdapter() { TkzTrace("Entering CMPIAdapter::CMPIAdapter"); }

CMPIAdapter::~CMPIAdapter() {
    TkzTrace("Entering CMPIAdapter::~CMPIAdapter");
    fwf::FrameworkFacade* facade = fwf::FrameworkFacade::getInstance();
    if (facade != nullptr) {
        facade->deRegisterForEvent();
        delete facade;
    }
    TKZ_MUTEX mutex = m_mutexObject.exchange(nullptr);
    if (TkzMutexDelete(&mutex) != 0) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: Failed to delete mutex object.", "~CMPIAdapter");
    }
}

bool CMPIAdapter::initialize() {
    fwf::FrameworkFacade* facade = fwf::FrameworkFacade::getInstance();
    const CMPIBroker* broker = getBroker();
    fwf::selectInteropNameSpace(broker != nullptr && broker->bft != nullptr ? broker->bft->brokerName
                                                                            : nullptr);
    TkzLogMsg(TKZ_LOG_INFO, "Interop namespace: %s", fwf::interopNameSpace());
    getPegasusSMISProfRegObjPaths();
    if (facade == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to create FrameworkFacade instance");
        return false;
    }
    if (!facade->registerForEvent(&CMPIAdapter::DeliverIndication)) {
        TkzLogMsg(TKZ_LOG_DEBUG, "CALLBACK REGISTRATION UnSuccessful.");
        return false;
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "CALLBACK REGISTRATION Successful.");
    if (!facade->initialize()) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to initialize FrameworkFacade");
        return false;
    }
    TkzLogMsg(TKZ_LOG_INFO, "Successfully initialized FrameworkFacade");
    return true;
}

void CMPIAdapter::setThreadContext(const CMPIBroker* broker, const CMPIContext* ctx) {
    CMPIContext* prepared = nullptr;
    if (broker != nullptr && broker->bft != nullptr && broker->bft->prepareAttachThread != nullptr &&
        ctx != nullptr) {
        prepared = broker->bft->prepareAttachThread(broker, ctx);
    }
    m_threadContext.store(prepared);
}

std::string CMPIAdapter::ToLower(const std::string& text) {
    return fwf::CommonFunctions::toLower(text);
}

}  // namespace vex::cim::adap::cmpi

#include "controller/VexFSAInterface.h"

#include <storlib/StorLib.h>

#include "controller/FsaTrace.h"

namespace vex::cim::fwf {

std::atomic<VexFSAInterface*> VexFSAInterface::pVexFSAInterface{nullptr};
TKZ_MUTEX VexFSAInterface::s_CreateMutex = nullptr;
TKZ_MUTEX VexFSAInterface::storlibGuard = nullptr;
std::atomic<bool> VexFSAInterface::notInitialized{true};
VexFSAInterfaceCleanUp VexFSAInterface::_cleanup;

VexFSAInterfaceCleanUp::VexFSAInterfaceCleanUp() {
    VexFSAInterface::s_CreateMutex = TkzMutexInit();
    VexFSAInterface::storlibGuard = TkzMutexInit();
}

VexFSAInterfaceCleanUp::~VexFSAInterfaceCleanUp() {
    delete m_instance;
    m_instance = nullptr;
    VexFSAInterface::pVexFSAInterface = nullptr;
    TkzMutexDelete(&VexFSAInterface::storlibGuard);
    TkzMutexDelete(&VexFSAInterface::s_CreateMutex);
}

void VexFSAInterfaceCleanUp::SetInstance(VexFSAInterface* instance) { m_instance = instance; }

VexFSAInterface* VexFSAInterface::getInstance() {
    VexFSAInterface* existing = pVexFSAInterface.load();
    if (existing != nullptr) {
        return existing;
    }
    if (TkzMutexLock(s_CreateMutex) != 0) {
        return pVexFSAInterface.load();
    }
    if (pVexFSAInterface.load() == nullptr) {
        auto* created = new VexFSAInterface();
        _cleanup.SetInstance(created);
        pVexFSAInterface = created;
    }
    TkzMutexUnlock(s_CreateMutex);
    return pVexFSAInterface.load();
}

VexFSAInterface::VexFSAInterface() {
    TkzLogInit("fsaIf");
    fsaMethodTrace trace("VexFSAInterface");
    initializeRoutineList();
}

VexFSAInterface::~VexFSAInterface() = default;

unsigned int VexFSAInterface::registerForNotification(_eVEXObjectType type, EventObserver* observer) {
    TkzLogMsg(TKZ_LOG_INFO, "Plugin registration of type:%d", static_cast<int>(type));
    if (m_eventLink.pushPluginVec) {
        m_eventLink.pushPluginVec(type, observer);
    }
    return FSAIF_SUCCESS;
}

unsigned int VexFSAInterface::FSAGetSupportedRoutines(std::vector<std::string>& names) const {
    names.clear();
    for (const auto& routine : m_routines) {
        names.push_back(routine.first);
    }
    return FSAIF_SUCCESS;
}

unsigned int VexFSAInterface::terminate() {
    if (m_eventLink.terminateEventThreads) {
        m_eventLink.terminateEventThreads();
    }
    m_storLib = nullptr;
    return FSAIF_SUCCESS;
}

void VexFSAInterface::setEventLink(FsaEventLink link) { m_eventLink = std::move(link); }

void VexFSAInterface::lockEventMutex() const {
    if (m_eventLink.eventMutex) {
        if (TKZ_MUTEX mutex = m_eventLink.eventMutex()) {
            TkzMutexLock(mutex);
        }
    }
}

void VexFSAInterface::unlockEventMutex() const {
    if (m_eventLink.eventMutex) {
        if (TKZ_MUTEX mutex = m_eventLink.eventMutex()) {
            TkzMutexUnlock(mutex);
        }
    }
}

void VexFSAInterface::postRefreshEvent() const {
    if (m_eventLink.postPollEvent) {
        m_eventLink.postPollEvent(FSA_POLL_REFRESH);
    }
}

}  // namespace vex::cim::fwf

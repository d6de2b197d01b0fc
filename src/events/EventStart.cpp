// How the change-event machinery joins the provider: at load it hands its
// start and stop to the facade's controller start; at start it links the
// controller interface to the event manager and the plug-in registry, starts
// the RAID event monitor, the listener and the process thread.
#include <cstdlib>

#include "controller/VexFSAInterface.h"
#include "events/FsaIfEventManager.h"
#include "events/FsaIfPluginManagr.h"
#include "framework/FacadeControllerStart.h"
#include "monitor/VEXRaidEventMonitor.h"

namespace vex::cim::fwf {

namespace {

void stopEventThreads() {
    if (FsaIfEventManager* manager = FsaIfEventManager::getInstance()) {
        manager->terminateEventListener();
        manager->terminateEventProcessThread();
    }
    // The plug-ins that registered go with the registry.
    FsaIfPluginManagr::getInstance()->clear();
}

void stopAtExit() { stopControllerAccess(); }

FsaEventLink eventLink() {
    FsaEventLink link;
    link.eventMutex = [] {
        FsaIfEventManager* manager = FsaIfEventManager::getInstance();
        return manager != nullptr ? manager->getEventProcessorMutex() : nullptr;
    };
    link.postPollEvent = [](unsigned int bits) {
        if (FsaIfEventManager* manager = FsaIfEventManager::getInstance()) {
            uPollEvent event{};
            event.EventType = bits;
            manager->invokeCallBack(event);
        }
    };
    link.pushPluginVec = [](_eVEXObjectType type, EventObserver* observer) {
        FsaIfPluginManagr::getInstance()->pushPluginVec(type, observer);
    };
    link.terminateEventThreads = &stopEventThreads;
    return link;
}

void startEvents(VexFSAInterface& fsa) {
    fsa.setEventLink(eventLink());
    monitor::VEXRaidEventMonitor* raidMonitor = monitor::VEXRaidEventMonitor::getInstance();
    if (raidMonitor == nullptr || !raidMonitor->start()) {
        TkzLogMsg(TKZ_LOG_ERROR, "FrameworkFacade :: Failed to start the RAID event monitor");
    } else {
        TkzLogMsg(TKZ_LOG_DEBUG, "FrameworkFacade :: FsaRaidMonitor started");
    }
    FsaIfEventManager* manager = FsaIfEventManager::getInstance();
    if (manager == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "FrameworkFacade :: Failed to get the event manager");
        return;
    }
    if (!manager->initEventListener()) {
        TkzLogMsg(TKZ_LOG_ERROR, "FrameworkFacade :: Failed to start the event listener");
    }
    if (!manager->initEventProcessThread()) {
        TkzLogMsg(TKZ_LOG_ERROR, "FrameworkFacade :: Failed to start the event process thread");
    }
}

// Registered once the controllers have been read, so that at exit the event
// threads stop before the objects first used by that reading are destroyed.
void controllersRead() {
    static const bool atExitRegistered = std::atexit(&stopAtExit) == 0;
    (void)atExitRegistered;
    if (FsaIfEventManager* manager = FsaIfEventManager::getInstance()) {
        manager->updateWholeOldCache();
    }
}

void stopEvents(VexFSAInterface& fsa) { fsa.terminate(); }

struct Install {
    Install() { setControllerEventHooks(ControllerEventHooks{&startEvents, &controllersRead, &stopEvents}); }
};

const Install g_install;

}  // namespace

}  // namespace vex::cim::fwf

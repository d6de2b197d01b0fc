#include "framework/FacadeControllerStart.h"

#include "controller/VexFSAInterface.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

ControllerEventHooks g_hooks{nullptr, nullptr, nullptr};
bool g_eventsStarted = false;  // under the module mutex, as start and stop are

// The provider-start build of the cache: the library handle is taken (shared
// with the RAID event monitor once there is one) and the repositories are
// synchronised at the end. A library handle that cannot be had is thrown as
// its code.
unsigned int initializeControllers(VexFSAInterface& fsa) {
    try {
        return fsa.initialize(true, true, false, false);
    } catch (_FSAIF_Return code) {
        return code;
    } catch (...) {
        return FSAIF_UNKNOWN_ERROR;
    }
}

}  // namespace

// Only a start that found no controller serves selectively (the host,
// profile and software classes); a failed initialisation is logged and the
// provider serves every class from whatever the cache holds.
ControllerStart startControllerAccess() {
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    if (fsa == nullptr) {
        TkzLogMsg(TKZ_LOG_DEBUG, "FrameworkFacade :: Failed to get FSA instance");
        return ControllerStart{false, true};
    }
    // The RAID event monitor, then the event listener and the event process
    // thread; one that fails to start leaves a provider that serves without
    // change events.
    if (g_hooks.startEvents != nullptr && !g_eventsStarted) {
        g_hooks.startEvents(*fsa);
        g_eventsStarted = true;
    }
    const unsigned int status = initializeControllers(*fsa);
    if (g_eventsStarted && g_hooks.controllersRead != nullptr) {
        g_hooks.controllersRead();
    }
    const bool noController = status == FSAIF_NO_CONTROLLER;
    if (status != FSAIF_SUCCESS && !noController) {
        TkzLogMsg(TKZ_LOG_ERROR, "FrameworkFacade :: FSAIF initialisation failed with status = %d",
                  static_cast<int>(status));
        return ControllerStart{true, false};
    }
    if (noController) {
        TkzLogMsg(TKZ_LOG_ERROR,
                  "FrameworkFacade :: FSAIF initialisation suceeded but No Controllers found !!. ");
        TkzLogMsg(TKZ_LOG_DEBUG, "FrameworkFacade :: Switching to no controller scenario. ");
    } else {
        TkzLogMsg(TKZ_LOG_DEBUG,
                  "FrameworkFacade :: FSAIF initialisation suceeded and Controllers found !!. ");
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: FSAIF initialized successfully ", "initialize");
    return ControllerStart{true, noController};
}

void stopControllerAccess() {
    if (!g_eventsStarted || g_hooks.stopEvents == nullptr) {
        return;
    }
    g_eventsStarted = false;
    if (VexFSAInterface* fsa = VexFSAInterface::getInstance()) {
        g_hooks.stopEvents(*fsa);
    }
}

void setControllerEventHooks(const ControllerEventHooks& hooks) { g_hooks = hooks; }

}  // namespace vex::cim::fwf

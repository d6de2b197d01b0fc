#include "framework/FacadeControllerStart.h"

#include "controller/VexFSAInterface.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

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
    // Still to come here, in this order, with their log lines: the RAID event
    // monitor (FsaRaidMonitor), then the event listener and the event process
    // thread of the event manager. A listener or processor that fails to
    // start leaves a provider that serves without change events.
    const unsigned int status = initializeControllers(*fsa);
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

}  // namespace vex::cim::fwf

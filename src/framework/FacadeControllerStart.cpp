#include "framework/FacadeControllerStart.h"

#include "platform/Tkz.h"

namespace vex::cim::fwf {

// No controller interface is built into the provider yet, so every start is a
// start without controllers: the host, profile and software classes are
// served, nothing else. The controller start, in this order, goes here:
//   1. VexFSAInterface::getInstance(); none: "FrameworkFacade :: Failed to get
//      FSA instance", {false, ...}.
//   2. the RAID event monitor (FsaRaidMonitor);
//   3. the event listener, then the event process thread (FsaIfEventManager);
//   4. VexFSAInterface::initialize(true, true, 0, 0); no controller found:
//      selective.
ControllerStart startControllerAccess() {
    TkzLogMsg(TKZ_LOG_DEBUG, "FrameworkFacade :: Switching to no controller scenario. ");
    return ControllerStart{true, true};
}

}  // namespace vex::cim::fwf

// The controller start of FrameworkFacade::initialize, kept apart so that the
// controller interface and its background machinery plug in here without
// reshaping the facade.
#ifndef VEX_FRAMEWORK_FACADECONTROLLERSTART_H
#define VEX_FRAMEWORK_FACADECONTROLLERSTART_H

namespace vex::cim::fwf {

class VexFSAInterface;

struct ControllerStart {
    bool serve;      // false: the provider must not serve at all
    bool selective;  // true: no controller found, register only the always-registered classes
};

// Obtains the controller interface (VexFSAInterface), starts the RAID event
// monitor, the event listener and the event process thread, and initialises
// the controller interface so that the object cache holds every controller's
// objects. A listener or processor that fails to start leaves a provider that
// still serves, without change events.
ControllerStart startControllerAccess();

// Stops what startControllerAccess started in the background (the event
// threads and the monitor, through VexFSAInterface::terminate). Called when
// the facade goes away; nothing when nothing was started.
void stopControllerAccess();

// The change-event machinery plugs in here when it is part of the provider
// (it installs itself when the library is loaded). startEvents runs before
// the controllers are read, controllersRead after; stopEvents undoes both.
struct ControllerEventHooks {
    void (*startEvents)(VexFSAInterface& fsa);
    void (*controllersRead)();
    void (*stopEvents)(VexFSAInterface& fsa);
};
void setControllerEventHooks(const ControllerEventHooks& hooks);

}  // namespace vex::cim::fwf

#endif

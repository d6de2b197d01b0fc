// Reads of the controllers a routine needs before it acts (what an
// enclosure tag names, how many drives a controller has, the chunks of a
// drive): one snapshot of the library, taken under the StorLib guard that
// execute holds.
#ifndef VEX_CONTROLLER_ROUTINES_CONTROLLERSNAPSHOT_H
#define VEX_CONTROLLER_ROUTINES_CONTROLLERSNAPSHOT_H

#include <memory>

#include <storlib/Adapter.h>
#include <storlib/StorLib.h>
#include <storlib/SystemConfig.h>

namespace vex::cim::fwf::routine {

// The current snapshot; throws 21 when there is no library handle, null
// when the library cannot be read.
std::shared_ptr<const storlib::SystemConfig> snapshot();

// The controller of a snapshot, or null.
const storlib::Adapter* adapterOf(const storlib::SystemConfig& config, int controller);

// Objects of a class below an object of a snapshot.
template <typename T>
const T* objectAt(const storlib::SystemConfig& config, const storlib::Addr& addr) {
    const storlib::RaidObject* object = config.getObject(addr);
    return object != nullptr ? object->as<T>() : nullptr;
}

}  // namespace vex::cim::fwf::routine

#endif

// The results of every object-cache operation.
#ifndef VEX_CONTROLLER_VEXCACHERESULT_H
#define VEX_CONTROLLER_VEXCACHERESULT_H

namespace vex::cim::fwf {

enum VexCacheResult : unsigned int {
    VEX_CM_SUCCESS = 0,
    VEX_CM_ENTRY_NOT_EXISTS = 1,     // no stored instance matched, or a property to modify is missing
    VEX_CM_ENTRY_ALREADY_EXIST = 2,  // an instance with the same key values is already stored
    VEX_CM_DEVTYPE_NOT_EXIST = 3,    // the repository has no entry for the object type
    VEX_CM_SYSTEM_ERROR = 8          // the repository's lock could not be taken or released
};

}  // namespace vex::cim::fwf

#endif

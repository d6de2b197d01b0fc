// Object references passed to the SMI-S routines: drives as storage extents
// (key "DeviceID" "<c>_<ch>_<d>", or "<c>_<ch>_<d>_Spare" for a spare), pools and volumes (key "InstanceID" or
// "DeviceID" "<c>_<l>"), each checked with the messages clients see.
#ifndef VEX_CONTROLLER_ROUTINES_REFERENCEARGS_H
#define VEX_CONTROLLER_ROUTINES_REFERENCEARGS_H

#include <optional>
#include <vector>

#include "controller/routines/RoutineInput.h"

namespace vex::cim::fwf::routine {

// The references of an argument; logs "User passed "<name>" is Invalid data
// type.Reference is expected" and answers empty when it holds no reference.
std::optional<std::vector<CIMObjectPath>> referencesOf(const CIMMethodParam& in, const char* name);

// The drive a storage extent reference names; logs "Invalid Inextent Passed,
// No DeviceID" when it has no usable key.
std::optional<_pdiskIdf> extentDrive(const CIMObjectPath& extent);
// The logical drive a pool or volume reference names; logs "%s :: ObjectPath
// passed does not contain key %s" when it has none.
std::optional<_vdiskIdf> poolOf(const CIMObjectPath& pool, const char* routine);

}  // namespace vex::cim::fwf::routine

#endif

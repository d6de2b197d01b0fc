// Extrinsic methods of the cached device classes: the method name is the
// name of a controller routine, run through VexFSAInterface::execute.
#ifndef VEX_PROVIDERS_STORAGE_CONTROLLERMETHOD_H
#define VEX_PROVIDERS_STORAGE_CONTROLLERMETHOD_H

#include <string>

#include "framework/CIMMethodParam.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf {

// The routine's return code (0 success; 1 for a name that is no routine);
// 5 when the controller interface cannot be had, 8 when the routine throws.
unsigned int invokeControllerRoutine(const CIMObjectPath& path, const std::string& methodName,
                                     const CIMMethodParam& in, CIMMethodParam& out);

}  // namespace vex::cim::fwf

#endif

// ModifyInstance applied to the controllers: changed controller properties
// (cache type 1, named "CS...") and changed logical drive properties (type 4,
// named "SP..."). The cache itself is refreshed afterwards by the refresh
// event that VexFSAInterface::modifyInstance posts.
#ifndef VEX_CONTROLLER_PROPERTYSETTINGS_H
#define VEX_CONTROLLER_PROPERTYSETTINGS_H

#include <vector>

#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

// The controller named by the "CSName" key.
unsigned int setAdapterProperties(const std::vector<CIMProperty>& keys, const std::vector<CIMProperty>& changes);
// The logical drive named by the "SPInstanceID" key.
unsigned int setLogicalDiskProperties(const std::vector<CIMProperty>& keys,
                                      const std::vector<CIMProperty>& changes);

}  // namespace vex::cim::fwf

#endif

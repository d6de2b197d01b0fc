// The CIM keys each class of the cached family shows in its object paths:
// the key properties of its CIM superclass (CIM_LogicalDevice, CIM_System,
// CIM_PhysicalElement, CIM_Product, CIM_ManagedElement), and for the view
// classes the same keys under the prefix of the class they view.
#ifndef VEX_TESTS_DATAPATH_CLASSKEYS_H
#define VEX_TESTS_DATAPATH_CLASSKEYS_H

#include <set>
#include <string>

namespace vex::datapath {

std::set<std::string> keysOfClass(const std::string& className);

}  // namespace vex::datapath

#endif

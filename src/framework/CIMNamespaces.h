// The two CIM namespaces the provider serves.
#ifndef VEX_FRAMEWORK_CIMNAMESPACES_H
#define VEX_FRAMEWORK_CIMNAMESPACES_H

namespace vex::cim::fwf {

// Where the RAID model lives.
inline constexpr const char* kImplementationNameSpace = "root/tkz/vex/smi_15";
// The object manager's interop namespace: the registered profiles live here.
inline constexpr const char* kInteropNameSpace = "root/PG_InterOp";

}  // namespace vex::cim::fwf

#endif

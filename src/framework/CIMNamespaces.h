// The CIM namespaces the provider serves.
//
// The RAID model lives in the implementation namespace. The registered
// profiles (and the systems the conformance associations reach) live in the
// object manager's interop namespace, whose name depends on the object
// manager: OpenPegasus calls it "root/PG_InterOp", sfcb "root/interop". The
// adapter learns which object manager loaded the provider from its broker
// and sets the name once, before the first request; requests in either
// interop namespace are served alike.
#ifndef VEX_FRAMEWORK_CIMNAMESPACES_H
#define VEX_FRAMEWORK_CIMNAMESPACES_H

#include <string>

namespace vex::cim::fwf {

// Where the RAID model lives.
inline constexpr const char* kImplementationNameSpace = "root/tkz/vex/smi_15";
// OpenPegasus' interop namespace, and the default when the object manager is
// not recognised.
inline constexpr const char* kInteropNameSpace = "root/PG_InterOp";
// sfcb's interop namespace.
inline constexpr const char* kSfcbInteropNameSpace = "root/interop";

// True for either interop namespace name, in any case.
bool isInteropNameSpace(const std::string& nameSpace);

// The interop namespace of the object manager that loaded the provider.
const char* interopNameSpace();

// Chooses the interop namespace from the broker's name: sfcb's broker calls
// itself "RequestHandler" (older builds "sfcb..."); every other broker gets
// "root/PG_InterOp".
void selectInteropNameSpace(const char* brokerName);

// Where an interop object addressed through `requestNameSpace` lives: the
// request's own namespace when it is an interop namespace (as the client
// spelled it), else the object manager's interop namespace.
std::string interopNameSpaceFor(const std::string& requestNameSpace);

}  // namespace vex::cim::fwf

#endif

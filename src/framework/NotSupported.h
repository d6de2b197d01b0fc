// The refusal shared by every plug-in base for an operation its class does not
// offer: CIMException code 7, message "<operation> ::  :: Not supported".
#ifndef VEX_FRAMEWORK_NOTSUPPORTED_H
#define VEX_FRAMEWORK_NOTSUPPORTED_H

namespace vex::cim::fwf {

[[noreturn]] void throwNotSupported(const char* operation);

}  // namespace vex::cim::fwf

#endif

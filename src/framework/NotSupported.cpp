#include "framework/NotSupported.h"

#include "framework/CIMException.h"

namespace vex::cim::fwf {

void throwNotSupported(const char* operation) {
    throw CIMException(CIM_ERR_NOT_SUPPORTED, "%s :: %s", operation, " :: Not supported");
}

}  // namespace vex::cim::fwf

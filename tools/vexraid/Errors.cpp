#include "Errors.h"

namespace vexraid {

std::string rcName(CMPIrc rc) {
    static const char* const kNames[] = {
        "CIM_OK", "CIM_ERR_FAILED", "CIM_ERR_ACCESS_DENIED", "CIM_ERR_INVALID_NAMESPACE",
        "CIM_ERR_INVALID_PARAMETER", "CIM_ERR_INVALID_CLASS", "CIM_ERR_NOT_FOUND",
        "CIM_ERR_NOT_SUPPORTED", "CIM_ERR_CLASS_HAS_CHILDREN", "CIM_ERR_CLASS_HAS_INSTANCES",
        "CIM_ERR_INVALID_SUPERCLASS", "CIM_ERR_ALREADY_EXISTS", "CIM_ERR_NO_SUCH_PROPERTY",
        "CIM_ERR_TYPE_MISMATCH", "CIM_ERR_QUERY_LANGUAGE_NOT_SUPPORTED", "CIM_ERR_INVALID_QUERY",
        "CIM_ERR_METHOD_NOT_AVAILABLE", "CIM_ERR_METHOD_NOT_FOUND"};
    const auto index = static_cast<unsigned>(rc);
    if (index < sizeof kNames / sizeof kNames[0]) {
        return kNames[index];
    }
    return "rc " + std::to_string(static_cast<int>(rc));
}

int exitCodeOf(CMPIrc rc) {
    const int code = static_cast<int>(rc);
    if (code == 0) return 0;
    return code > 0 && code < 256 ? code : 1;
}

}  // namespace vexraid

// Property lists and error codes.
#include "cmpi/CMPIHelper.h"

namespace vex::cim::adap::cmpi {

void CMPIHelper::ConvertChartoStringVector(const char* const* list,
                                           std::vector<std::string>& out) {
    out.clear();
    if (list == nullptr) {
        return;
    }
    for (const char* const* name = list; *name != nullptr; ++name) {
        out.emplace_back(*name);
    }
}

// 2..18 are the CIM status codes that CMPI shares with the framework; the
// framework's own codes (0, 1, 20, 24, ...) have no CMPI meaning.
CMPIrc CMPIHelper::ConvertFrameWorkErrorCodeToCmpiErrorCode(unsigned int code) {
    if (code >= CMPI_RC_ERR_ACCESS_DENIED && code <= CMPI_RC_NO_MORE_ELEMENTS) {
        return static_cast<CMPIrc>(code);
    }
    return CMPI_RC_ERR_FAILED;
}

}  // namespace vex::cim::adap::cmpi

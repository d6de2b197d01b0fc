#include "cmpi/CMPIAdapterMethodResult.h"

#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi::method {

bool isCompletedReturnValue(unsigned int value) {
    switch (value) {
        case 0:
        case 5:
        case 6:
        case 24:
        case 25: return true;
        default: return false;
    }
}

void requireCompleted(unsigned int value) {
    if (!isCompletedReturnValue(value)) {
        TkzLogMsg(TKZ_LOG_ERROR, "InvokeMethod returns error = %d", static_cast<int>(value));
        throw fwf::CIMException(fwf::CIM_ERR_FAILED, " :: Operation Failed");
    }
}

void returnValue(const CMPIResult* result, unsigned int value) {
    CMPIValue data{};
    data.uint32 = value;
    calls::returnData(result, &data, CMPI_uint32);
    calls::returnDone(result);
}

}  // namespace vex::cim::adap::cmpi::method

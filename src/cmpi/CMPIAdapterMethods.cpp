// Extrinsic methods. Only the return values 0, 5, 6, 24 and 25 count as a
// completed call (the method providers give them their meaning); any other
// value fails the request. A failure is answered with its code as the
// method's return value and rc 1 with its message.
#include "cmpi/CMPIAdapter.h"
#include "cmpi/CMPIAdapterAccess.h"
#include "cmpi/CMPIAdapterMethodResult.h"
#include "cmpi/CMPIAdapterSupport.h"
#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"

namespace vex::cim::adap::cmpi {

using fwf::CIMException;

void CMPIAdapter::InvokeMethod(CMPIMethodMI*, const CMPIContext* ctx, const CMPIResult* result,
                               const CMPIObjectPath* ref, const char* methodName,
                               const CMPIArgs* in, CMPIArgs* out, const CMPIBroker* broker,
                               CMPIStatus* status) {
    support::OperationTrace trace("InvokeMethod");
    setContext(ctx);
    TkzLogMsg(TKZ_LOG_INFO, "CMPIAdapter::InvokeMethod:%s", support::text(methodName).c_str());
    if (!access::callerMayChange(*this, ctx, broker, status)) {
        return;
    }
    try {
        CIMObjectPath path;
        CMPIHelper::CMPIObjectPathToFrameworkObjectPath(ref, true, path);
        CIMMethodParam inParams;
        CMPIHelper::CMPIArgsToFrameWorkMethodParam(in, inParams);
        CIMMethodParam outParams;
        unsigned int returnValue =
            support::requireFacade().invokeMethod(path, support::text(methodName), inParams,
                                                  outParams);
        method::requireCompleted(returnValue);
        FormArguments(broker, result, outParams, out, status);
        method::returnValue(result, returnValue);
    } catch (const CIMException& e) {
        method::returnValue(result, e.getErrCode());
        calls::setStatus(status, broker, CMPI_RC_ERR_FAILED, e.getErrMessage().c_str());
    } catch (...) {
        support::setUnknownFailure(broker, status);
    }
}

}  // namespace vex::cim::adap::cmpi

// Entry functions of the method MI.
#include "cmpi/VexCmpiEntries.h"
#include "cmpi/VexCmpiEntry.h"

namespace vex::cim::adap::cmpi {

using entry::isHandle;

CMPIStatus VexCmpiMIMethodCleanup(CMPIMethodMI* mi, const CMPIContext* ctx,
                                  CMPIBoolean terminating) {
    return entry::cleanupEntry({"Entering CMPIMI VexCmpiMIMethodCleanup()",
                                "Exiting CMPIMI VexCmpiMIMethodCleanup()"},
                               mi, ctx, terminating);
}

CMPIStatus VexCmpiMIInvokeMethod(CMPIMethodMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                                 const CMPIObjectPath* ref, const char* method,
                                 const CMPIArgs* in, CMPIArgs* out) {
    bool valid = mi != nullptr && isHandle(ctx) && isHandle(rslt) && isHandle(ref) &&
                 entry::isNonEmpty(method) && isHandle(in) && isHandle(out);
    return entry::serve(
        {"Entering CMPIMI VexCmpiMIInvokeMethod()", "Exiting CMPIMI VexCmpiMIInvokeMethod()"},
        valid, "InvokeMethod",
        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
            adapter.InvokeMethod(mi, ctx, rslt, ref, method, in, out, broker, status);
        });
}

}  // namespace vex::cim::adap::cmpi

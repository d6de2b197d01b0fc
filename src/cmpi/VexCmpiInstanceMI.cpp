// Entry functions of the instance MI. ModifyInstance checks only the MI and
// that a property list is given (a null list, meaning all properties, is
// refused); EnumInstances and GetInstance accept a null property list.
// ExecQuery is not supported: valid arguments are answered with success and
// no result.
#include "cmpi/VexCmpiEntries.h"
#include "cmpi/VexCmpiEntry.h"

namespace vex::cim::adap::cmpi {

using entry::isHandle;
using entry::isNonEmpty;

namespace {

bool isRequestValid(const CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                    const CMPIObjectPath* ref) {
    return mi != nullptr && isHandle(ctx) && isHandle(rslt) && isHandle(ref);
}

}  // namespace

CMPIStatus VexCmpiMICleanup(CMPIInstanceMI* mi, const CMPIContext* ctx, CMPIBoolean terminating) {
    return entry::cleanupEntry(
        {"Entering CMPIMI VexCmpiMICleanup()", "Exiting CMPIMI VexCmpiMICleanup()"}, mi, ctx,
        terminating);
}

CMPIStatus VexCmpiMIEnumInstanceNames(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                      const CMPIResult* rslt, const CMPIObjectPath* ref) {
    return entry::serve({"Entering CMPIMI VexCmpiMIEnumInstanceNames()",
                         "Exiting CMPIMI VexCmpiMIEnumInstanceNames()",
                         "Exiting CMPIMI TkzCmpiMIEnumInstanceNames()"},
                        isRequestValid(mi, ctx, rslt, ref), "EnumInstanceNames",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.EnumInstanceNames(mi, ctx, rslt, ref, broker, status);
                        });
}

CMPIStatus VexCmpiMIEnumInstances(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                  const CMPIResult* rslt, const CMPIObjectPath* ref,
                                  const char** properties) {
    return entry::serve({"Entering CMPIMI VexCmpiMIEnumInstances()",
                         "Exiting CMPIMI VexCmpiMIEnumInstances()"},
                        isRequestValid(mi, ctx, rslt, ref), "EnumInstances",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.EnumInstances(mi, ctx, rslt, ref, properties, broker, status);
                        });
}

CMPIStatus VexCmpiMIGetInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                const CMPIResult* rslt, const CMPIObjectPath* ref,
                                const char** properties) {
    return entry::serve({"Entering CMPIMI VexCmpiMIGetInstance()",
                         "Exiting CMPIMI VexCmpiMIGetInstance()"},
                        isRequestValid(mi, ctx, rslt, ref), "GetInstance",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.GetInstance(mi, ctx, rslt, ref, properties, broker, status);
                        });
}

// Traces the GetInstance entry line, as it always has.
CMPIStatus VexCmpiMICreateInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref,
                                   const CMPIInstance* inst) {
    return entry::serve({"Entering CMPIMI VexCmpiMIGetInstance()",
                         "Exiting CMPIMI VexCmpiMICreateInstance()"},
                        isRequestValid(mi, ctx, rslt, ref) && isHandle(inst), "CreateInstance",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.CreateInstance(mi, ctx, rslt, ref, inst, broker, status);
                        });
}

CMPIStatus VexCmpiMIModifyInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref,
                                   const CMPIInstance* inst, const char** properties) {
    return entry::serve({"Entering CMPIMI VexCmpiMIModifyInstance()",
                         "Exiting CMPIMI VexCmpiMIModifyInstance()"},
                        mi != nullptr && properties != nullptr, "ModifyInstance",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.ModifyInstance(mi, ctx, rslt, ref, inst, properties, broker,
                                                   status);
                        });
}

CMPIStatus VexCmpiMIDeleteInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref) {
    return entry::serve({"Entering CMPIMI VexCmpiMIDeleteInstance()",
                         "Exiting CMPIMI VexCmpiMIDeleteInstance()"},
                        isRequestValid(mi, ctx, rslt, ref), "DeleteInstance",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.DeleteInstance(mi, ctx, rslt, ref, broker, status);
                        });
}

CMPIStatus VexCmpiMIExecQuery(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                              const CMPIObjectPath* ref, const char* query, const char* lang) {
    return entry::answerLocally(
        {"Entering CMPIMI TkzCmpiMIExecQuery()", "Exiting CMPIMI VexCmpiMIExecQuery()"},
        isRequestValid(mi, ctx, rslt, ref) && isNonEmpty(query) && isNonEmpty(lang));
}

}  // namespace vex::cim::adap::cmpi

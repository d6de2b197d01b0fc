// Entry functions of the indication MI. Every filter is authorised and
// polling is never asked for (both answered here); ActivateFilter and
// DeActivateFilter check only the MI, so a request without context still
// reaches the adapter.
#include "cmpi/VexCmpiEntries.h"
#include "cmpi/VexCmpiEntry.h"

namespace vex::cim::adap::cmpi {

using entry::isHandle;
using entry::isNonEmpty;

namespace {

bool isFilterValid(const CMPIIndicationMI* mi, const CMPIContext* ctx,
                   const CMPISelectExp* filter, const char* className,
                   const CMPIObjectPath* classPath) {
    return mi != nullptr && isHandle(ctx) && isHandle(filter) && isNonEmpty(className) &&
           isHandle(classPath);
}

}  // namespace

CMPIStatus VexCmpiMIIndicationCleanup(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                      CMPIBoolean terminating) {
    return entry::cleanupEntry({"Entering CMPIMI VexCmpiMIIndicationCleanup()",
                                "Exiting CMPIMI VexCmpiMIIndicationCleanup()"},
                               mi, ctx, terminating);
}

CMPIStatus VexCmpiMIAuthorizeFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                    const CMPISelectExp* filter, const char* className,
                                    const CMPIObjectPath* classPath, const char* owner) {
    return entry::answerLocally({"Entering CMPIMI VexCmpiMIAuthorizeFilter()",
                                 "Exiting CMPIMI VexCmpiMIAuthorizeFilter()"},
                                isFilterValid(mi, ctx, filter, className, classPath) &&
                                    isNonEmpty(owner));
}

CMPIStatus VexCmpiMIMustPoll(CMPIIndicationMI* mi, const CMPIContext* ctx,
                             const CMPISelectExp* filter, const char* className,
                             const CMPIObjectPath* classPath) {
    return entry::answerLocally(
        {"Entering CMPIMI VexCmpiMIMustPoll()", "Exiting CMPIMI VexCmpiMIMustPoll()"},
        isFilterValid(mi, ctx, filter, className, classPath));
}

CMPIStatus VexCmpiMIActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                   const CMPISelectExp* filter, const char* className,
                                   const CMPIObjectPath* classPath, CMPIBoolean firstActivation) {
    return entry::serve({"Entering CMPIMI VexCmpiMIActivateFilter()",
                         "Exiting CMPIMI VexCmpiMIActivateFilter()", nullptr,
                         "INVALID : Indication MI"},
                        mi != nullptr, "ActivateFilter",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.ActivateFilter(mi, ctx, filter, className, classPath,
                                                   firstActivation, broker, status);
                        });
}

CMPIStatus VexCmpiMIDeActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                     const CMPISelectExp* filter, const char* className,
                                     const CMPIObjectPath* classPath, CMPIBoolean lastActivation) {
    return entry::serve({"Entering CMPIMI VexCmpiMIDeActivateFilter()",
                         "Exiting CMPIMI VexCmpiMIDeActivateFilter()"},
                        mi != nullptr, "DeActivateFilter",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.DeActivateFilter(mi, ctx, filter, className, classPath,
                                                     lastActivation, broker, status);
                        });
}

CMPIStatus VexCmpiMIEnableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx) {
    return entry::serve({"Entering CMPIMI VexCmpiMIEnableIndications()",
                         "Exiting CMPIMI VexCmpiMIEnableIndications()"},
                        mi != nullptr && isHandle(ctx), "EnableIndications",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.EnableIndications(mi, ctx, broker, status);
                        });
}

CMPIStatus VexCmpiMIDisableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx) {
    return entry::serve({"Entering CMPIMI VexCmpiMIDisableIndications()",
                         "Exiting CMPIMI VexCmpiMIDisableIndications()"},
                        mi != nullptr && isHandle(ctx), "DisableIndications",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.DisableIndications(mi, ctx, broker, status);
                        });
}

}  // namespace vex::cim::adap::cmpi

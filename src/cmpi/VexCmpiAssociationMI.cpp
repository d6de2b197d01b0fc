// Entry functions of the association MI. Only AssociatorNames requires the
// association class to be named.
#include "cmpi/VexCmpiEntries.h"
#include "cmpi/VexCmpiEntry.h"

namespace vex::cim::adap::cmpi {

using entry::isHandle;

namespace {

bool isRequestValid(const CMPIAssociationMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                    const CMPIObjectPath* ref) {
    return mi != nullptr && isHandle(ctx) && isHandle(rslt) && isHandle(ref);
}

}  // namespace

CMPIStatus VexCmpiMIAssociationCleanup(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                       CMPIBoolean terminating) {
    return entry::cleanupEntry({"Entering CMPIMI VexCmpiMIAssociationCleanup()",
                                "Exiting CMPIMI VexCmpiMIAssociationCleanup()"},
                               mi, ctx, terminating);
}

CMPIStatus VexCmpiMIAssociators(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                const CMPIResult* rslt, const CMPIObjectPath* ref,
                                const char* assocClass, const char* resultClass,
                                const char* role, const char* resultRole,
                                const char** properties) {
    return entry::serve(
        {"Entering CMPIMI VexCmpiMIAssociators()", "Exiting CMPIMI VexCmpiMIAssociators()"},
        isRequestValid(mi, ctx, rslt, ref), "Associators",
        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
            adapter.Associators(mi, ctx, rslt, ref, assocClass, resultClass, role, resultRole,
                                properties, broker, status);
        });
}

CMPIStatus VexCmpiMIAssociatorNames(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                    const CMPIResult* rslt, const CMPIObjectPath* ref,
                                    const char* assocClass, const char* resultClass,
                                    const char* role, const char* resultRole) {
    return entry::serve({"Entering CMPIMI VexCmpiMIAssociatorNames()",
                         "Exiting CMPIMI VexCmpiMIAssociatorNames()"},
                        isRequestValid(mi, ctx, rslt, ref) && entry::isNonEmpty(assocClass),
                        "AssociatorNames",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.AssociatorNames(mi, ctx, rslt, ref, assocClass, resultClass,
                                                    role, resultRole, broker, status);
                        });
}

CMPIStatus VexCmpiMIReferences(CMPIAssociationMI* mi, const CMPIContext* ctx,
                               const CMPIResult* rslt, const CMPIObjectPath* ref,
                               const char* resultClass, const char* role,
                               const char** properties) {
    return entry::serve(
        {"Entering CMPIMI VexCmpiMIReferences()", "Exiting CMPIMI VexCmpiMIReferences()"},
        isRequestValid(mi, ctx, rslt, ref), "References",
        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
            adapter.References(mi, ctx, rslt, ref, resultClass, role, properties, broker, status);
        });
}

CMPIStatus VexCmpiMIReferenceNames(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref,
                                   const char* resultClass, const char* role) {
    return entry::serve({"Entering CMPIMI VexCmpiMIReferenceNames()",
                         "Exiting CMPIMI VexCmpiMIReferenceNames()"},
                        isRequestValid(mi, ctx, rslt, ref), "ReferenceNames",
                        [&](CMPIAdapter& adapter, const CMPIBroker* broker, CMPIStatus* status) {
                            adapter.ReferenceNames(mi, ctx, rslt, ref, resultClass, role, broker,
                                                   status);
                        });
}

}  // namespace vex::cim::adap::cmpi

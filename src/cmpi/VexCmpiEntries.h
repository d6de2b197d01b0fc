// The CMPI entry functions of the four MI tables. Each checks its arguments,
// hands the request to the adapter and returns the status the adapter left;
// none of them touches a CIM object itself.
#ifndef VEX_CMPI_VEXCMPIENTRIES_H
#define VEX_CMPI_VEXCMPIENTRIES_H

#include <cmpidt.h>
#include <cmpift.h>

namespace vex::cim::adap::cmpi {

// ---- instance MI ----------------------------------------------------------------
CMPIStatus VexCmpiMICleanup(CMPIInstanceMI* mi, const CMPIContext* ctx, CMPIBoolean terminating);
CMPIStatus VexCmpiMIEnumInstanceNames(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                      const CMPIResult* rslt, const CMPIObjectPath* ref);
CMPIStatus VexCmpiMIEnumInstances(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                  const CMPIResult* rslt, const CMPIObjectPath* ref,
                                  const char** properties);
CMPIStatus VexCmpiMIGetInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                const CMPIResult* rslt, const CMPIObjectPath* ref,
                                const char** properties);
CMPIStatus VexCmpiMICreateInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref,
                                   const CMPIInstance* inst);
CMPIStatus VexCmpiMIModifyInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref,
                                   const CMPIInstance* inst, const char** properties);
CMPIStatus VexCmpiMIDeleteInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref);
CMPIStatus VexCmpiMIExecQuery(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                              const CMPIObjectPath* ref, const char* query, const char* lang);

// ---- association MI -------------------------------------------------------------
CMPIStatus VexCmpiMIAssociationCleanup(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                       CMPIBoolean terminating);
CMPIStatus VexCmpiMIAssociators(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                const CMPIResult* rslt, const CMPIObjectPath* ref,
                                const char* assocClass, const char* resultClass,
                                const char* role, const char* resultRole,
                                const char** properties);
CMPIStatus VexCmpiMIAssociatorNames(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                    const CMPIResult* rslt, const CMPIObjectPath* ref,
                                    const char* assocClass, const char* resultClass,
                                    const char* role, const char* resultRole);
CMPIStatus VexCmpiMIReferences(CMPIAssociationMI* mi, const CMPIContext* ctx,
                               const CMPIResult* rslt, const CMPIObjectPath* ref,
                               const char* resultClass, const char* role,
                               const char** properties);
CMPIStatus VexCmpiMIReferenceNames(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* ref,
                                   const char* resultClass, const char* role);

// ---- method MI ------------------------------------------------------------------
CMPIStatus VexCmpiMIMethodCleanup(CMPIMethodMI* mi, const CMPIContext* ctx,
                                  CMPIBoolean terminating);
CMPIStatus VexCmpiMIInvokeMethod(CMPIMethodMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                                 const CMPIObjectPath* ref, const char* method,
                                 const CMPIArgs* in, CMPIArgs* out);

// ---- indication MI --------------------------------------------------------------
CMPIStatus VexCmpiMIIndicationCleanup(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                      CMPIBoolean terminating);
CMPIStatus VexCmpiMIAuthorizeFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                    const CMPISelectExp* filter, const char* className,
                                    const CMPIObjectPath* classPath, const char* owner);
CMPIStatus VexCmpiMIMustPoll(CMPIIndicationMI* mi, const CMPIContext* ctx,
                             const CMPISelectExp* filter, const char* className,
                             const CMPIObjectPath* classPath);
CMPIStatus VexCmpiMIActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                   const CMPISelectExp* filter, const char* className,
                                   const CMPIObjectPath* classPath, CMPIBoolean firstActivation);
CMPIStatus VexCmpiMIDeActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                     const CMPISelectExp* filter, const char* className,
                                     const CMPIObjectPath* classPath, CMPIBoolean lastActivation);
CMPIStatus VexCmpiMIEnableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx);
CMPIStatus VexCmpiMIDisableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx);

}  // namespace vex::cim::adap::cmpi

#endif

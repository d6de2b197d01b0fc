// The four MI function tables and the factories the object manager looks up
// by name. Every factory remembers the broker and context, counts itself in
// (the first one initialises the provider) and returns its static MI, whose
// handle is null. The status argument of a CMPI 2.0 factory is neither read
// nor written: a factory never fails.
//
// The indication MI's name starts with a capital letter, the other three do
// not; object manager registrations know them by exactly these names.
#include <cmpidt.h>
#include <cmpift.h>
#include <cmpios.h>

#include "cmpi/VexCmpiEntries.h"
#include "cmpi/VexCmpiModule.h"

namespace vex::cim::adap::cmpi {
namespace {

CMPIInstanceMIFT instMIFT__ = {
    CMPICurrentVersion,          CMPICurrentVersion,     "instancevexRAIDProvider15",
    VexCmpiMICleanup,            VexCmpiMIEnumInstanceNames,
    VexCmpiMIEnumInstances,      VexCmpiMIGetInstance,
    VexCmpiMICreateInstance,     VexCmpiMIModifyInstance,
    VexCmpiMIDeleteInstance,     VexCmpiMIExecQuery,
};

CMPIAssociationMIFT assocMIFT__ = {
    CMPICurrentVersion,          CMPICurrentVersion,     "associationvexRAIDProvider15",
    VexCmpiMIAssociationCleanup, VexCmpiMIAssociators,   VexCmpiMIAssociatorNames,
    VexCmpiMIReferences,         VexCmpiMIReferenceNames,
};

CMPIMethodMIFT methMIFT__ = {
    CMPICurrentVersion,          CMPICurrentVersion,     "methodvexRAIDProvider15",
    VexCmpiMIMethodCleanup,      VexCmpiMIInvokeMethod,
};

CMPIIndicationMIFT indMIFT__ = {
    CMPICurrentVersion,          CMPICurrentVersion,     "IndicationvexRAIDProvider15",
    VexCmpiMIIndicationCleanup,  VexCmpiMIAuthorizeFilter,
    VexCmpiMIMustPoll,           VexCmpiMIActivateFilter,
    VexCmpiMIDeActivateFilter,   VexCmpiMIEnableIndications,
    VexCmpiMIDisableIndications,
};

CMPIInstanceMI instMI = {nullptr, &instMIFT__};
CMPIAssociationMI assocMI = {nullptr, &assocMIFT__};
CMPIMethodMI methMI = {nullptr, &methMIFT__};
CMPIIndicationMI indMI = {nullptr, &indMIFT__};

template <typename MI>
MI* create(const CMPIBroker* broker, const CMPIContext* ctx, MI& mi) {
    g_Broker.store(broker);
    g_Context.store(ctx);
    VexInitialize();
    return &mi;
}

}  // namespace
}  // namespace vex::cim::adap::cmpi

using namespace vex::cim::adap::cmpi;

static_assert(CMPICurrentVersion == 200, "the MI tables are CMPI 2.0 tables");

CMPI_EXTERN_C CMPIInstanceMI* vexRAIDProvider15_Create_InstanceMI(const CMPIBroker* broker,
                                                                  const CMPIContext* ctx,
                                                                  CMPIStatus* /*rc*/) {
    return create(broker, ctx, instMI);
}

CMPI_EXTERN_C CMPIAssociationMI* vexRAIDProvider15_Create_AssociationMI(const CMPIBroker* broker,
                                                                        const CMPIContext* ctx,
                                                                        CMPIStatus* /*rc*/) {
    return create(broker, ctx, assocMI);
}

CMPI_EXTERN_C CMPIMethodMI* vexRAIDProvider15_Create_MethodMI(const CMPIBroker* broker,
                                                              const CMPIContext* ctx,
                                                              CMPIStatus* /*rc*/) {
    return create(broker, ctx, methMI);
}

CMPI_EXTERN_C CMPIIndicationMI* vexRAIDProvider15_Create_IndicationMI(const CMPIBroker* broker,
                                                                      const CMPIContext* ctx,
                                                                      CMPIStatus* /*rc*/) {
    return create(broker, ctx, indMI);
}

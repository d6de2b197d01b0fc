// Intrinsic instance operations. Instances are created and deleted through
// the extrinsic methods of the configuration services, not here: Create- and
// DeleteInstance validate the request path and the facade and change nothing.
#include <string>
#include <vector>

#include "cmpi/CMPIAdapter.h"
#include "cmpi/CMPIAdapterAccess.h"
#include "cmpi/CMPIAdapterSupport.h"
#include "cmpi/CMPIHelper.h"

namespace vex::cim::adap::cmpi {

using support::guarded;
using support::logClassName;
using support::servedPath;
using support::requireFacade;

void CMPIAdapter::EnumInstanceNames(CMPIInstanceMI*, const CMPIContext* ctx,
                                    const CMPIResult* result, const CMPIObjectPath* ref,
                                    const CMPIBroker* broker, CMPIStatus* status) {
    support::OperationTrace trace("EnumInstanceNames");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath path = servedPath(ref, false);
        logClassName("EnumInstanceNames", path);
        std::vector<CIMObjectPath> paths;
        requireFacade().enumerateInstanceNames(path, paths);
        ReturnObjectPaths(broker, result, paths, status);
    });
}

void CMPIAdapter::EnumInstances(CMPIInstanceMI*, const CMPIContext* ctx, const CMPIResult* result,
                                const CMPIObjectPath* ref, const char** properties,
                                const CMPIBroker* broker, CMPIStatus* status) {
    support::OperationTrace trace("EnumInstances");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath path = servedPath(ref, false);
        logClassName("EnumInstances", path);
        std::vector<CIMInstance> instances;
        requireFacade().enumerateInstances(path, instances);
        ReturnInstances(broker, result, properties, instances, status);
    });
}

void CMPIAdapter::GetInstance(CMPIInstanceMI*, const CMPIContext* ctx, const CMPIResult* result,
                              const CMPIObjectPath* ref, const char** properties,
                              const CMPIBroker* broker, CMPIStatus* status) {
    support::OperationTrace trace("GetInstance");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath path = servedPath(ref, true);
        logClassName("GetInstance", path);
        std::vector<CIMInstance> instances;
        requireFacade().getCIMInstance(path, instances);
        ReturnInstances(broker, result, properties, instances, status);
    });
}

void CMPIAdapter::CreateInstance(CMPIInstanceMI*, const CMPIContext* ctx,
                                 const CMPIResult* result, const CMPIObjectPath* ref,
                                 const CMPIInstance*, const CMPIBroker* broker,
                                 CMPIStatus* status) {
    support::OperationTrace trace("CreateInstance");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath path = servedPath(ref, false);
        logClassName("CreateInstance", path);
        requireFacade();
        std::vector<CIMInstance> none;
        ReturnInstances(broker, result, nullptr, none, status);
    });
}

void CMPIAdapter::ModifyInstance(CMPIInstanceMI*, const CMPIContext* ctx, const CMPIResult*,
                                 const CMPIObjectPath* ref, const CMPIInstance* instance,
                                 const char** properties, const CMPIBroker* broker,
                                 CMPIStatus* status) {
    support::OperationTrace trace("ModifyInstance");
    setContext(ctx);
    if (!access::callerMayChange(*this, ctx, broker, status)) {
        return;
    }
    guarded(broker, status, [&] {
        CIMObjectPath path = servedPath(ref, true);
        logClassName("ModifyInstance", path);
        fwf::FrameworkFacade& facade = requireFacade();
        CIMObjectPath instancePath;
        CIMInstance newValues;
        CMPIHelper::CMPIInstanceToFrameworkInstance(instance, instancePath, newValues);
        std::vector<std::string> names;
        CMPIHelper::ConvertChartoStringVector(properties, names);
        facade.modifyInstance(path, newValues, names);
    });
}

void CMPIAdapter::DeleteInstance(CMPIInstanceMI*, const CMPIContext* ctx, const CMPIResult*,
                                 const CMPIObjectPath* ref, const CMPIBroker* broker,
                                 CMPIStatus* status) {
    support::OperationTrace trace("DeleteInstance");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath path = servedPath(ref, true);
        logClassName("DeleteInstance", path);
        requireFacade();
    });
}

}  // namespace vex::cim::adap::cmpi

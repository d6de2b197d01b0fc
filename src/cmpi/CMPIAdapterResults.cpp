// Handing framework results to the object manager. A result that cannot be
// converted fails the whole request (thrown to the operation's handler).
#include "cmpi/CMPIAdapter.h"
#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"

namespace vex::cim::adap::cmpi {

using fwf::CIMException;

void CMPIAdapter::ReturnInstances(const CMPIBroker* broker, const CMPIResult* result,
                                  const char** properties, std::vector<CIMInstance>& instances,
                                  CMPIStatus*) {
    InstanceFactory factory(broker);
    for (const CIMInstance& instance : instances) {
        InstanceHandle ci = CMPIHelper::FrameworkInstanceToCMPIInstance(instance, broker, properties, factory);
        if (!ci) {
            TkzLogMsg(TKZ_LOG_ERROR, "Failed to convert CIM Instance to CMPI Instance");
            throw CIMException(fwf::CIM_ERR_ADAPTER_FAILURE,
                               "Failed to convert CIM Instance to CMPI Instance");
        }
        calls::returnInstance(result, ci.get());
    }
    calls::returnDone(result);
}

void CMPIAdapter::ReturnObjectPaths(const CMPIBroker* broker, const CMPIResult* result,
                                    std::vector<CIMObjectPath>& paths, CMPIStatus*) {
    for (const CIMObjectPath& path : paths) {
        CMPIObjectPath* op = CMPIHelper::FrameworkObjectPathToCMPIObjectPath(path, broker);
        if (op == nullptr) {
            TkzLogMsg(TKZ_LOG_ERROR, "Failed to convert CIM ObjectPath to CMPI ObjectPath");
            throw CIMException(fwf::CIM_ERR_ADAPTER_FAILURE,
                               "Failed to convert CIM ObjectPath to CMPI ObjectPath");
        }
        calls::returnObjectPath(result, op);
    }
    calls::returnDone(result);
}

// The code is 1, not 24: a method's failure code also becomes its return
// value, and 24 is a return value with a meaning of its own.
void CMPIAdapter::FormArguments(const CMPIBroker* broker, const CMPIResult*,
                                CIMMethodParam& outParams, CMPIArgs* outArgs, CMPIStatus*) {
    if (!CMPIHelper::FrameworkArgumentsToCMPIArguments(outParams, outArgs, broker)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to convert CIM Arguments to CMPI Arguments");
        throw CIMException(fwf::CIM_ERR_FAILED, "Failed to convert CIM Arguments to CMPI Arguments");
    }
}

}  // namespace vex::cim::adap::cmpi

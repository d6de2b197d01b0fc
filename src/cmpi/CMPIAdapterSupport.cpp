#include "cmpi/CMPIAdapterSupport.h"

#include "framework/CIMNamespaces.h"
#include "framework/CommonFunctions.h"

#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi::support {

OperationTrace::OperationTrace(const char* operation) : m_operation(operation) {
    TkzTrace(("Entering CMPIAdapter::" + m_operation).c_str());
}

OperationTrace::~OperationTrace() { TkzTrace(("Exiting CMPIAdapter::" + m_operation).c_str()); }

fwf::CIMObjectPath requestPath(const CMPIObjectPath* ref, bool withKeys) {
    fwf::CIMObjectPath path;
    CMPIHelper::CMPIObjectPathToFrameworkObjectPath(ref, withKeys, path);
    if (path.getClassName().empty()) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to convert CMPI ObjectPath to CIM ObjectPath");
        throw fwf::CIMException(fwf::CIM_ERR_ADAPTER_FAILURE,
                                "Failed to convert CMPI ObjectPath to CIM ObjectPath");
    }
    const std::string& nameSpace = path.getNameSpace();
    if (!fwf::CommonFunctions::equalsIgnoreCase(nameSpace, fwf::kImplementationNameSpace) &&
        !fwf::isInteropNameSpace(nameSpace)) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: namespace %s is not served", "requestPath",
                  nameSpace.c_str());
        throw fwf::CIMException(fwf::CIM_ERR_INVALID_NAMESPACE, " :: Invalid namespace");
    }
    return path;
}

fwf::CIMObjectPath servedPath(const CMPIObjectPath* ref, bool withKeys) {
    fwf::CIMObjectPath path = requestPath(ref, withKeys);
    if (!requireFacade().isServedIn(path.getClassName(), path.getNameSpace())) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: class %s is not served in %s", "servedPath",
                  path.getClassName().c_str(), path.getNameSpace().c_str());
        throw fwf::CIMException(fwf::CIM_ERR_INVALID_CLASS, " :: Invalid class");
    }
    return path;
}

void logClassName(const char* operation, const fwf::CIMObjectPath& path) {
    TkzLogMsg(TKZ_LOG_INFO, "CMPIAdapter::%s ClassName:%s", operation,
              path.getClassName().c_str());
}

fwf::FrameworkFacade& requireFacade() {
    fwf::FrameworkFacade* facade = fwf::FrameworkFacade::getInstance();
    if (facade == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to create FrameworkFacade instance");
        throw fwf::CIMException(fwf::CIM_ERR_ADAPTER_FAILURE,
                                "Failed to Create FrameworkFacade Instance");
    }
    return *facade;
}

void setFailure(const fwf::CIMException& e, const CMPIBroker* broker, CMPIStatus* status) {
    calls::setStatus(status, broker,
                     CMPIHelper::ConvertFrameWorkErrorCodeToCmpiErrorCode(e.getErrCode()),
                     e.getErrMessage().c_str());
}

void setUnknownFailure(const CMPIBroker* broker, CMPIStatus* status) {
    calls::setStatus(status, broker, CMPI_RC_ERR_FAILED, "Failed : Unknown Error");
}

}  // namespace vex::cim::adap::cmpi::support

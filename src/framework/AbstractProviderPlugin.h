// AbstractProviderPlugin: the root of every plug-in. One plug-in object serves
// one CIM class; the facade reaches it only through this interface. Failures
// leave as CIMException; only invokeMethod returns a number, the CIM method's
// return value.
//
// The virtual operations are declared in their fixed slot order.
#ifndef VEX_FRAMEWORK_ABSTRACTPROVIDERPLUGIN_H
#define VEX_FRAMEWORK_ABSTRACTPROVIDERPLUGIN_H

#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMMethodParam.h"
#include "framework/CIMObjectPath.h"
#include "framework/CompletedJob.h"

namespace vex::cim::fwf {

// Return value of invokeMethod for a method the class does not offer.
inline constexpr unsigned int CIM_METHOD_NOT_SUPPORTED = 7;

class AbstractProviderPlugin {
public:
    virtual ~AbstractProviderPlugin() = default;

    // The instance the path names (keys included); an empty `out` when none.
    virtual void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) = 0;
    // Every instance of the class of `classPath`. The flag is passed through
    // from the adapter; the bases do not use it.
    virtual void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                                    bool flag) = 0;
    virtual void enumerateInstanceNames(CIMObjectPath& classPath,
                                        std::vector<CIMObjectPath>& out) = 0;
    virtual void modifyInstance(CIMObjectPath& path, CIMInstance& newValues,
                                std::vector<std::string>& propertyList) = 0;
    virtual void createInstance(CIMObjectPath& path, CIMInstance& instance) = 0;
    virtual void deleteInstance(const CIMObjectPath& path) = 0;

    // Association operations; only association plug-ins answer them.
    virtual void associators(CIMObjectPath& source, std::string& assocClass,
                             std::vector<CIMInstance>& out, std::string& resultClass,
                             std::string& role, std::string& resultRole,
                             const char** propertyList) = 0;
    virtual void associatorNames(CIMObjectPath& source, std::string& assocClass,
                                 std::vector<CIMObjectPath>& out, std::string& resultClass,
                                 std::string& role, std::string& resultRole) = 0;
    virtual void references(CIMObjectPath& source, const std::string& resultClass,
                            std::vector<CIMInstance>& out, const std::string& role) = 0;
    virtual void referencesNames(CIMObjectPath& source, const std::string& resultClass,
                                 const std::string& role, std::vector<CIMObjectPath>& out) = 0;

    // Runs an extrinsic method; the result is the CIM method's return value
    // (7: not supported).
    virtual unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                                      const CIMMethodParam& in, CIMMethodParam& out) = 0;

    // The completed-job record store; only the completed-job plug-in keeps one.
    virtual void pushCompletedJobObject(_CompletedJob job) = 0;
    virtual void popCompletedJobObject(std::string jobId) = 0;
};

}  // namespace vex::cim::fwf

#endif

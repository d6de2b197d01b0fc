// AbstractInstanceProviderPlugin: instance operations built on three hooks.
// getRepositoryObjects supplies the source instances for a request (all of
// them for a class path, only the one named for an instance path); the two
// attribute hooks pick the key and the non-key properties of each source
// instance. Every other operation refuses with code 7, and invokeMethod
// answers 7 without throwing.
#ifndef VEX_FRAMEWORK_ABSTRACTINSTANCEPROVIDERPLUGIN_H
#define VEX_FRAMEWORK_ABSTRACTINSTANCEPROVIDERPLUGIN_H

#include <string>
#include <vector>

#include "framework/AbstractProviderPlugin.h"

namespace vex::cim::fwf {

class AbstractInstanceProviderPlugin : public virtual AbstractProviderPlugin {
public:
    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) override;
    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;
    void enumerateInstanceNames(CIMObjectPath& classPath,
                                std::vector<CIMObjectPath>& out) override;
    void modifyInstance(CIMObjectPath& path, CIMInstance& newValues,
                        std::vector<std::string>& propertyList) override;
    void createInstance(CIMObjectPath& path, CIMInstance& instance) override;
    void deleteInstance(const CIMObjectPath& path) override;
    void associators(CIMObjectPath& source, std::string& assocClass,
                     std::vector<CIMInstance>& out, std::string& resultClass, std::string& role,
                     std::string& resultRole, const char** propertyList) override;
    void associatorNames(CIMObjectPath& source, std::string& assocClass,
                         std::vector<CIMObjectPath>& out, std::string& resultClass,
                         std::string& role, std::string& resultRole) override;
    void references(CIMObjectPath& source, const std::string& resultClass,
                    std::vector<CIMInstance>& out, const std::string& role) override;
    void referencesNames(CIMObjectPath& source, const std::string& resultClass,
                         const std::string& role, std::vector<CIMObjectPath>& out) override;
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                              const CIMMethodParam& in, CIMMethodParam& out) override;
    void pushCompletedJobObject(_CompletedJob job) override;
    void popCompletedJobObject(std::string jobId) override;

    // The three hooks every instance plug-in supplies.
    virtual void getKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& keys) = 0;
    virtual void getNonKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& others) = 0;
    virtual void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) = 0;
};

}  // namespace vex::cim::fwf

#endif

// AbstractCachedInstanceProviderPlugin: the base of every plug-in whose
// instances are read from the object cache (VexCacheManager).
//
// A concrete plug-in names three things and the base does the rest: the cache
// object type that holds its data (getViewClass, an object type despite the
// name), the prefix under which its class's properties are stored inside
// those cache instances (getClassPrefix; empty when the cache instance is the
// class's own instance) and the CIM class it reports (getConcreteClassName).
//
// Get, enumerate and enumerate-names are answered from the cache alone;
// modify goes to the controller interface (VexFSAInterface); a change
// notification from the event machinery becomes a CIM life-cycle indication
// sent through the framework facade. Everything else keeps the refusals of
// the instance base. The base holds no data; the only process-wide state is
// bFirstJobQuery.
#ifndef VEX_FRAMEWORK_ABSTRACTCACHEDINSTANCEPROVIDERPLUGIN_H
#define VEX_FRAMEWORK_ABSTRACTCACHEDINSTANCEPROVIDERPLUGIN_H

#include <atomic>
#include <string>
#include <vector>

#include "framework/AbstractEventProviderPlugin.h"
#include "framework/AbstractInstanceProviderPlugin.h"
#include "framework/VexObjectType.h"

namespace vex::cim::fwf {

class AbstractCachedInstanceProviderPlugin : public AbstractEventProviderPlugin,
                                             public virtual AbstractInstanceProviderPlugin {
public:
    // Set by the first enumeration of the job class (object type 12) and never
    // cleared: a management client is watching jobs.
    static std::atomic<bool> bFirstJobQuery;

    // Sends the life-cycle indication of this class for one cache change:
    // keys are the changed object's key properties as the event names them,
    // changed its changed properties.
    void EventNotify(_eVEXObjectType objectType, _eVEXEventType eventType, std::string timeStamp,
                     std::vector<CIMProperty>& keys, std::vector<CIMProperty>& changed) override;
    ~AbstractCachedInstanceProviderPlugin() override = default;

    // The cache already holds complete instances: the three hooks of the
    // instance base are not used and do nothing.
    void getKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& keys) override;
    void getNonKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& others) override;
    void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) override;

    // The cache object type that carries this class.
    virtual _eVEXObjectType getViewClass() = 0;
    // The property-name prefix of this class inside those cache instances.
    virtual std::string getClassPrefix() = 0;

    // Exactly one instance for the keys of `path`; none: an empty `out` and
    // no exception; several: code 20.
    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) override;
    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;
    void enumerateInstanceNames(CIMObjectPath& classPath,
                                std::vector<CIMObjectPath>& out) override;
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

    // The keys of a request path as the cache stores them (under the
    // prefix), into `keys`; 0 when nothing was translated. Here: a trace line
    // and nothing else.
    virtual int getViewClassKeys(CIMObjectPath& path, std::vector<CIMProperty>& keys);

    // Hands the changed properties to the controller interface under the
    // names the cache stores them by. Code 7 for a class whose object type
    // the controller interface does not write back; code 1 "Modify Instance
    // Failed" when the controller refuses.
    void modifyInstance(CIMObjectPath& path, CIMInstance& newValues,
                        std::vector<std::string>& propertyList) override;
    void createInstance(CIMObjectPath& path, CIMInstance& instance) override;
    void deleteInstance(const CIMObjectPath& path) override;

    // The keys of this class for the key properties of a change event; 0 on
    // success. Here: a trace line, and the event keys pass through as they
    // are.
    virtual int getKeysFromEventKeys(std::vector<CIMProperty>& eventKeys,
                                     std::vector<CIMProperty>& classKeys);

    // The CIM class named as source of this plug-in's indications; empty
    // here, which stops every indication with a log line.
    virtual std::string getConcreteClassName();

protected:
    // The answer of a get from the instances found for `path`: exactly one
    // gets the request's address and goes to `out`; none is logged and gives
    // nothing; several fail with code 20.
    static void answerGet(CIMObjectPath& path, std::vector<CIMInstance>& found,
                          std::vector<CIMInstance>& out);

    // Builds and delivers the "CIM_InstCreation", "CIM_InstDeletion" or
    // "CIM_InstModification" indication of one change (everything of
    // EventNotify after its first log line).
    void sendLifecycleIndication(_eVEXEventType eventType, std::vector<CIMProperty>& eventKeys);
};

}  // namespace vex::cim::fwf

#endif

// FrameworkFacade: the single entry of the CMPI adapter into the framework.
// initialize starts the controller access and its background machinery once
// and builds the plug-in registry; every CIM operation is then forwarded to
// the plug-in of the class it names. A CIMException from a plug-in is logged
// and thrown on to the adapter.
//
// It also holds the adapter's indication callback: notify hands an indication
// instance to it (from the event threads).
#ifndef VEX_FRAMEWORK_FRAMEWORKFACADE_H
#define VEX_FRAMEWORK_FRAMEWORKFACADE_H

#include <atomic>
#include <mutex>
#include <string>
#include <vector>

#include "framework/AbstractProviderPlugin.h"

namespace vex::cim::fwf {

class FrameworkFacade {
public:
    using IndicationCallback = bool (*)(CIMInstance&);

    // The singleton, made on first call; null when it cannot be allocated.
    static FrameworkFacade* getInstance();
    // Deleting the facade forgets the singleton; the next getInstance makes a
    // new one. The plug-in registry is not touched.
    ~FrameworkFacade();
    FrameworkFacade(const FrameworkFacade&) = delete;
    FrameworkFacade& operator=(const FrameworkFacade&) = delete;

    // Starts the controller access and builds the registry (selectively when
    // no controller is present). True when the provider may serve.
    bool initialize();

    // The plug-in of a CIM class (any case), or null.
    AbstractProviderPlugin* getPlugIn(const std::string& className);
    // A registered class in its proper spelling ("VEX_MediaPresent" for
    // "vex_mediapresent"); the name as given when it is not registered.
    std::string getClassName(const std::string& className);
    // Whether the class is served in the namespace (PluginsManager::isServedIn).
    bool isServedIn(const std::string& className, const std::string& nameSpace);
    // The registered class names to announce for one namespace (see
    // PluginsManager::getPluginNames). False when there is no registry.
    bool getAllPluginNames(std::vector<std::string>& names, std::string nameSpace);

    // Forwarding of the CIM operations. The plug-in is the one of the class of
    // the request path, except: associators/associatorsNames use the plug-in
    // of `assocClass`, references/referencesNames the one of `resultClass`
    // (for these two operations the result class names the association).
    // A class without a plug-in fails with code 5.
    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out);
    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag = false);
    void enumerateInstanceNames(CIMObjectPath& classPath, std::vector<CIMObjectPath>& out);
    void createInstance(CIMObjectPath& path, CIMInstance& instance);
    void modifyInstance(CIMObjectPath& path, CIMInstance& newValues,
                        std::vector<std::string>& propertyList);
    void deleteInstance(const CIMObjectPath& path);
    void associators(CIMObjectPath& source, std::string& assocClass,
                     std::vector<CIMInstance>& out, std::string& resultClass, std::string& role,
                     std::string& resultRole, const char** propertyList);
    void associatorsNames(CIMObjectPath& source, std::string& assocClass,
                          std::vector<CIMObjectPath>& out, std::string& resultClass,
                          std::string& role, std::string& resultRole);
    void references(CIMObjectPath& source, const std::string& resultClass,
                    std::vector<CIMInstance>& out, const std::string& role);
    void referencesNames(CIMObjectPath& source, const std::string& resultClass,
                         const std::string& role, std::vector<CIMObjectPath>& out);
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                              const CIMMethodParam& in, CIMMethodParam& out);

    // The two END CLASS names of an association class (getAntecedent() and
    // getDependent() of its plug-in): the adapter's association-class lookup
    // compares the source class with them. Either may be a comma list of
    // class names. False (outputs untouched) when `className` is not a
    // registered association.
    bool getAntecedentAndDependentNames(std::string className, std::string& antecedent,
                                        std::string& dependent);

    // Indication delivery to the adapter. registerForEvent refuses a null
    // callback; notify answers false while none is registered.
    bool registerForEvent(IndicationCallback callback);
    void deRegisterForEvent();
    bool notify(CIMInstance instance);

private:
    friend struct FrameworkFacadeCleanUp;
    FrameworkFacade();

    // Plug-in of `className` for operation `operation`; throws code 1 without
    // a registry and code 5 without a plug-in.
    AbstractProviderPlugin& pluginFor(const char* operation, const std::string& className);

    std::atomic<IndicationCallback> m_callback{nullptr};

    static FrameworkFacade* m_ins;
    static std::mutex m_insMutex;
};

}  // namespace vex::cim::fwf

#endif

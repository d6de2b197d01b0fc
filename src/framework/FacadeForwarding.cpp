// FrameworkFacade: one forwarding operation per CIM operation. Each finds the
// plug-in of the class it names and calls the plug-in's operation of the same
// name; a CIMException on the way is logged and thrown on to the adapter.
#include <string>
#include <type_traits>

#include "framework/CIMException.h"
#include "framework/FrameworkFacade.h"
#include "framework/PluginsManager.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

void traceOperation(const char* direction, const char* operation) {
    const std::string text = std::string(direction) + " FrameworkFacade " + operation + "()";
    TkzTrace(text.c_str());
}

// Runs `call` between the facade's entry and exit traces of `operation`.
template <typename Call>
auto forward(const char* operation, Call&& call) {
    traceOperation("Entering", operation);
    try {
        if constexpr (std::is_void_v<decltype(call())>) {
            call();
            traceOperation("Exiting", operation);
        } else {
            auto result = call();
            traceOperation("Exiting", operation);
            return result;
        }
    } catch (const CIMException& e) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s", operation, e.getErrMessage().c_str());
        throw;
    }
}

}  // namespace

AbstractProviderPlugin& FrameworkFacade::pluginFor(const char* operation,
                                                   const std::string& className) {
    if (PluginsManager::getInstance() == nullptr) {
        throw CIMException(CIM_ERR_FAILED, "%s :: Failed to retrieve PluginManager handle.",
                           operation);
    }
    AbstractProviderPlugin* plugin = getPlugIn(className);
    if (plugin == nullptr) {
        throw CIMException(CIM_ERR_INVALID_CLASS, "%s :: Invalid class %s", operation,
                           className.c_str());
    }
    return *plugin;
}

void FrameworkFacade::getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) {
    forward("getCIMInstance", [&] {
        pluginFor("getCIMInstance", path.getClassName()).getCIMInstance(path, out);
    });
}

void FrameworkFacade::enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                                         bool flag) {
    forward("enumerateInstances", [&] {
        pluginFor("enumerateInstances", classPath.getClassName())
            .enumerateInstances(classPath, out, flag);
    });
}

void FrameworkFacade::enumerateInstanceNames(CIMObjectPath& classPath,
                                             std::vector<CIMObjectPath>& out) {
    forward("enumerateInstanceNames", [&] {
        pluginFor("enumerateInstanceNames", classPath.getClassName())
            .enumerateInstanceNames(classPath, out);
    });
}

void FrameworkFacade::createInstance(CIMObjectPath& path, CIMInstance& instance) {
    forward("createInstance", [&] {
        pluginFor("createInstance", path.getClassName()).createInstance(path, instance);
    });
}

void FrameworkFacade::modifyInstance(CIMObjectPath& path, CIMInstance& newValues,
                                     std::vector<std::string>& propertyList) {
    forward("modifyInstance", [&] {
        pluginFor("modifyInstance", path.getClassName())
            .modifyInstance(path, newValues, propertyList);
    });
}

void FrameworkFacade::deleteInstance(const CIMObjectPath& path) {
    forward("deleteInstance",
            [&] { pluginFor("deleteInstance", path.getClassName()).deleteInstance(path); });
}

void FrameworkFacade::associators(CIMObjectPath& source, std::string& assocClass,
                                  std::vector<CIMInstance>& out, std::string& resultClass,
                                  std::string& role, std::string& resultRole,
                                  const char** propertyList) {
    forward("associators", [&] {
        pluginFor("associators", assocClass)
            .associators(source, assocClass, out, resultClass, role, resultRole, propertyList);
    });
}

void FrameworkFacade::associatorsNames(CIMObjectPath& source, std::string& assocClass,
                                       std::vector<CIMObjectPath>& out, std::string& resultClass,
                                       std::string& role, std::string& resultRole) {
    forward("associatorsNames", [&] {
        pluginFor("associatorsNames", assocClass)
            .associatorNames(source, assocClass, out, resultClass, role, resultRole);
    });
}

void FrameworkFacade::references(CIMObjectPath& source, const std::string& resultClass,
                                 std::vector<CIMInstance>& out, const std::string& role) {
    forward("references", [&] {
        pluginFor("references", resultClass).references(source, resultClass, out, role);
    });
}

void FrameworkFacade::referencesNames(CIMObjectPath& source, const std::string& resultClass,
                                      const std::string& role, std::vector<CIMObjectPath>& out) {
    forward("referencesNames", [&] {
        pluginFor("referencesNames", resultClass).referencesNames(source, resultClass, role, out);
    });
}

unsigned int FrameworkFacade::invokeMethod(const CIMObjectPath& path,
                                           const std::string& methodName,
                                           const CIMMethodParam& in, CIMMethodParam& out) {
    return forward("invokeMethod", [&] {
        return pluginFor("invokeMethod", path.getClassName())
            .invokeMethod(path, methodName, in, out);
    });
}

}  // namespace vex::cim::fwf

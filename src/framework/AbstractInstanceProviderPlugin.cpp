// The read operations of AbstractInstanceProviderPlugin: each answer instance
// is assembled from a source instance of getRepositoryObjects, keys first
// (getKeyAttributes), then the other properties (getNonKeyAttributes), and
// carries the request's host, namespace and class name.
#include "framework/AbstractInstanceProviderPlugin.h"

#include "framework/CIMException.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

void logEmpty(const char* operation, const CIMObjectPath& path) {
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Empty list returned for class %s", operation,
              path.getClassName().c_str());
}

// Logs a hook's failure; the caller throws the copy on.
CIMException logged(const char* operation, const CIMException& e) {
    TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s", operation, e.getErrMessage().c_str());
    return e;
}

// One answer instance from one source instance.
CIMInstance assemble(AbstractInstanceProviderPlugin& plugin, const CIMObjectPath& path,
                     CIMInstance& source) {
    CIMInstance instance;
    instance.setPath(path);
    std::vector<CIMProperty> keys;
    plugin.getKeyAttributes(source, keys);
    for (CIMProperty& key : keys) {
        instance.addCimKeyBinding(std::move(key));
    }
    std::vector<CIMProperty> others;
    plugin.getNonKeyAttributes(source, others);
    for (CIMProperty& other : others) {
        instance.addProperty(std::move(other));
    }
    return instance;
}

// Builds the full instances for `path` into `out`; shared by get and enumerate.
void buildInstances(AbstractInstanceProviderPlugin& plugin, const char* operation,
                    CIMObjectPath& path, std::vector<CIMInstance>& out) {
    std::vector<CIMInstance> sources;
    try {
        plugin.getRepositoryObjects(path, sources);
        for (CIMInstance& source : sources) {
            out.push_back(assemble(plugin, path, source));
        }
    } catch (const CIMException& e) {
        throw logged(operation, e);
    }
    if (sources.empty()) {
        logEmpty(operation, path);
    }
}

}  // namespace

void AbstractInstanceProviderPlugin::enumerateInstances(CIMObjectPath& classPath,
                                                        std::vector<CIMInstance>& out,
                                                        bool /*flag*/) {
    TkzTrace("Entering AbstractInstanceProviderPlugin ::              enumerateInstances()");
    buildInstances(*this, "enumerateInstances", classPath, out);
    TkzTrace("Exiting AbstractInstanceProviderPlugin :: enumerateInstances()");
}

void AbstractInstanceProviderPlugin::getCIMInstance(CIMObjectPath& path,
                                                    std::vector<CIMInstance>& out) {
    TkzTrace("Entering AbstractInstanceProviderPlugin :: getCIMInstance()");
    buildInstances(*this, "getCIMInstance", path, out);
    TkzTrace("Exiting AbstractInstanceProviderPlugin :: getCIMInstance()");
}

void AbstractInstanceProviderPlugin::enumerateInstanceNames(CIMObjectPath& classPath,
                                                            std::vector<CIMObjectPath>& out) {
    TkzTrace("Entering AbstractInstanceProviderPlugin :: enumerateInstanceNames()");
    std::vector<CIMInstance> sources;
    try {
        getRepositoryObjects(classPath, sources);
        for (CIMInstance& source : sources) {
            std::vector<CIMProperty> keys;
            getKeyAttributes(source, keys);
            out.emplace_back(classPath.getHostName(), classPath.getNameSpace(),
                             classPath.getClassName(), std::move(keys));
        }
    } catch (const CIMException& e) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s.", "enumerateInstanceNames", e.getErrMessage().c_str());
        throw CIMException(e);
    }
    if (sources.empty()) {
        logEmpty("enumerateInstanceNames", classPath);
    }
    TkzTrace("Exiting AbstractInstanceProviderPlugin :: enumerateInstanceNames()");
}

}  // namespace vex::cim::fwf

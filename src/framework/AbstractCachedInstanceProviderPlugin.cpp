// The cached instance base: reads answered from the object cache, changes
// handed to the controller interface, and cache changes sent as life-cycle
// indications through the facade.
#include "framework/AbstractCachedInstanceProviderPlugin.h"

#include <iterator>
#include <optional>
#include <utility>

#include "controller/CachedInstance.h"
#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"
#include "controller/ViewProjection.h"
#include "framework/CIMException.h"
#include "framework/CIMNamespaces.h"
#include "framework/FrameworkFacade.h"
#include "framework/NotSupported.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

std::atomic<bool> AbstractCachedInstanceProviderPlugin::bFirstJobQuery{false};

namespace {

// ---- reads ------------------------------------------------------------------

// The served repository; code 1 when the cache cannot be had.
VexCacheManager& servedCache(const CIMObjectPath& path) {
    VexCacheManager* cache = VexCacheManager::getInstance(true);
    if (cache == nullptr) {
        throw CIMException(CIM_ERR_FAILED, "Failed to retrieve objects of %s",
                           path.getClassName().c_str());
    }
    return *cache;
}

void logEmpty(const char* operation, const CIMObjectPath& path) {
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Empty list returned for class %s", operation,
              path.getClassName().c_str());
}

// Waits until a controller operation in progress, which holds the StorLib
// guard while it rebuilds the cache, has finished. Nothing stays held: the
// read itself is protected by the repository's own lock.
void waitForControllerOperation() {
    TKZ_MUTEX guard = VexFSAInterface::getStorlibGuard();
    if (guard != nullptr && TkzMutexLock(guard) == 0) {
        TkzMutexUnlock(guard);
    }
}

void noteJobQuery(_eVEXObjectType type) {
    if (type == VEX_OBJ_JOB && !AbstractCachedInstanceProviderPlugin::bFirstJobQuery.exchange(true)) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Got the first job progess query from agent");
    }
}

// Moves `found` behind whatever `out` already holds.
template <typename T>
void appendAll(std::vector<T>& found, std::vector<T>& out) {
    if (out.empty()) {
        out.swap(found);
        return;
    }
    out.insert(out.end(), std::make_move_iterator(found.begin()),
               std::make_move_iterator(found.end()));
}

// ---- modify -----------------------------------------------------------------

// The object types whose ModifyInstance the controller interface takes:
// controllers and concrete pools are written back, drives and volumes are
// accepted without effect; any other type it refuses.
bool controllerTakesChanges(_eVEXObjectType type) {
    return type == VEX_OBJ_CONTROLLER || type == VEX_OBJ_CONCRETE_POOL ||
           type == VEX_OBJ_PHYSICAL_DRIVE || type == VEX_OBJ_STORAGE_VOLUME;
}

// The properties of the property list found in the new instance, under the
// names the cache stores them by (prefix + name).
std::vector<CIMProperty> changedProperties(CIMInstance& newValues,
                                           const std::vector<std::string>& propertyList,
                                           const std::string& prefix) {
    std::vector<CIMProperty> changes;
    for (const std::string& name : propertyList) {
        const CIMProperty* property = newValues.getPropertyByName(name);
        if (property == nullptr) {
            continue;
        }
        changes.push_back(*property);
        changes.back().setName(prefix + name);
    }
    return changes;
}

// ---- life-cycle indications -------------------------------------------------

constexpr unsigned short kPerceivedSeverity = 6;
constexpr std::size_t kHostNameSize = 256;

const char* indicationClassOf(_eVEXEventType eventType) {
    switch (eventType) {
    case VEX_EVENT_CREATED:
        return "CIM_InstCreation";
    case VEX_EVENT_DELETED:
        return "CIM_InstDeletion";
    case VEX_EVENT_MODIFIED:
        return "CIM_InstModification";
    }
    return "";
}

std::string localHostName() {
    char buffer[kHostNameSize] = {};
    TkzGetHostName(buffer, sizeof buffer);
    return buffer;
}

// The class's current instance for the keys: the stored instance, or its
// part under the prefix; false when the cache holds none.
bool currentInstance(VexCacheManager& cache, _eVEXObjectType type, const std::string& prefix,
                     const std::vector<CIMProperty>& keys, CIMInstance& instance) {
    std::vector<CIMInstance> found;
    cache.getRepositoryObject(type, "", keys, false, found);
    if (found.empty()) {
        return false;
    }
    if (prefix.empty()) {
        instance = std::move(found.front());
    } else {
        cache::buildViewInstance(cache::CachedInstance(found.front()), prefix, false, instance);
    }
    return true;
}

// The keys of a deleted object as its class names them (prefix removed).
std::vector<CIMProperty> classKeysOf(std::vector<CIMProperty> keys, const std::string& prefix) {
    for (CIMProperty& key : keys) {
        if (!prefix.empty() && key.getName().compare(0, prefix.size(), prefix) == 0) {
            key.setName(key.getName().substr(prefix.size()));
        }
    }
    return keys;
}

// The class an indication is about.
struct SourceClass {
    std::string name;
    _eVEXObjectType type;
    std::string prefix;
};

// What an indication tells about its source.
struct IndicationSource {
    std::string host;
    CIMObjectPath path;                   // of the source instance
    std::optional<CIMInstance> instance;  // none for a deletion
};

// A deleted object is named by its keys; a created or modified one is read
// from the cache. False when the cache holds no such object.
bool findSource(VexCacheManager& cache, _eVEXEventType eventType, const SourceClass& cls,
                const std::vector<CIMProperty>& keys, IndicationSource& source) {
    if (eventType == VEX_EVENT_DELETED) {
        source.path = CIMObjectPath(source.host, kImplementationNameSpace, cls.name, classKeysOf(keys, cls.prefix));
        return true;
    }
    CIMInstance instance;
    if (!currentInstance(cache, cls.type, cls.prefix, keys, instance)) {
        return false;
    }
    instance.setPath(CIMObjectPath(source.host, kImplementationNameSpace, cls.name, {}));
    source.path = instance.getPath();
    source.instance = std::move(instance);
    return true;
}

CIMInstance indicationInstance(const char* indicationClass, const IndicationSource& source) {
    CIMInstance indication;
    indication.setPath(CIMObjectPath(source.host, kImplementationNameSpace, indicationClass, {}));
    if (source.instance) {
        indication.addProperty(CIMProperty("SourceInstance", CIMValue<CIMInstance>(*source.instance),
                                           false, CIM_INSTANCE, false));
    }
    indication.addProperty(CIMProperty("SourceInstanceModelPath",
                                       CIMValue<std::string>(source.path.toString()), false,
                                       CIM_STRING, false));
    indication.addProperty(
        CIMProperty("SourceInstanceHost", CIMValue<std::string>(source.host), false, CIM_STRING, false));
    indication.addProperty(CIMProperty("PerceivedSeverity", CIMValue<unsigned short>(kPerceivedSeverity),
                                       false, CIM_UINT16, false));
    return indication;
}

void deliver(FrameworkFacade& facade, CIMInstance indication, const std::string& className) {
    if (facade.notify(std::move(indication))) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Successfully Delivered Indication of classname = %s", className.c_str());
    } else {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed To Deliver Indication of classname = %s", className.c_str());
    }
}

}  // namespace

// ---- the three hooks of the instance base -------------------------------------

void AbstractCachedInstanceProviderPlugin::getKeyAttributes(CIMInstance&, std::vector<CIMProperty>&) {}

void AbstractCachedInstanceProviderPlugin::getNonKeyAttributes(CIMInstance&,
                                                               std::vector<CIMProperty>&) {}

void AbstractCachedInstanceProviderPlugin::getRepositoryObjects(CIMObjectPath&,
                                                                std::vector<CIMInstance>&) {}

// ---- reads ------------------------------------------------------------------

void AbstractCachedInstanceProviderPlugin::answerGet(CIMObjectPath& path,
                                                     std::vector<CIMInstance>& found,
                                                     std::vector<CIMInstance>& out) {
    if (found.empty()) {
        logEmpty("getCIMInstance", path);
        return;
    }
    if (found.size() > 1) {
        TkzLogMsg(TKZ_LOG_DEBUG, "%s :: more than one instances returned for class %s",
                  "getCIMInstance", path.getClassName().c_str());
        throw CIMException(CIM_ERR_KEY_NOT_PROPER, "Key is not proper for  %s getInstance",
                           path.getClassName().c_str());
    }
    found.front().setPath(path);
    out.push_back(std::move(found.front()));
}

void AbstractCachedInstanceProviderPlugin::getCIMInstance(CIMObjectPath& path,
                                                          std::vector<CIMInstance>& out) {
    TkzTrace("Entering AbstractCachedInstanceProviderPlugin :: getCIMInstance()");
    VexCacheManager& cache = servedCache(path);
    std::vector<CIMInstance> found;
    cache.getRepositoryObject(getViewClass(), getClassPrefix(), path.getKeyBindings(), false, found);
    answerGet(path, found, out);
    TkzTrace("Exiting AbstractCachedInstanceProviderPlugin :: getCIMInstance()");
}

void AbstractCachedInstanceProviderPlugin::enumerateInstances(CIMObjectPath& classPath,
                                                              std::vector<CIMInstance>& out,
                                                              bool /*flag*/) {
    TkzTrace("Entering AbstractCachedInstanceProviderPlugin ::enumerateInstances()");
    waitForControllerOperation();
    VexCacheManager& cache = servedCache(classPath);
    const _eVEXObjectType type = getViewClass();
    noteJobQuery(type);
    std::vector<CIMInstance> found;
    cache.getRepositoryObject(type, getClassPrefix(), {}, false, found);
    if (found.empty()) {
        logEmpty("enumerateInstances", classPath);
    }
    for (CIMInstance& instance : found) {
        instance.setPath(classPath);
    }
    appendAll(found, out);
    TkzTrace("Exiting AbstractCachedInstanceProviderPlugin :: enumerateInstances()");
}

void AbstractCachedInstanceProviderPlugin::enumerateInstanceNames(CIMObjectPath& classPath,
                                                                  std::vector<CIMObjectPath>& out) {
    TkzTrace("Entering AbstractCachedInstanceProviderPlugin :: enumerateInstanceNames()");
    VexCacheManager& cache = servedCache(classPath);
    std::vector<CIMInstance> found;
    cache.getRepositoryObject(getViewClass(), getClassPrefix(), classPath.getKeyBindings(), true,
                              found);
    if (found.empty()) {
        logEmpty("enumerateInstanceNames", classPath);
    }
    out.reserve(out.size() + found.size());
    for (CIMInstance& instance : found) {
        instance.setPath(classPath);
        out.push_back(instance.getPath());
    }
    TkzTrace("Exiting AbstractCachedInstanceProviderPlugin :: enumerateInstanceNames()");
}

// ---- modify -------------------------------------------------------------------

int AbstractCachedInstanceProviderPlugin::getViewClassKeys(CIMObjectPath&, std::vector<CIMProperty>&) {
    TkzTrace("Executing AbstractCachedInstanceProviderPlugin :: getViewClassKeys()");
    return 0;
}

void AbstractCachedInstanceProviderPlugin::modifyInstance(CIMObjectPath& path, CIMInstance& newValues,
                                                          std::vector<std::string>& propertyList) {
    TkzTrace("Entering AbstractCachedInstanceProviderPlugin :: modifyInstance()");
    const char* className = path.getClassName().c_str();
    const _eVEXObjectType type = getViewClass();
    if (!controllerTakesChanges(type)) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s Modify Not supported", "modifyInstance", className);
        throw CIMException(CIM_ERR_NOT_SUPPORTED, "%s", " :: Not supported");
    }
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    if (fsa == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: FSA access failed before modifying %s.", "modifyInstance",
                  className);
        throw CIMException(CIM_ERR_FAILED, "Modify Instance Failed");
    }
    const std::string prefix = getClassPrefix();
    std::vector<CIMProperty> keys;
    if (prefix.empty()) {
        keys = path.getKeyBindings();
    } else {
        getViewClassKeys(path, keys);
    }
    const unsigned int result =
        fsa->modifyInstance(type, keys, changedProperties(newValues, propertyList, prefix));
    if (result != 0) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: modifyInstance failed on %s with error %d", "modifyInstance",
                  className, static_cast<int>(result));
        throw CIMException(CIM_ERR_FAILED, "Modify Instance Failed");
    }
    TkzTrace("Exiting AbstractCachedInstanceProviderPlugin :: modifyInstance()");
}

// ---- what the cached classes do not offer -----------------------------------

void AbstractCachedInstanceProviderPlugin::createInstance(CIMObjectPath&, CIMInstance&) {
    throwNotSupported("createInstance");
}

void AbstractCachedInstanceProviderPlugin::deleteInstance(const CIMObjectPath&) {
    throwNotSupported("deleteInstance");
}

void AbstractCachedInstanceProviderPlugin::associators(CIMObjectPath&, std::string&,
                                                       std::vector<CIMInstance>&, std::string&,
                                                       std::string&, std::string&, const char**) {
    throwNotSupported("associators");
}

void AbstractCachedInstanceProviderPlugin::associatorNames(CIMObjectPath&, std::string&,
                                                           std::vector<CIMObjectPath>&, std::string&,
                                                           std::string&, std::string&) {
    throwNotSupported("associatorNames");
}

void AbstractCachedInstanceProviderPlugin::references(CIMObjectPath&, const std::string&,
                                                      std::vector<CIMInstance>&, const std::string&) {
    throwNotSupported("references");
}

void AbstractCachedInstanceProviderPlugin::referencesNames(CIMObjectPath&, const std::string&,
                                                           const std::string&,
                                                           std::vector<CIMObjectPath>&) {
    throwNotSupported("referencesNames");
}

unsigned int AbstractCachedInstanceProviderPlugin::invokeMethod(const CIMObjectPath&,
                                                                const std::string&,
                                                                const CIMMethodParam&,
                                                                CIMMethodParam&) {
    return CIM_METHOD_NOT_SUPPORTED;
}

// ---- life-cycle indications -------------------------------------------------

int AbstractCachedInstanceProviderPlugin::getKeysFromEventKeys(std::vector<CIMProperty>& eventKeys,
                                                               std::vector<CIMProperty>& classKeys) {
    TkzTrace("Executing AbstractCachedInstanceProviderPlugin :: getKeysFromEventKeys()");
    classKeys = eventKeys;
    return 0;
}

std::string AbstractCachedInstanceProviderPlugin::getConcreteClassName() { return std::string(); }

void AbstractCachedInstanceProviderPlugin::EventNotify(_eVEXObjectType, _eVEXEventType eventType,
                                                       std::string, std::vector<CIMProperty>& keys,
                                                       std::vector<CIMProperty>&) {
    TkzLogMsg(TKZ_LOG_DEBUG, "Indication received");
    sendLifecycleIndication(eventType, keys);
}

void AbstractCachedInstanceProviderPlugin::sendLifecycleIndication(_eVEXEventType eventType,
                                                                   std::vector<CIMProperty>& eventKeys) {
    const std::string className = getConcreteClassName();
    if (className.empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "getConcreteClassName: Method Not Defined");
        return;
    }
    const char* indicationClass = indicationClassOf(eventType);
    IndicationSource source{localHostName(), {}, std::nullopt};
    FrameworkFacade* facade = FrameworkFacade::getInstance();
    if (facade == nullptr) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Framework Facade not available");
        return;
    }
    VexCacheManager* cache = VexCacheManager::getInstance(true);
    if (cache == nullptr) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Cache Manager not available");
        return;
    }
    std::vector<CIMProperty> keys;
    if (getKeysFromEventKeys(eventKeys, keys) != 0 || keys.empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Failed to extract key Properties");
        return;
    }
    const SourceClass cls{className, getViewClass(), getClassPrefix()};
    if (!findSource(*cache, eventType, cls, keys, source)) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Empty instance vector");
        return;
    }
    deliver(*facade, indicationInstance(indicationClass, source), className);
}

}  // namespace vex::cim::fwf

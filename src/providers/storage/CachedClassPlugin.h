// CachedClassPlugin<Id>: the one plug-in template of the cached class family.
// It answers the three questions of the cached base from row Id of
// kCachedClasses and adds what the row asks for:
//  - registration for change events in the constructor;
//  - extrinsic methods run as controller routines (with AbstractMethodProviderPlugin);
//  - one instance per element for classes stored as parallel arrays.
// A plug-in class of the family is then one line:
//   class VEXCard final : public CachedClassPlugin<kCard> {};
#ifndef VEX_PROVIDERS_STORAGE_CACHEDCLASSPLUGIN_H
#define VEX_PROVIDERS_STORAGE_CACHEDCLASSPLUGIN_H

#include <string>
#include <type_traits>
#include <vector>

#include "framework/AbstractCachedInstanceProviderPlugin.h"
#include "framework/AbstractMethodProviderPlugin.h"
#include "providers/storage/ArrayElementViewPlugin.h"
#include "providers/storage/CachedClassTable.h"
#include "providers/storage/ControllerMethod.h"

namespace vex::cim::fwf {

namespace cached {

// Hands observer to the controller interface for changes of changeEvents
// (nothing for kNoChangeEvents).
void registerForChanges(int changeEvents, EventObserver* observer);
// The prefix, between "ENTER::getClassPrefix" and "EXIT::getClassPrefix" traces.
std::string tracedPrefix(const char* prefix);
// The keys of path renamed to prefix + name, the names the cache stores them
// by; the number of keys.
int storedKeys(const CIMObjectPath& path, const std::string& prefix,
               std::vector<CIMProperty>& keys);
// The keys of className for the key properties of a change event; 0 on
// success. Views check that the event key has the parts of their composite
// key ("ViewClass Key corrupted" otherwise); enclosures and their elements
// keep the keys that name the object (the class names differ); every other
// class takes the event keys as they are.
int classKeysOfEvent(const char* className, std::vector<CIMProperty>& eventKeys,
                     std::vector<CIMProperty>& classKeys);

template <CachedClassId Id>
using InstanceBase = std::conditional_t<kCachedClasses[Id].perElement, ArrayElementViewPlugin,
                                        AbstractCachedInstanceProviderPlugin>;

// The instance side of every member.
template <CachedClassId Id>
class Instances : public InstanceBase<Id> {
public:
    static constexpr const CachedClassRow& kRow = kCachedClasses[Id];

    Instances() { registerForChanges(kRow.changeEvents, this); }

    _eVEXObjectType getViewClass() override { return kRow.type; }
    std::string getClassPrefix() override {
        return kRow.tracesPrefix ? tracedPrefix(kRow.prefix) : std::string(kRow.prefix);
    }
    std::string getConcreteClassName() override { return kRow.className; }
    int getViewClassKeys(CIMObjectPath& path, std::vector<CIMProperty>& keys) override {
        return storedKeys(path, kRow.prefix, keys);
    }
    int getKeysFromEventKeys(std::vector<CIMProperty>& eventKeys, std::vector<CIMProperty>& classKeys) override {
        return classKeysOfEvent(kRow.className, eventKeys, classKeys);
    }
};

// A member with extrinsic methods: each method is the controller routine of
// the same name.
template <CachedClassId Id>
class WithMethods : public Instances<Id>, public AbstractMethodProviderPlugin {
public:
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                              const CIMMethodParam& in, CIMMethodParam& out) override {
        return invokeControllerRoutine(path, methodName, in, out);
    }
};

}  // namespace cached

template <CachedClassId Id>
using CachedClassPlugin = std::conditional_t<kCachedClasses[Id].hasMethods, cached::WithMethods<Id>,
                                             cached::Instances<Id>>;

}  // namespace vex::cim::fwf

#endif

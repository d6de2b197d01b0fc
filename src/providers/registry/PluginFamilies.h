// The families of plug-in classes. Each family lists, in a file of its own,
// the plug-in names it makes and how; the registry table (PluginTable.cpp)
// takes each row's factory from whichever family names it. A new family is a
// new list here and one line in kFamilies.
#ifndef VEX_PROVIDERS_REGISTRY_PLUGINFAMILIES_H
#define VEX_PROVIDERS_REGISTRY_PLUGINFAMILIES_H

#include <cstddef>
#include <new>

#include "framework/PluginRegistry.h"

namespace vex::cim::fwf {

struct PluginFactoryEntry {
    const char* name;  // lower-case CIM class name, as in the registry table
    PluginFactory factory;
};

struct PluginFactoryList {
    const PluginFactoryEntry* entries;
    std::size_t count;
};

template <typename Plugin>
AbstractProviderPlugin* makePlugin() {
    return new (std::nothrow) Plugin();
}

template <std::size_t N>
constexpr PluginFactoryList factoryList(const PluginFactoryEntry (&entries)[N]) {
    return {entries, N};
}

// The families.
extern const PluginFactoryList kHostProfileFactories;     // providers/device
extern const PluginFactoryList kCachedDeviceFactories;    // providers/device
extern const PluginFactoryList kCachedStorageFactories;   // providers/storage
extern const PluginFactoryList kJobFactories;             // providers/storage
extern const PluginFactoryList kStorageModelFactories;    // providers/storage
extern const PluginFactoryList kDeviceModelFactories;     // providers/device

inline const PluginFactoryList* const kFamilies[] = {
    &kHostProfileFactories,
    &kCachedDeviceFactories,
    &kCachedStorageFactories,
    &kJobFactories,
    &kStorageModelFactories,
    &kDeviceModelFactories,
};

}  // namespace vex::cim::fwf

#endif

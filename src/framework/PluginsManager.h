// PluginsManager: the process-wide registry of plug-in objects, one per served
// CIM class, found by the lower-cased class name. The registry is filled once
// by initialize and not changed afterwards, so lookups take no lock; only the
// creation of the singleton is guarded (m_Mutex). The manager owns the
// plug-ins; they live until it is destroyed at unload.
#ifndef VEX_FRAMEWORK_PLUGINSMANAGER_H
#define VEX_FRAMEWORK_PLUGINSMANAGER_H

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "framework/AbstractProviderPlugin.h"
#include "framework/PluginRegistry.h"

namespace vex::cim::fwf {

class PluginsManager {
public:
    // The singleton, made on first call; null when it cannot be allocated.
    static PluginsManager* getInstance();

    // Registers the always-registered plug-ins and, unless `selective`, every
    // other plug-in of the registry table. False when a plug-in object cannot
    // be made.
    bool initialize(bool selective);

    // The plug-in registered under `name` (compared in lower case), or null.
    AbstractProviderPlugin* getPlugin(std::string name);

    // The proper spelling of a registered class (any case), or empty.
    std::string getClassName(const std::string& name) const;

    // Whether a plug-in serves the class (any case) in the namespace: the
    // implementation namespace, or (any other name) the interop one. An
    // association, whose ends may live in either, is served in both.
    bool isServedIn(const std::string& className, const std::string& nameSpace) const;

    // The registered names to announce to the object manager for one
    // namespace, in name order: for "root/tkz/vex/smi_15" every class served
    // there; for any other namespace the classes served in the interop one.
    std::vector<std::string> getPluginNames(std::string nameSpace);

    ~PluginsManager();
    PluginsManager(const PluginsManager&) = delete;
    PluginsManager& operator=(const PluginsManager&) = delete;

private:
    friend struct PluginsManagerCleanUp;
    PluginsManager();

    struct Entry {
        std::unique_ptr<AbstractProviderPlugin> plugin;
        const PluginRegistration* row;
    };
    bool registerPlugin(const PluginRegistration& row);

    std::map<std::string, Entry> m_registry;

    static PluginsManager* m_instance;
    static std::mutex m_Mutex;
};

}  // namespace vex::cim::fwf

#endif

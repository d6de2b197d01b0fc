#include "framework/PluginsManager.h"

#include <new>

#include "framework/CIMNamespaces.h"
#include "framework/CommonFunctions.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

PluginsManager* PluginsManager::m_instance = nullptr;
std::mutex PluginsManager::m_Mutex;

// Deletes the manager, and with it every plug-in, when the provider unloads.
struct PluginsManagerCleanUp {
    ~PluginsManagerCleanUp() {
        PluginsManager* instance = nullptr;
        {
            std::lock_guard<std::mutex> lock(PluginsManager::m_Mutex);
            instance = PluginsManager::m_instance;
        }
        delete instance;
    }
};

PluginsManager::PluginsManager() = default;

PluginsManager::~PluginsManager() {
    std::lock_guard<std::mutex> lock(m_Mutex);
    if (m_instance == this) {
        m_instance = nullptr;
    }
}

PluginsManager* PluginsManager::getInstance() {
    TkzTrace("Entering PluginsManager getInstance()");
    {
        std::lock_guard<std::mutex> lock(m_Mutex);
        if (m_instance != nullptr) {
            TkzTrace("Referencing the earlier formed PluginsManager singleton object");
        } else {
            m_instance = new (std::nothrow) PluginsManager();
            if (m_instance == nullptr) {
                TkzLogMsg(TKZ_LOG_ERROR, "ERROR : Insufficient Memory : PluginsManager::getInstance");
                return nullptr;
            }
        }
    }
    TkzTrace("Unlocked the mutex object");
    static PluginsManagerCleanUp cleanUp;
    TkzTrace("Returning successfully formed PluginsManager singleton object");
    return m_instance;
}

bool PluginsManager::registerPlugin(const PluginRegistration& row) {
    if (row.factory == nullptr) {
        return true;  // plug-in class not built: the class is not served
    }
    std::unique_ptr<AbstractProviderPlugin> plugin(row.factory());
    if (!plugin) {
        return false;
    }
    m_registry[row.name] = Entry{std::move(plugin), &row};
    return true;
}

bool PluginsManager::initialize(bool selective) {
    TkzTrace("Entering PluginsManager::initialize()");
    const PluginRegistration* rows = pluginRegistrations();
    const std::size_t count = selective ? kAlwaysRegisteredPlugins : pluginRegistrationCount();
    bool ok = true;
    for (std::size_t i = 0; i < count && ok; ++i) {
        ok = registerPlugin(rows[i]);
    }
    if (selective) {
        TkzLogMsg(TKZ_LOG_DEBUG, "%s :: SELECTIVE INITIALIZATION.", "initialize");
    }
    TkzTrace("Exiting PluginsManager::initialize()");
    return ok;
}

AbstractProviderPlugin* PluginsManager::getPlugin(std::string name) {
    const auto found = m_registry.find(CommonFunctions::toLower(name));
    if (found == m_registry.end()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Plugin not initialized for %s.", name.c_str());
        return nullptr;
    }
    return found->second.plugin.get();
}

std::string PluginsManager::getClassName(const std::string& name) const {
    const auto found = m_registry.find(CommonFunctions::toLower(name));
    return found == m_registry.end() ? std::string() : std::string(found->second.row->className);
}

namespace {

unsigned int nameSpaceBit(const std::string& nameSpace) {
    return CommonFunctions::equalsIgnoreCase(nameSpace, kImplementationNameSpace)
               ? kServedInImplementation
               : kServedInInterop;
}

}  // namespace

bool PluginsManager::isServedIn(const std::string& className, const std::string& nameSpace) const {
    const auto found = m_registry.find(CommonFunctions::toLower(className));
    if (found == m_registry.end()) {
        return false;
    }
    // Associations link objects across the namespaces and answer in either.
    const PluginRegistration& row = *found->second.row;
    return row.group == PluginGroup::Association || (row.nameSpaces & nameSpaceBit(nameSpace)) != 0;
}

std::vector<std::string> PluginsManager::getPluginNames(std::string nameSpace) {
    TkzLogMsg(TKZ_LOG_DEBUG, "Entering PluginsManager::getPluginNames()");
    const unsigned int wanted = nameSpaceBit(nameSpace);
    std::vector<std::string> names;
    for (const auto& [name, entry] : m_registry) {
        if ((entry.row->nameSpaces & wanted) != 0) {
            names.push_back(name);
        }
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "Leaving PluginsManager::getPluginNames()");
    return names;
}

}  // namespace vex::cim::fwf

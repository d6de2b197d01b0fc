// FrameworkFacade: the singleton, the plug-in look-ups and the indication
// callback. The forwarding of CIM operations is in FacadeForwarding.cpp.
#include "framework/FrameworkFacade.h"

#include <new>

#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/CommonFunctions.h"
#include "framework/FacadeControllerStart.h"
#include "framework/PluginsManager.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

FrameworkFacade* FrameworkFacade::m_ins = nullptr;
std::mutex FrameworkFacade::m_insMutex;

// Deletes the facade at unload if the adapter has not done so.
struct FrameworkFacadeCleanUp {
    ~FrameworkFacadeCleanUp() {
        FrameworkFacade* instance = nullptr;
        {
            std::lock_guard<std::mutex> lock(FrameworkFacade::m_insMutex);
            instance = FrameworkFacade::m_ins;
        }
        delete instance;
    }
};

FrameworkFacade::FrameworkFacade() = default;

FrameworkFacade::~FrameworkFacade() {
    bool current = false;
    {
        std::lock_guard<std::mutex> lock(m_insMutex);
        current = m_ins == this;
    }
    if (current) {
        stopControllerAccess();  // the event threads may still look the facade up
    }
    std::lock_guard<std::mutex> lock(m_insMutex);
    if (m_ins == this) {
        m_ins = nullptr;
    }
}

FrameworkFacade* FrameworkFacade::getInstance() {
    TkzTrace("Entering FrameworkFacade getInstance()");
    static FrameworkFacadeCleanUp cleanUp;
    std::lock_guard<std::mutex> lock(m_insMutex);
    if (m_ins != nullptr) {
        TkzTrace("Referencing the earlier formed FrameworkFacade singleton object");
    } else {
        m_ins = new (std::nothrow) FrameworkFacade();
        if (m_ins == nullptr) {
            TkzLogMsg(TKZ_LOG_ERROR, "ERROR : Insufficient Memory : FrameworkFacade::getInstance");
            return nullptr;
        }
    }
    TkzTrace("Returning successfully formed FrameworkFacade singleton object");
    return m_ins;
}

AbstractProviderPlugin* FrameworkFacade::getPlugIn(const std::string& className) {
    PluginsManager* manager = PluginsManager::getInstance();
    if (manager == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get PlugManager Object");
        return nullptr;
    }
    return manager->getPlugin(CommonFunctions::toLower(className));
}

std::string FrameworkFacade::getClassName(const std::string& className) {
    PluginsManager* manager = PluginsManager::getInstance();
    const std::string spelled = manager == nullptr ? std::string() : manager->getClassName(className);
    return spelled.empty() ? className : spelled;
}

bool FrameworkFacade::isServedIn(const std::string& className, const std::string& nameSpace) {
    PluginsManager* manager = PluginsManager::getInstance();
    return manager != nullptr && manager->isServedIn(className, nameSpace);
}

bool FrameworkFacade::getAllPluginNames(std::vector<std::string>& names, std::string nameSpace) {
    PluginsManager* manager = PluginsManager::getInstance();
    if (manager == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get PlugManager Object");
        return false;
    }
    std::vector<std::string> found = manager->getPluginNames(std::move(nameSpace));
    names.insert(names.end(), found.begin(), found.end());
    return true;
}

bool FrameworkFacade::getAntecedentAndDependentNames(std::string className,
                                                     std::string& antecedent,
                                                     std::string& dependent) {
    auto* association = dynamic_cast<AbstractAssociationProviderPlugin*>(getPlugIn(className));
    if (association == nullptr) {
        return false;
    }
    antecedent = association->getAntecedent();
    dependent = association->getDependent();
    return true;
}

bool FrameworkFacade::registerForEvent(IndicationCallback callback) {
    if (callback == nullptr) {
        return false;
    }
    m_callback.store(callback);
    return true;
}

void FrameworkFacade::deRegisterForEvent() { m_callback.store(nullptr); }

bool FrameworkFacade::notify(CIMInstance instance) {
    IndicationCallback callback = m_callback.load();
    return callback != nullptr && callback(instance);
}

}  // namespace vex::cim::fwf

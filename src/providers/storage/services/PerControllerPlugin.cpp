#include "providers/storage/services/PerControllerPlugin.h"

#include "controller/CimNames.h"
#include "controller/VexCacheManager.h"
#include "framework/CIMException.h"
#include "framework/PropertyBuilders.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

std::vector<CachedController> cachedControllers(const char* className) {
    VexCacheManager* cache = VexCacheManager::getInstance(true);
    std::vector<CIMInstance> controllers;
    const unsigned int read =
        cache != nullptr ? cache->getRepositoryObject(VEX_OBJ_CONTROLLER, "", {}, false, controllers) : VEX_CM_SYSTEM_ERROR;
    if (read == VEX_CM_SYSTEM_ERROR) {
        throw CIMException(1, "Failed to retrieve objects of %s", className);
    }
    std::vector<CachedController> out;
    for (const CIMInstance& controller : controllers) {
        const std::string name = stringValueOf(controller, "CSName");
        int number = 0;
        if (fsamap::parseControllerSystemName(name, number)) {
            out.push_back({number, name});
        }
    }
    return out;
}

void PerControllerPlugin::buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) {
    for (const CachedController& controller : cachedControllers(m_className)) {
        CIMInstance instance;
        instance.setPath(CIMObjectPath(request.getHostName(), request.getNameSpace(), m_className, {}));
        fill(controller, instance);
        out.push_back(std::move(instance));
    }
}

void PerControllerPlugin::getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) {
    TkzLogMsg(TKZ_LOG_DEBUG, "Entering %s::getRepositoryObjects", m_className);
    const std::size_t before = out.size();
    ComputedInstanceProviderPlugin::getRepositoryObjects(path, out);
    if (!path.getKeyBindings().empty() && out.size() == before) {
        TkzLogMsg(TKZ_LOG_ERROR, "Key is not proper for  %s getInstance", m_className);
    }
}

}  // namespace vex::cim::fwf

#include "framework/FacadeControllerStart.h"
#include "framework/FrameworkFacade.h"
#include "framework/PluginsManager.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

bool FrameworkFacade::initialize() {
    TkzTrace("Entering FrameworkFacade initialize()");
    const ControllerStart start = startControllerAccess();
    if (!start.serve) {
        return false;
    }
    PluginsManager* manager = PluginsManager::getInstance();
    if (manager == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to create PluginsManager instance");
        return false;
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "SELECTIVE INITIALIZATION ? %d.", start.selective ? 1 : 0);
    if (!manager->initialize(start.selective)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to initialize PluginsManager");
        return false;
    }
    TkzLogMsg(TKZ_LOG_INFO, "FrameworkFacade : Provider Initialized successfully");
    TkzTrace("Exiting FrameworkFacade initialize()");
    return true;
}

}  // namespace vex::cim::fwf

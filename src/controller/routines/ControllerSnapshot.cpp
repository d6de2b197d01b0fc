#include "controller/routines/ControllerSnapshot.h"

#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf::routine {

std::shared_ptr<const storlib::SystemConfig> snapshot() {
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    storlib::StorLib* library = requireLibraryHandle(fsa != nullptr ? fsa->getStorLib() : nullptr);
    return library->getSystemConfig();
}

const storlib::Adapter* adapterOf(const storlib::SystemConfig& config, int controller) {
    if (controller < 0 || static_cast<std::size_t>(controller) >= config.getAdapterCount()) {
        return nullptr;
    }
    return config.getAdapter(static_cast<std::size_t>(controller));
}

}  // namespace vex::cim::fwf::routine

// AbstractEventProviderPlugin: a plug-in that hears about cache changes. It is
// an EventObserver (the event machinery holds it as one) and a provider
// plug-in; EventNotify stays pure here. The cached instance base derives from
// it and, virtually, from AbstractInstanceProviderPlugin, so that both paths
// share one AbstractProviderPlugin part.
#ifndef VEX_FRAMEWORK_ABSTRACTEVENTPROVIDERPLUGIN_H
#define VEX_FRAMEWORK_ABSTRACTEVENTPROVIDERPLUGIN_H

#include "framework/AbstractProviderPlugin.h"
#include "framework/EventObserver.h"

namespace vex::cim::fwf {

class AbstractEventProviderPlugin : public EventObserver, public virtual AbstractProviderPlugin {
public:
    ~AbstractEventProviderPlugin() override = default;
};

}  // namespace vex::cim::fwf

#endif

// AbstractMethodProviderPlugin: the base a plug-in adds when it offers
// extrinsic methods. Its own invokeMethod answers 7 (not supported); concrete
// method plug-ins override it. A plug-in that is also an instance plug-in
// inherits two invokeMethod versions and so must override it itself.
#ifndef VEX_FRAMEWORK_ABSTRACTMETHODPROVIDERPLUGIN_H
#define VEX_FRAMEWORK_ABSTRACTMETHODPROVIDERPLUGIN_H

#include <string>

#include "framework/AbstractProviderPlugin.h"

namespace vex::cim::fwf {

class AbstractMethodProviderPlugin : public virtual AbstractProviderPlugin {
public:
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                              const CIMMethodParam& in, CIMMethodParam& out) override;
};

}  // namespace vex::cim::fwf

#endif

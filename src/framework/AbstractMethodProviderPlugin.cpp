#include "framework/AbstractMethodProviderPlugin.h"

#include "platform/Tkz.h"

namespace vex::cim::fwf {

unsigned int AbstractMethodProviderPlugin::invokeMethod(const CIMObjectPath&, const std::string&,
                                                        const CIMMethodParam&, CIMMethodParam&) {
    TkzTrace("Executing AbstractMethodProviderPlugin :: invokeMethod()");
    return CIM_METHOD_NOT_SUPPORTED;
}

}  // namespace vex::cim::fwf

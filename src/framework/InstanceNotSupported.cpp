// What an instance plug-in does not offer unless it overrides it: changes,
// association traversal, methods and the completed-job store.
#include "framework/AbstractInstanceProviderPlugin.h"
#include "framework/NotSupported.h"

namespace vex::cim::fwf {

void AbstractInstanceProviderPlugin::modifyInstance(CIMObjectPath&, CIMInstance&,
                                                    std::vector<std::string>&) {
    throwNotSupported("modifyInstance");
}

void AbstractInstanceProviderPlugin::createInstance(CIMObjectPath&, CIMInstance&) {
    throwNotSupported("createInstance");
}

void AbstractInstanceProviderPlugin::deleteInstance(const CIMObjectPath&) {
    throwNotSupported("deleteInstance");
}

void AbstractInstanceProviderPlugin::associators(CIMObjectPath&, std::string&,
                                                 std::vector<CIMInstance>&, std::string&,
                                                 std::string&, std::string&, const char**) {
    throwNotSupported("associators");
}

void AbstractInstanceProviderPlugin::associatorNames(CIMObjectPath&, std::string&,
                                                     std::vector<CIMObjectPath>&, std::string&,
                                                     std::string&, std::string&) {
    throwNotSupported("associatorNames");
}

void AbstractInstanceProviderPlugin::references(CIMObjectPath&, const std::string&,
                                                std::vector<CIMInstance>&, const std::string&) {
    throwNotSupported("references");
}

void AbstractInstanceProviderPlugin::referencesNames(CIMObjectPath&, const std::string&,
                                                     const std::string&,
                                                     std::vector<CIMObjectPath>&) {
    throwNotSupported("referencesNames");
}

// 7: the CIM method return value "not supported"; no out arguments.
unsigned int AbstractInstanceProviderPlugin::invokeMethod(const CIMObjectPath&,
                                                          const std::string&,
                                                          const CIMMethodParam&,
                                                          CIMMethodParam&) {
    return CIM_METHOD_NOT_SUPPORTED;
}

void AbstractInstanceProviderPlugin::pushCompletedJobObject(_CompletedJob) {}

void AbstractInstanceProviderPlugin::popCompletedJobObject(std::string) {}

}  // namespace vex::cim::fwf

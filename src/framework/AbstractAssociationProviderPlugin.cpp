// AbstractAssociationProviderPlugin: building the association instances from
// the enumerations of the two end classes.
#include "framework/AbstractAssociationProviderPlugin.h"

#include "framework/CIMException.h"
#include "framework/CommonFunctions.h"
#include "framework/FrameworkFacade.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

FrameworkFacade& facade(const char* operation) {
    FrameworkFacade* facade = FrameworkFacade::getInstance();
    if (facade == nullptr) {
        throw CIMException(CIM_ERR_FAILED, "%s :: Failed to retrieve FrameworkFacade handle.",
                           operation);
    }
    return *facade;
}

CIMProperty referenceKey(const std::string& name, const CIMObjectPath& target) {
    return CIMProperty(name, CIMValue<CIMObjectPath>(target), true, CIM_REFERENCE, false);
}

}  // namespace

std::vector<CIMInstance> AbstractAssociationProviderPlugin::enumerateEnd(
    const CIMObjectPath& request, const std::string& classList) {
    std::vector<CIMInstance> instances;
    FrameworkFacade& entry = facade("enumerateInstances");
    const unsigned int count = CommonFunctions::getStringCount(classList);
    for (unsigned int i = 0; i < count; ++i) {
        const std::string className = CommonFunctions::getStringAt(classList, i);
        if (entry.getPlugIn(className) == nullptr) {
            TkzLogMsg(TKZ_LOG_DEBUG, "%s :: No plugin registered for end class %s",
                      "enumerateInstances", className.c_str());
            continue;
        }
        CIMObjectPath endPath(request.getHostName(), request.getNameSpace(), className, {});
        entry.enumerateInstances(endPath, instances);
    }
    return instances;
}

std::vector<CIMInstance> AbstractAssociationProviderPlugin::candidateLinks(
    const CIMObjectPath& /*source*/, CIMObjectPath& assocPath) {
    std::vector<CIMInstance> all;
    enumerateInstances(assocPath, all, false);
    return all;
}

CIMInstance AbstractAssociationProviderPlugin::makeAssociationInstance(
    const CIMObjectPath& assocPath, const CIMObjectPath& antecedent,
    const CIMObjectPath& dependent, std::vector<CIMProperty>& extra) {
    CIMInstance instance;
    instance.setPath(assocPath);
    instance.addCimKeyBinding(referenceKey(getAntecedentPropertyName(), antecedent));
    instance.addCimKeyBinding(referenceKey(getDependentPropertyName(), dependent));
    for (CIMProperty& property : extra) {
        instance.addProperty(std::move(property));
    }
    return instance;
}

void AbstractAssociationProviderPlugin::enumerateInstances(CIMObjectPath& classPath,
                                                           std::vector<CIMInstance>& out,
                                                           bool /*flag*/) {
    TkzTrace("Entering AbstractAssociationProviderPlugin::enumerateInstances()");
    try {
        std::vector<CIMInstance> firsts = enumerateEnd(classPath, getAntecedent());
        std::vector<CIMInstance> seconds = enumerateEnd(classPath, getDependent());
        for (CIMInstance& first : firsts) {
            for (CIMInstance& second : seconds) {
                std::vector<CIMProperty> extra;
                if (MatchInstances(first, second, extra)) {
                    out.push_back(makeAssociationInstance(classPath, first.getPath(),
                                                          second.getPath(), extra));
                }
            }
        }
    } catch (const CIMException& e) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s", "enumerateInstances", e.getErrMessage().c_str());
        throw;
    }
    TkzTrace("Exiting AbstractAssociationProviderPlugin::enumerateInstances()");
}

void AbstractAssociationProviderPlugin::enumerateInstanceNames(CIMObjectPath& classPath,
                                                               std::vector<CIMObjectPath>& out) {
    std::vector<CIMInstance> instances;
    enumerateInstances(classPath, instances, false);
    for (const CIMInstance& instance : instances) {
        out.push_back(instance.getPath());
    }
}

void AbstractAssociationProviderPlugin::getCIMInstance(CIMObjectPath& path,
                                                       std::vector<CIMInstance>& out) {
    std::vector<CIMInstance> instances;
    enumerateInstances(path, instances, false);
    for (CIMInstance& instance : instances) {
        if (instance.getPath() == path) {
            out.push_back(std::move(instance));
            return;
        }
    }
}

void AbstractAssociationProviderPlugin::getKeyAttributes(CIMInstance&, std::vector<CIMProperty>&) {}

void AbstractAssociationProviderPlugin::getNonKeyAttributes(CIMInstance&,
                                                            std::vector<CIMProperty>&) {}

void AbstractAssociationProviderPlugin::getRepositoryObjects(CIMObjectPath&,
                                                             std::vector<CIMInstance>&) {}

}  // namespace vex::cim::fwf

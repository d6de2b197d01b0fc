// The association classes a source object may take part in, for association
// requests that name no association class.
#include "cmpi/AssociationRelation.h"
#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"
#include "framework/FrameworkFacade.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

namespace {

// A subclass of the requested association class (any class when none is
// requested), asked of the object manager with a host-less class path.
bool isRequestedKind(const std::string& name, const std::string& nameSpace,
                     const char* assocClass, const CMPIBroker* broker) {
    if (assocClass == nullptr || *assocClass == '\0') {
        return true;
    }
    CMPIObjectPath* classPath = calls::newObjectPath(broker, nameSpace.c_str(), name.c_str());
    if (!calls::classPathIsA(broker, classPath, assocClass)) {
        return false;
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "%s is a child of %s", name.c_str(), assocClass);
    return true;
}

}  // namespace

void CMPIHelper::GetAssociationClasses(const CIMObjectPath& src, const char* assocClass,
                                       const CMPIBroker* broker,
                                       std::vector<std::string>& names) {
    fwf::FrameworkFacade* facade = fwf::FrameworkFacade::getInstance();
    std::vector<std::string> served;
    if (facade == nullptr || !facade->getAllPluginNames(served, src.getNameSpace())) {
        return;
    }
    std::string antecedent;
    std::string dependent;
    for (const std::string& name : served) {
        if (!facade->getAntecedentAndDependentNames(name, antecedent, dependent)) {
            continue;  // not an association
        }
        if (isRequestedKind(name, src.getNameSpace(), assocClass, broker) &&
            isRelatedAssociation(*facade, src, name, broker)) {
            names.push_back(facade->getClassName(name));
        }
    }
}

}  // namespace vex::cim::adap::cmpi

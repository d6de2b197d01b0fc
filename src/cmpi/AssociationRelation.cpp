#include "cmpi/AssociationRelation.h"

#include <vector>

#include "cmpi/CmpiCalls.h"
#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/CommonFunctions.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

namespace cf = fwf::CommonFunctions;

namespace {

bool isSchemaClass(const std::string& className) {
    return cf::toLower(className.substr(0, 4)) == "cim_";
}

bool classIsA(const std::string& nameSpace, const std::string& className,
              const std::string& superClass, const CMPIBroker* broker) {
    CMPIObjectPath* path = calls::newObjectPath(broker, nameSpace.c_str(), className.c_str());
    return path != nullptr && calls::classPathIsA(broker, path, superClass.c_str());
}

bool isSubclassOf(const fwf::CIMObjectPath& source, const std::string& className,
                  const CMPIBroker* broker) {
    return classIsA(source.getNameSpace(), source.getClassName(), className, broker);
}

// The classes of one end list that derive from `superClass`.
std::vector<std::string> derivedEnds(const std::string& end, const std::string& nameSpace,
                                     const std::string& superClass, const CMPIBroker* broker) {
    std::vector<std::string> found;
    for (unsigned int i = 0; i < cf::getStringCount(end); ++i) {
        std::string endClass = cf::getStringAt(end, i);
        if (classIsA(nameSpace, endClass, superClass, broker)) {
            found.push_back(std::move(endClass));
        }
    }
    return found;
}

// One end, which may list several classes ("VEX_A,VEX_B").
bool isAtEnd(const fwf::CIMObjectPath& source, const std::string& end,
             const std::string& assocClass, const CMPIBroker* broker) {
    const std::string& sourceClass = source.getClassName();
    for (unsigned int i = 0; i < cf::getStringCount(end); ++i) {
        std::string endClass = cf::getStringAt(end, i);
        if (cf::equalsIgnoreCase(endClass, sourceClass)) {
            TkzLogMsg(TKZ_LOG_DEBUG, "[STRING EQUAL] %s is related in %s", sourceClass.c_str(),
                      assocClass.c_str());
            return true;
        }
        if (isSchemaClass(endClass) && isSubclassOf(source, endClass, broker)) {
            TkzLogMsg(TKZ_LOG_DEBUG, "[IsRelated] %s is related in %s", sourceClass.c_str(),
                      assocClass.c_str());
            return true;
        }
    }
    return false;
}

}  // namespace

bool isRelatedAssociation(fwf::FrameworkFacade& facade, const fwf::CIMObjectPath& source,
                          const std::string& assocClass, const CMPIBroker* broker) {
    std::string antecedent;
    std::string dependent;
    if (!facade.getAntecedentAndDependentNames(assocClass, antecedent, dependent)) {
        return false;
    }
    return isAtEnd(source, antecedent, assocClass, broker) ||
           isAtEnd(source, dependent, assocClass, broker);
}

bool resultClassFilter(fwf::FrameworkFacade& facade, const std::string& assocClass,
                       const fwf::CIMObjectPath& source, const std::string& resultClass,
                       const CMPIBroker* broker, std::string& endFilter) {
    endFilter.clear();
    if (resultClass.empty()) {
        return true;
    }
    auto* plugin =
        dynamic_cast<fwf::AbstractAssociationProviderPlugin*>(facade.getPlugIn(assocClass));
    if (plugin == nullptr) {
        return false;
    }
    std::string named;
    if (plugin->getResultantClass(resultClass, named)) {
        endFilter = resultClass;
        return true;
    }
    const std::string& nameSpace = source.getNameSpace();
    const std::vector<std::string> first =
        derivedEnds(plugin->getAntecedent(), nameSpace, resultClass, broker);
    const std::vector<std::string> second =
        derivedEnds(plugin->getDependent(), nameSpace, resultClass, broker);
    if (first.empty() && second.empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "%s :: no end of %s is a %s", "resultClassFilter",
                  assocClass.c_str(), resultClass.c_str());
        return false;
    }
    if (first.empty() != second.empty()) {
        endFilter = first.empty() ? second.front() : first.front();
    }
    return true;
}

}  // namespace vex::cim::adap::cmpi

#include "cmpi/AssociationRelation.h"

#include "cmpi/CmpiCalls.h"
#include "framework/CommonFunctions.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

namespace cf = fwf::CommonFunctions;

namespace {

bool isSchemaClass(const std::string& className) {
    return cf::toLower(className.substr(0, 4)) == "cim_";
}

bool isSubclassOf(const fwf::CIMObjectPath& source, const std::string& className,
                  const CMPIBroker* broker) {
    CMPIObjectPath* sourceClass = calls::newObjectPath(broker, source.getNameSpace().c_str(),
                                                       source.getClassName().c_str());
    return calls::classPathIsA(broker, sourceClass, className.c_str());
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

}  // namespace vex::cim::adap::cmpi

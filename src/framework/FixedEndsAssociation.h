// FixedEndsAssociation: an association whose two end classes and role names
// never change. A concrete association names them once, in its constructor,
// and supplies only its matching rule.
#ifndef VEX_FRAMEWORK_FIXEDENDSASSOCIATION_H
#define VEX_FRAMEWORK_FIXEDENDSASSOCIATION_H

#include <string>
#include <utility>

#include "framework/AbstractAssociationProviderPlugin.h"

namespace vex::cim::fwf {

struct AssociationEnds {
    std::string antecedent;      // end class name (or a ',' list of them)
    std::string dependent;
    std::string antecedentRole;  // reference property name
    std::string dependentRole;
};

class FixedEndsAssociation : public AbstractAssociationProviderPlugin {
public:
    explicit FixedEndsAssociation(AssociationEnds ends) : m_ends(std::move(ends)) {}

    std::string getAntecedent() override { return m_ends.antecedent; }
    std::string getDependent() override { return m_ends.dependent; }
    std::string getAntecedentPropertyName() override { return m_ends.antecedentRole; }
    std::string getDependentPropertyName() override { return m_ends.dependentRole; }

private:
    const AssociationEnds m_ends;
};

}  // namespace vex::cim::fwf

#endif

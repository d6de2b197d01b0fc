// The reference an association family is measured against: the association
// base's own algorithm - both end classes enumerated, every pair compared with
// the member's MatchInstances, every request from one object answered from
// the whole association - around a family member. Equality tests and the
// association benchmark put it beside the member itself.
#ifndef VEX_TESTS_ASSOCIATIONS_CROSSPRODUCTREFERENCE_H
#define VEX_TESTS_ASSOCIATIONS_CROSSPRODUCTREFERENCE_H

#include <string>
#include <vector>

#include "framework/AbstractAssociationProviderPlugin.h"

namespace vex::assoctest {

class CrossProductReference final : public cim::fwf::AbstractAssociationProviderPlugin {
public:
    explicit CrossProductReference(cim::fwf::AbstractAssociationProviderPlugin& member)
        : m_member(member) {}

    bool MatchInstances(cim::fwf::CIMInstance& a, cim::fwf::CIMInstance& b,
                        std::vector<cim::fwf::CIMProperty>& extra) override {
        return m_member.MatchInstances(a, b, extra);
    }
    std::string getAntecedent() override { return m_member.getAntecedent(); }
    std::string getDependent() override { return m_member.getDependent(); }
    std::string getAntecedentPropertyName() override { return m_member.getAntecedentPropertyName(); }
    std::string getDependentPropertyName() override { return m_member.getDependentPropertyName(); }

private:
    cim::fwf::AbstractAssociationProviderPlugin& m_member;
};

}  // namespace vex::assoctest

#endif

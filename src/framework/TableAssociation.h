// TableAssociation: the generic association plug-in over an AssociationRow.
// Its instances are exactly those of the association base's cross product
// with MatchInstances = "the join keys agree and the row's condition holds",
// in the same order, but computed as a join: each end is enumerated once, the
// second end indexed by its keys, the first probing it - O(n + m) instead of
// O(n * m). Following the association from one object (associators,
// references) fetches that object, computes its keys and enumerates only the
// other end.
//
// A family member is one line: a named class deriving from
// RowAssociation<table, index>.
#ifndef VEX_FRAMEWORK_TABLEASSOCIATION_H
#define VEX_FRAMEWORK_TABLEASSOCIATION_H

#include <cstddef>
#include <string>
#include <vector>

#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/AssociationRow.h"

namespace vex::cim::fwf {

class TableAssociation : public AbstractAssociationProviderPlugin {
public:
    explicit TableAssociation(const AssociationRow& row) : m_row(row) {}

    const AssociationRow& row() const { return m_row; }

    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
    std::string getAntecedent() override { return m_row.first; }
    std::string getDependent() override { return m_row.second; }
    std::string getAntecedentPropertyName() override { return m_row.firstRole; }
    std::string getDependentPropertyName() override { return m_row.secondRole; }

    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;

protected:
    std::vector<CIMInstance> candidateLinks(const CIMObjectPath& source,
                                            CIMObjectPath& assocPath) override;

private:
    const AssociationRow& m_row;
};

template <const AssociationRow* Rows, std::size_t Index>
class RowAssociation : public TableAssociation {
public:
    RowAssociation() : TableAssociation(Rows[Index]) {}
};

}  // namespace vex::cim::fwf

#endif

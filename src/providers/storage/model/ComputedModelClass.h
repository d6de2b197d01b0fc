// ComputedModelClass: the derivation base of the storage model classes
// computed from the object cache (StorageModelTable.h). It builds the
// class's instances with its row's function on every request; a request
// path with keys names exactly one instance: all of its keys, no others.
// Rows with extrinsic methods take ComputedModelClassWithMethods, which runs
// them as controller routines. A plug-in class is one line over
// framework/DerivedInstancePlugin.h (StorageModelClasses.h).
#ifndef VEX_PROVIDERS_STORAGE_MODEL_COMPUTEDMODELCLASS_H
#define VEX_PROVIDERS_STORAGE_MODEL_COMPUTEDMODELCLASS_H

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

#include "framework/AbstractMethodProviderPlugin.h"
#include "framework/ComputedInstanceProviderPlugin.h"
#include "providers/storage/model/StorageModelTable.h"

namespace vex::cim::fwf::storage {

// Every instance of `row`'s class for `request`; failures other than
// CIMException become code 1.
void buildDerived(const DerivedClassRow& row, const CIMObjectPath& request, std::vector<CIMInstance>& out);
// The instances `path` names: all for a class path; for an instance path the
// one whose keys are exactly the path's (names in any case, in any order).
void selectNamed(const CIMObjectPath& path, std::vector<CIMInstance>& all, std::vector<CIMInstance>& out);

class ComputedModelClass : public ComputedInstanceProviderPlugin {
public:
    explicit ComputedModelClass(const DerivedClassRow& row) : m_row(row) {}

    void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) override;

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override {
        buildDerived(m_row, request, out);
    }

private:
    const DerivedClassRow& m_row;
};

class ComputedModelClassWithMethods : public ComputedModelClass, public AbstractMethodProviderPlugin {
public:
    using ComputedModelClass::ComputedModelClass;

    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                              const CIMMethodParam& in, CIMMethodParam& out) override;
};

// The derivation base of row `Id`.
template <DerivedClassId Id>
using ComputedModelBase = std::conditional_t<kDerivedClasses[Id].hasMethods, ComputedModelClassWithMethods,
                                             ComputedModelClass>;

}  // namespace vex::cim::fwf::storage

#endif

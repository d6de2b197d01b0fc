// DerivedInstancePlugin<Id>: the one plug-in template of the storage model
// classes computed from the object cache (StorageModelTable.h). It builds
// the class's instances with its row's function on every request; a request
// path with keys names exactly one instance: all of its keys, no others.
// Members with extrinsic methods run them as controller routines. A plug-in
// class is one line:
//   class VEX_PrimordialStoragePool final : public DerivedInstancePlugin<kPrimordialStoragePool> {};
#ifndef VEX_PROVIDERS_STORAGE_MODEL_DERIVEDINSTANCEPLUGIN_H
#define VEX_PROVIDERS_STORAGE_MODEL_DERIVEDINSTANCEPLUGIN_H

#include <type_traits>
#include <vector>

#include "framework/AbstractMethodProviderPlugin.h"
#include "framework/ComputedInstanceProviderPlugin.h"
#include "providers/storage/ControllerMethod.h"
#include "providers/storage/model/StorageModelTable.h"

namespace vex::cim::fwf::storage {

// Every instance of `row`'s class for `request`; failures other than
// CIMException become code 1.
void buildDerived(const DerivedClassRow& row, const CIMObjectPath& request, std::vector<CIMInstance>& out);
// The instances `path` names: all for a class path; for an instance path the
// one whose keys are exactly the path's (names in any case, in any order).
void selectNamed(const CIMObjectPath& path, std::vector<CIMInstance>& all, std::vector<CIMInstance>& out);

template <DerivedClassId Id>
class DerivedInstances : public ComputedInstanceProviderPlugin {
public:
    void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) override {
        std::vector<CIMInstance> all;
        buildInstances(path, all);
        selectNamed(path, all, out);
    }

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override {
        buildDerived(kDerivedClasses[Id], request, out);
    }
};

template <DerivedClassId Id>
class DerivedWithMethods : public DerivedInstances<Id>, public AbstractMethodProviderPlugin {
public:
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                              const CIMMethodParam& in, CIMMethodParam& out) override {
        return invokeControllerRoutine(path, methodName, in, out);
    }
};

template <DerivedClassId Id>
using DerivedInstancePlugin = std::conditional_t<kDerivedClasses[Id].hasMethods, DerivedWithMethods<Id>,
                                                 DerivedInstances<Id>>;

}  // namespace vex::cim::fwf::storage

#endif

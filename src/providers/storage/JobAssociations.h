// The job associations, as rows of the association family:
//   VEX_AffectedJobElement  the logical drive or drive a job works on
//                           (AffectedElement) and the job (AffectingElement);
//   VEX_OwningJobElement    the controller whose task the job is
//                           (OwningElement) and the job (OwnedElement).
// A job names its target in "DeviceTypeAndID" ("LogicalDrive:<DeviceID>",
// "HardDrive:<DeviceID>") and its controller by the leading number of its
// "InstanceID". Both trace their entry points by their class name.
#ifndef VEX_PROVIDERS_STORAGE_JOBASSOCIATIONS_H
#define VEX_PROVIDERS_STORAGE_JOBASSOCIATIONS_H

#include <cstddef>
#include <string>
#include <vector>

#include "framework/TableAssociation.h"

namespace vex::cim::fwf {

void affectedElementKeys(const CIMInstance& element, std::vector<std::string>& keys);
void jobTargetKeys(const CIMInstance& job, std::vector<std::string>& keys);
void jobControllerKeys(const CIMInstance& job, std::vector<std::string>& keys);
bool jobEffects(const CIMInstance& element, const CIMInstance& job, std::vector<CIMProperty>& extra);

enum JobAssociationId : std::size_t { kAffectedJobElement, kOwningJobElement };

// clang-format off
inline constexpr AssociationRow kJobAssociationRows[] = {
    {"VEX_AffectedJobElement", "VEX_StorageVolume,VEX_DiskDrive", "VEX_ConcreteJob",
     "AffectedElement", "AffectingElement", {nullptr, &affectedElementKeys}, {nullptr, &jobTargetKeys}, &jobEffects},
    {"VEX_OwningJobElement", "VEX_ControllerComputerSystem", "VEX_ConcreteJob",
     "OwningElement", "OwnedElement", {"Name"}, {nullptr, &jobControllerKeys}},
};
// clang-format on

// A job association whose entry points trace "Entering <class>::<operation>"
// and "Exiting <class>::<operation>".
template <std::size_t Index>
class TracedJobAssociation : public RowAssociation<kJobAssociationRows, Index> {
    using Base = RowAssociation<kJobAssociationRows, Index>;

public:
    void enumerateInstances(CIMObjectPath& path, std::vector<CIMInstance>& out, bool flag) override {
        Trace trace(*this, "enumerateInstances");
        Base::enumerateInstances(path, out, flag);
    }
    void enumerateInstanceNames(CIMObjectPath& path, std::vector<CIMObjectPath>& out) override {
        Trace trace(*this, "enumerateInstanceNames");
        Base::enumerateInstanceNames(path, out);
    }
    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) override {
        Trace trace(*this, "getCIMInstance");
        Base::getCIMInstance(path, out);
    }

private:
    struct Trace {
        Trace(const TableAssociation& self, const char* operation);
        ~Trace();
        std::string where;
    };
};

class VEX_AffectedJobElement final : public TracedJobAssociation<kAffectedJobElement> {};
class VEX_OwningJobElement final : public TracedJobAssociation<kOwningJobElement> {};

}  // namespace vex::cim::fwf

#endif

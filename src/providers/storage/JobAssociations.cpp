#include "providers/storage/JobAssociations.h"

#include "framework/CommonFunctions.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

// ElementEffects: a controller task on an element slows its I/O down.
constexpr unsigned short kPerformanceImpact = 3;

}  // namespace

void affectedElementKeys(const CIMInstance& element, std::vector<std::string>& keys) {
    const std::string id = keyText(element, "DeviceID");
    if (id.empty()) {
        return;
    }
    const bool volume =
        CommonFunctions::equalsIgnoreCase(element.getPath().getClassName(), "VEX_StorageVolume");
    keys.push_back((volume ? "LogicalDrive:" : "HardDrive:") + id);
}

void jobTargetKeys(const CIMInstance& job, std::vector<std::string>& keys) {
    const std::string target = keyText(job, "DeviceTypeAndID");
    if (!target.empty()) {
        keys.push_back(target);
    }
}

// "vexController_<n>" for a job "<n>_<task>".
void jobControllerKeys(const CIMInstance& job, std::vector<std::string>& keys) {
    const std::string id = keyText(job, "InstanceID");
    const std::size_t underscore = id.find('_');
    if (underscore != std::string::npos && underscore > 0) {
        keys.push_back("vexController_" + id.substr(0, underscore));
    }
}

bool jobEffects(const CIMInstance&, const CIMInstance&, std::vector<CIMProperty>& extra) {
    extra.emplace_back("ElementEffects", CIMValue<unsigned short>(kPerformanceImpact), false,
                       CIM_UINT16_ARRAY, false);
    return true;
}

template <std::size_t Index>
TracedJobAssociation<Index>::Trace::Trace(const TableAssociation& self, const char* operation)
    : where(std::string(self.row().className) + "::" + operation) {
    TkzTrace(("Entering " + where).c_str());
}

template <std::size_t Index>
TracedJobAssociation<Index>::Trace::~Trace() {
    TkzTrace(("Exiting " + where).c_str());
}

template class TracedJobAssociation<kAffectedJobElement>;
template class TracedJobAssociation<kOwningJobElement>;

}  // namespace vex::cim::fwf

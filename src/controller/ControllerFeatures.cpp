#include <storlib/Feature.h>
#include <storlib/HardDrive.h>

#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"

namespace vex::cim::fwf::fsamap {

// Two parallel arrays: the capability's name and its value (1 supported,
// 0 not supported, -1 present but not enabled), both as text.
void insertFeatInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    for (const storlib::FeatureEntry& feature : controller.adapter->getFeatures()) {
        const char* name = storlib::featureName(feature.id);
        instance.fsaPushBack<std::string>(
            "CSfeatPropNames", *name != '\0' ? std::string(name) : formatText("Feature_%u", feature.id));
        instance.fsaPushBack<std::string>("CSfeatPropValues", formatText("%d", feature.value));
    }
}

void addReadyDriveCount(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    const storlib::FilterCollection drives(*controller.adapter, storlib::HardDrive::kClassName);
    instance.fsaAddProp("CSNoOfReadyDrives", static_cast<unsigned short>(drives.size()));
}

}  // namespace vex::cim::fwf::fsamap

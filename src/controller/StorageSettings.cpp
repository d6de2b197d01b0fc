#include <storlib/LogicalDrive.h>
#include <storlib/Names.h>

#include "controller/CimNames.h"
#include "controller/PoolMapping.h"
#include "controller/RaidRedundancy.h"
#include "controller/InstanceBatch.h"

namespace vex::cim::fwf::fsamap {

namespace {

struct SettingContext {
    LogicalDriveContext logicalDrive;
    Redundancy redundancy;
};

using Row = PropertyRow<SettingContext>;

// CIM_StorageSetting.ChangeableType 0: Not Changeable - Persistent (the
// setting describes a volume that exists). ParityLayout 2: Rotated Parity.
constexpr unsigned kNotChangeablePersistent = 0;
constexpr unsigned kRotatedParity = 2;

int idOf(const SettingContext& s) { return static_cast<int>(s.logicalDrive.logicalDrive->getLogicalDriveID()); }
RawValue data(const SettingContext& s) { return raw(s.redundancy.dataRedundancy); }
RawValue package(const SettingContext& s) { return raw(s.redundancy.packageRedundancy); }

const Row kSetting[] = {
    {"InstanceID", CIM_STRING, KEY,
     [](const SettingContext& s) { return raw(formatText("VolumeSetting_%d_%d", s.logicalDrive.controller, idOf(s))); }},
    {"ElementName", CIM_STRING, PLAIN, [](const SettingContext& s) { return raw(s.logicalDrive.logicalDrive->getName()); }},
    {"ChangeableType", CIM_UINT16, PLAIN, [](const SettingContext&) { return raw(kNotChangeablePersistent); }},
    {"NoSinglePointOfFailure", CIM_BOOLEAN, PLAIN, [](const SettingContext& s) { return raw(s.redundancy.noSinglePointOfFailure()); }},
    {"DataRedundancyMin", CIM_UINT16, PLAIN, data},
    {"DataRedundancyMax", CIM_UINT16, PLAIN, data},
    {"DataRedundancyGoal", CIM_UINT16, PLAIN, data},
    {"PackageRedundancyMin", CIM_UINT16, PLAIN, package},
    {"PackageRedundancyMax", CIM_UINT16, PLAIN, package},
    {"PackageRedundancyGoal", CIM_UINT16, PLAIN, package},
    {"ExtentStripeLength", CIM_UINT16, PLAIN, [](const SettingContext& s) { return raw(s.redundancy.stripeLength); }},
    {"UserDataStripeDepth", CIM_UINT64, PLAIN,
     [](const SettingContext& s) { return raw(s.logicalDrive.logicalDrive->getStripeSizeKB() * 1024ull); }},
    {"ParityLayout", CIM_UINT16, PLAIN,
     [](const SettingContext& s) { return s.redundancy.parity ? raw(kRotatedParity) : RawValue(); }},
    {"RAIDLevel", CIM_STRING, PLAIN,
     [](const SettingContext& s) { return raw(storlib::toString(s.logicalDrive.logicalDrive->getRaidLevel())); }},
    // The pool and volume the setting belongs to.
    {"PoolInstanceID", CIM_STRING, PLAIN, [](const SettingContext& s) { return raw(logicalDriveId(s.logicalDrive.controller, idOf(s))); }},
    {"VolumeDeviceID", CIM_STRING, PLAIN, [](const SettingContext& s) { return raw(logicalDriveId(s.logicalDrive.controller, idOf(s))); }},
};

}  // namespace

void updateAssociatedStorageSettings(const ControllerContext& controller, InstanceBatch& batch) {
    for (const storlib::RaidObject* object :
         storlib::FilterCollection(*controller.adapter, storlib::LogicalDrive::kClassName)) {
        const auto* logicalDrive = object->as<storlib::LogicalDrive>();
        const SettingContext setting{{controller.index, logicalDrive}, redundancyOf(*logicalDrive)};
        fsaCIMInstanceWrapper instance;
        instance.addRows(kSetting, setting);
        batch.add(VEX_OBJ_VOLUME_SETTING, instance);
    }
}

}  // namespace vex::cim::fwf::fsamap

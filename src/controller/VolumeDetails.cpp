#include "controller/CimNames.h"
#include "controller/PoolMapping.h"
#include "controller/InstanceBatch.h"

namespace vex::cim::fwf::fsamap {

namespace {

using Row = PropertyRow<LogicalDriveContext>;

RawValue poolInstanceId(const LogicalDriveContext& l) {
    return logicalDriveId(l.controller, static_cast<int>(l.logicalDrive->getLogicalDriveID()));
}

const Row kVolume[] = {
    {"SVSystemCreationClassName", CIM_STRING, KEY_AND_VIEW_KEY, [](const LogicalDriveContext&) { return raw(kControllerSystemClass); }},
    {"SVSystemName", CIM_STRING, KEY_AND_VIEW_KEY,
     [](const LogicalDriveContext& l) { return raw(controllerSystemName(l.controller)); }},
    {"SVCreationClassName", CIM_STRING, KEY_AND_VIEW_KEY, [](const LogicalDriveContext&) { return raw(kStorageVolumeClass); }},
    {"SPInstanceID", CIM_STRING, PLAIN, poolInstanceId},
    // The volume carries the identifier of the logical drive, like its pool.
    {"SVDeviceID", CIM_STRING, KEY_AND_VIEW_KEY, poolInstanceId},
    {"SPPoolID", CIM_STRING, PLAIN,
     [](const LogicalDriveContext& l) { return raw(formatText("%d", static_cast<int>(l.logicalDrive->getLogicalDriveID()))); }},
    {"SVIsBootDisk", CIM_BOOLEAN, PLAIN, [](const LogicalDriveContext& l) { return raw(l.logicalDrive->isBootDisk()); }},
};

}  // namespace

void insertVolumeDetails(const LogicalDriveContext& logicalDrive, InstanceBatch& batch) {
    fsaCIMInstanceWrapper volume;
    volume.addRows(kVolume, logicalDrive);
    batch.add(VEX_OBJ_STORAGE_VOLUME, volume);
}

}  // namespace vex::cim::fwf::fsamap

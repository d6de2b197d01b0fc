// Logical drive mapping. Each logical drive of a controller becomes a pool
// instance ("SP" concrete pool, "SC" its capabilities) of cache type 4 or 5
// and a volume instance ("SV") of type 2; its storage setting goes to type 15.
#ifndef VEX_CONTROLLER_POOLMAPPING_H
#define VEX_CONTROLLER_POOLMAPPING_H

#include "controller/FsaCIMInstanceWrapper.h"
#include "controller/MappingContext.h"
#include "framework/VexObjectType.h"

namespace vex::cim::fwf {
class InstanceBatch;
}

namespace vex::cim::fwf::fsamap {

// Every logical drive's pool into type 4 or 5 (see poolTypeOf) and its volume into type 2.
void updateVirtualDisk(const ControllerContext& controller, InstanceBatch& batch);

// A logical drive larger than the controller's size limit whose extended
// addressing flag is clear goes to type 5; every other one to type 4.
_eVEXObjectType poolTypeOf(const storlib::Adapter& adapter, const storlib::LogicalDrive& logicalDrive);

// Fills the pool instance and adds the logical drive's volume to type 2.
void insertPoolDetails(const LogicalDriveContext& logicalDrive, fsaCIMInstanceWrapper& pool,
                       InstanceBatch& batch);
void insertVolumeDetails(const LogicalDriveContext& logicalDrive, InstanceBatch& batch);
// The logical drive's member chunks ("CE" arrays), its dedicated spares and
// the space it consumes on drives that count ("SPSpaceConsumed").
void insertPoolChunks(const LogicalDriveContext& logicalDrive, fsaCIMInstanceWrapper& pool);

// One storage setting per logical drive into type 15.
void updateAssociatedStorageSettings(const ControllerContext& controller, InstanceBatch& batch);

}  // namespace vex::cim::fwf::fsamap

#endif

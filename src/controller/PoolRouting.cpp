#include <storlib/LogicalDrive.h>

#include "controller/PoolMapping.h"
#include "controller/InstanceBatch.h"

namespace vex::cim::fwf::fsamap {

_eVEXObjectType poolTypeOf(const storlib::Adapter& adapter, const storlib::LogicalDrive& logicalDrive) {
    const bool overLimit = logicalDrive.getDataSizeMB() > adapter.getLegacyLbaLimitMB();
    return overLimit && !logicalDrive.hasExtendedLba() ? VEX_OBJ_SSP_POOL : VEX_OBJ_CONCRETE_POOL;
}

void updateVirtualDisk(const ControllerContext& controller, InstanceBatch& batch) {
    for (const storlib::RaidObject* object :
         storlib::FilterCollection(*controller.adapter, storlib::LogicalDrive::kClassName)) {
        const LogicalDriveContext logicalDrive{controller.index, object->as<storlib::LogicalDrive>()};
        fsaCIMInstanceWrapper pool;
        insertPoolDetails(logicalDrive, pool, batch);
        batch.add(poolTypeOf(*controller.adapter, *logicalDrive.logicalDrive), pool);
    }
}

}  // namespace vex::cim::fwf::fsamap

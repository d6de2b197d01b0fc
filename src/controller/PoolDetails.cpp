#include <storlib/Names.h>

#include "controller/CimNames.h"
#include "controller/FsaTimes.h"
#include "controller/PoolMapping.h"
#include "controller/RaidRedundancy.h"
#include "controller/StatusMaps.h"

namespace vex::cim::fwf::fsamap {

namespace {

using storlib::LogicalDriveData;
using Row = PropertyRow<LogicalDriveContext>;

template <auto Member>
constexpr RawValue (*L)(const LogicalDriveContext&) = &fieldOf<LogicalDriveContext, Member>;

constexpr unsigned long long kMiB = 1024ull * 1024ull;
// CIM_StorageCapabilities.ElementType 5: StoragePool.
constexpr unsigned kElementTypeStoragePool = 5;

const storlib::LogicalDrive& of(const LogicalDriveContext& l) { return *l.logicalDrive; }
int idOf(const LogicalDriveContext& l) { return static_cast<int>(of(l).getLogicalDriveID()); }

template <auto Member>
RawValue bytes(const LogicalDriveContext& l) {
    return raw((of(l).getLogicalDriveData().*Member) * kMiB);
}

RawValue instanceId(const LogicalDriveContext& l) { return logicalDriveId(l.controller, idOf(l)); }

const Row kPool[] = {
    {"SPInstanceID", CIM_STRING, KEY_AND_VIEW_KEY, instanceId},
    {"SPElementName", CIM_STRING, PLAIN, L<&LogicalDriveData::name>},
    {"SPPoolID", CIM_STRING, PLAIN, [](const LogicalDriveContext& l) { return raw(formatText("%d", idOf(l))); }},
    // A logical drive is used whole by its volume.
    {"SPRemainingManagedSpace", CIM_UINT64, PLAIN, [](const LogicalDriveContext&) { return raw(0ull); }},
    {"SPTotalManagedSpace", CIM_UINT64, PLAIN, bytes<&LogicalDriveData::dataSizeMB>},
    {"SPPrimordial", CIM_BOOLEAN, PLAIN, [](const LogicalDriveContext&) { return raw(false); }},
    {"SPBadStripes", CIM_UINT32, PLAIN, L<&LogicalDriveData::badStripes>},
    {"SPControllerID", CIM_UINT32, PLAIN, [](const LogicalDriveContext& l) { return raw(l.controller); }},
    {"SPDataSpace", CIM_UINT64, PLAIN, bytes<&LogicalDriveData::dataSizeMB>},
    {"SPDateCreated", CIM_STRING, PLAIN, [](const LogicalDriveContext& l) { return raw(dateText(of(l).getCreationTime())); }},
    {"SPHotSpareProtected", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::hotSpareProtected>},
    {"SPInterfaceType", CIM_STRING, PLAIN,
     [](const LogicalDriveContext& l) {
         const storlib::InterfaceType type = of(l).getInterfaceType();
         return raw(type == storlib::InterfaceType::Unknown ? "Unknown" : storlib::toString(type));
     }},
    {"FSAVolTaskPriority", CIM_UINT32, PLAIN, L<&LogicalDriveData::taskPriority>},
    {"SPHasPartition", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::hasPartition>},
    {"SPBlockSize", CIM_UINT64, PLAIN, L<&LogicalDriveData::blockSize>},
    {"SPUnixMountPoint", CIM_STRING, PLAIN, L<&LogicalDriveData::mountPoint>},
    {"SPOperationalStatus", CIM_UINT16_ARRAY, PLAIN,
     [](const LogicalDriveContext& l) { return RawValue(logicalDriveOperationalStatus(of(l))); }},
    {"SPPowerOfftimer", CIM_UINT32, PLAIN, L<&LogicalDriveData::powerOffTimerMin>},
    {"SPPowerEnabled", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::powerManagementEnabled>},
    {"SPPowerState", CIM_UINT32, PLAIN, L<&LogicalDriveData::powerState>},
    {"SPFastTierSetting", CIM_UINT32, PLAIN, L<&LogicalDriveData::fastTierSetting>},
    {"SPPreferredFastTierSetting", CIM_UINT32, PLAIN, L<&LogicalDriveData::fastTierPreferred>},
    {"SPFastTierWriteCacheSetting", CIM_UINT32, PLAIN, L<&LogicalDriveData::fastTierWriteCacheSetting>},
    {"SPPreferredFastTierWriteCacheSetting", CIM_UINT32, PLAIN, L<&LogicalDriveData::fastTierWriteCachePreferred>},
    {"SPFastTierWriteCachePolicySetting", CIM_UINT32, PLAIN, L<&LogicalDriveData::fastTierWriteCachePolicy>},
    {"SPIsAFastTier3", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::isFastTier3>},
    {"SPRAIDLevel", CIM_UINT32, PLAIN, L<&LogicalDriveData::raidLevel>},
    {"SPSerialNumber", CIM_STRING, PLAIN, [](const LogicalDriveContext& l) { return raw(formatText("%08X", of(l).getSerialNumber())); }},
    {"SPReduceRPMtimer", CIM_UINT32, PLAIN, L<&LogicalDriveData::reduceRpmTimerMin>},
    {"SPVerifytimer", CIM_UINT32, PLAIN, L<&LogicalDriveData::verifyTimerHours>},
    {"SPForceOnlineFlags", CIM_UINT32, PLAIN, L<&LogicalDriveData::forceOnlineFlags>},
    {"SPLogicalDriveID", CIM_UINT32, PLAIN, [](const LogicalDriveContext& l) { return raw(idOf(l)); }},
    // The read cache is on; write-back is in effect now.
    {"SPReadCacheModeFlag", CIM_BOOLEAN, PLAIN,
     [](const LogicalDriveContext& l) { return raw(of(l).getReadCacheMode() == storlib::ReadCacheMode::On); }},
    {"SPWriteCacheModeFlag", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::writeCacheActive>},
    {"SPIsQuickInit", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::quickInitialized>},
    // The configured modes (0 off / 1 on; 0 write-through, 1 write-back,
    // 2 write-back when protected) and the write mode in effect (0 or 1).
    {"SPReadCacheMode", CIM_UINT32, PLAIN, L<&LogicalDriveData::readCache>},
    {"SPWriteCacheSettings", CIM_UINT32, PLAIN, L<&LogicalDriveData::writeCacheActive>},
    {"SPWriteCacheMode", CIM_UINT32, PLAIN, L<&LogicalDriveData::writeCache>},
    {"SPStripeSize", CIM_UINT32, PLAIN, L<&LogicalDriveData::stripeSizeKB>},
    {"SPMirrorSpace", CIM_UINT64, PLAIN, bytes<&LogicalDriveData::mirrorSpaceMB>},
    {"SPParitySpace", CIM_UINT64, PLAIN, bytes<&LogicalDriveData::paritySpaceMB>},
    {"SPFastTierWCProtected", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::fastTierWCProtected>},
    {"SPFastTierWCNoBattery", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::fastTierWCNoBattery>},
    {"SPFastTierWCNonRedundant", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::fastTierWCNonRedundant>},
    {"SPState", CIM_UINT32, PLAIN, L<&LogicalDriveData::state>},
    {"SPSubstate", CIM_UINT32, PLAIN, L<&LogicalDriveData::substate>},
    {"SPRaid5EEState", CIM_UINT32, PLAIN, L<&LogicalDriveData::raid5EEState>},
    {"SPFastTierDirtyStatus", CIM_BOOLEAN, PLAIN, L<&LogicalDriveData::fastTierDirty>},
};

RawValue packageRedundancy(const LogicalDriveContext& l) { return raw(redundancyOf(of(l)).packageRedundancy); }
RawValue dataRedundancy(const LogicalDriveContext& l) { return raw(redundancyOf(of(l)).dataRedundancy); }
RawValue noSinglePointOfFailure(const LogicalDriveContext& l) { return raw(redundancyOf(of(l)).noSinglePointOfFailure()); }

// The capabilities of a pool that is one logical drive: exactly what its level gives.
const Row kCapabilities[] = {
    {"SCInstanceID", CIM_STRING, VIEW_KEY,
     [](const LogicalDriveContext& l) { return raw(formatText("%d_%d_Capabilities", l.controller, idOf(l))); }},
    {"SCElementName", CIM_STRING, PLAIN,
     [](const LogicalDriveContext& l) { return raw(storlib::toString(of(l).getRaidLevel())); }},
    {"SCElementType", CIM_UINT16, PLAIN, [](const LogicalDriveContext&) { return raw(kElementTypeStoragePool); }},
    {"SCNoSinglePointOfFailure", CIM_BOOLEAN, PLAIN, noSinglePointOfFailure},
    {"SCNoSinglePointOfFailureDefault", CIM_BOOLEAN, PLAIN, noSinglePointOfFailure},
    {"SCPackageRedundancyMin", CIM_UINT16, PLAIN, packageRedundancy},
    {"SCPackageRedundancyMax", CIM_UINT16, PLAIN, packageRedundancy},
    {"SCDataRedundancyMin", CIM_UINT16, PLAIN, dataRedundancy},
    {"SCDataRedundancyMax", CIM_UINT16, PLAIN, dataRedundancy},
    {"SCDataRedundancyDefault", CIM_UINT16, PLAIN, dataRedundancy},
};

}  // namespace

void insertPoolDetails(const LogicalDriveContext& logicalDrive, fsaCIMInstanceWrapper& pool,
                       InstanceBatch& batch) {
    pool.addRows(kPool, logicalDrive);
    pool.addRows(kCapabilities, logicalDrive);
    insertPoolChunks(logicalDrive, pool);
    insertVolumeDetails(logicalDrive, batch);
}

}  // namespace vex::cim::fwf::fsamap

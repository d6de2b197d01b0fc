// The join keys and association properties of the storage associations
// (StorageAssociations.h). Keys are the texts plain property keys give
// (stringKey), so a computed key meets a plain one of the other end.
#include <algorithm>

#include "framework/PropertyBuilders.h"
#include "providers/storage/StorageAssociations.h"
#include "providers/storage/model/ModelInstances.h"
#include "providers/storage/model/StorageLayout.h"
#include "providers/storage/model/StorageModelTable.h"

namespace vex::cim::fwf::storage {

namespace {

// CIM_IsSpare: SpareStatus 2 Hot Standby, FailoverSupported 2 Automatic.
constexpr unsigned short kHotStandby = 2, kAutomatic = 2;
// CIM_ElementSettingData: IsDefault 1 Is Default, IsCurrent 1 Is Current.
constexpr unsigned short kIsDefault = 1, kIsCurrent = 1;
// CIM_ProtocolControllerForUnit.DeviceAccess 1: Read Write.
constexpr unsigned short kReadWrite = 1;

void addKey(const std::string& text, std::vector<std::string>& keys) {
    if (!text.empty()) {
        keys.push_back(stringKey(text));
    }
}

void ownerKey(const CIMInstance& instance, const char* suffix, bool system, std::vector<std::string>& keys) {
    const std::string owner = ownerOf(stringValueOf(instance, "InstanceID"), suffix);
    addKey(system ? systemOfId(owner) : owner, keys);
}

bool broken(const CIMInstance& instance, const char* statusName) {
    const std::vector<std::uint64_t> status = numbersOf(instance, statusName);
    return std::find(status.begin(), status.end(), 3u) != status.end();  // 3 Broken
}

CIMProperty u64(const char* name, std::uint64_t value) {
    return CIMProperty(name, CIMValue<unsigned long long>(value), false, CIM_UINT64, false);
}

bool spaceConsumed(std::uint64_t value, std::vector<CIMProperty>& extra) {
    extra.push_back(u64("SpaceConsumed", value));
    return true;
}

}  // namespace

void poolSystemKey(const CIMInstance& pool, std::vector<std::string>& keys) {
    addKey(systemOfId(stringValueOf(pool, "InstanceID")), keys);
}

void poolViewSystemKey(const CIMInstance& view, std::vector<std::string>& keys) {
    addKey(systemOfId(stringValueOf(view, "SPInstanceID")), keys);
}

void capabilitiesOwnerKey(const CIMInstance& caps, std::vector<std::string>& keys) {
    addKey(ownerOf(stringValueOf(caps, "InstanceID"), kCapabilitiesSuffix), keys);
}

void dedicatedSetPoolKey(const CIMInstance& set, std::vector<std::string>& keys) {
    ownerKey(set, kDedicatedSparesSuffix, false, keys);
}

void dedicatedSetSystemKey(const CIMInstance& set, std::vector<std::string>& keys) {
    ownerKey(set, kDedicatedSparesSuffix, true, keys);
}

void globalSetSystemKey(const CIMInstance& set, std::vector<std::string>& keys) {
    addKey(ownerOf(stringValueOf(set, "InstanceID"), kGlobalSparesSuffix), keys);
}

void failOverSystemKey(const CIMInstance& collection, std::vector<std::string>& keys) {
    addKey(ownerOf(stringValueOf(collection, "InstanceID"), kFailOverSuffix), keys);
}

void dedicatedSpareKeys(const CIMInstance& extent, std::vector<std::string>& keys) {
    if (numberOf(extent, "SpareType") == static_cast<unsigned>(Spare::Dedicated)) {
        for (const std::string& pool : stringsOf(extent, "DedicatedTo")) {
            addKey(pool, keys);
        }
    }
}

void globalSpareKey(const CIMInstance& extent, std::vector<std::string>& keys) {
    if (numberOf(extent, "SpareType") == static_cast<unsigned>(Spare::Global)) {
        addKey(stringValueOf(extent, "SystemName"), keys);
    }
}

void anySpareKey(const CIMInstance& extent, std::vector<std::string>& keys) {
    if (numberOf(extent, "SpareType") != static_cast<unsigned>(Spare::None)) {
        addKey(stringValueOf(extent, "SystemName"), keys);
    }
}

// Global spares protect the chunks of every redundant logical drive.
void protectedChunkKey(const CIMInstance& extent, std::vector<std::string>& keys) {
    if (!stringValueOf(extent, "PoolInstanceID").empty() && numberOf(extent, "PackageRedundancy") > 0) {
        addKey(stringValueOf(extent, "SystemName"), keys);
    }
}

void countedExtentKey(const CIMInstance& extent, std::vector<std::string>& keys) {
    if (extent.getPropertyByName("NumberOfBlocks") != nullptr && !broken(extent, "ExtentStatus")) {
        addKey(stringValueOf(extent, "SystemName"), keys);
    }
}

void countedDriveViewKey(const CIMInstance& view, std::vector<std::string>& keys) {
    if (view.getPropertyByName("SENumberOfBlocks") != nullptr && !broken(view, "SEExtentStatus")) {
        addKey(stringValueOf(view, "DDSystemName"), keys);
    }
}

void settingSystemKey(const CIMInstance& setting, std::vector<std::string>& keys) {
    addKey(systemOfId(stringValueOf(setting, "PoolInstanceID")), keys);
}

// A port's phys are listed by number ("0,1,2,3"); a phy's number ends its DeviceID.
void portPhyKeys(const CIMInstance& port, std::vector<std::string>& keys) {
    const std::string system = stringValueOf(port, "SystemName");
    std::string list = stringValueOf(port, "PhyID");
    std::size_t start = 0;
    while (start <= list.size() && !list.empty()) {
        const std::size_t comma = std::min(list.find(',', start), list.size());
        const std::string phy = list.substr(start, comma - start);
        if (!phy.empty()) {
            addKey(system + "/" + phy, keys);
        }
        start = comma + 1;
    }
}

void phyKey(const CIMInstance& phy, std::vector<std::string>& keys) {
    const std::string id = stringValueOf(phy, "DeviceID");
    const std::size_t last = id.rfind('_');
    if (last != std::string::npos && last + 1 < id.size()) {
        addKey(stringValueOf(phy, "SystemName") + "/" + id.substr(last + 1), keys);
    }
}

// A fast-tier pool serves the pools of its controller that use the fast tier.
void fastTierKey(const CIMInstance& view, std::vector<std::string>& keys) {
    if (numberOf(view, "SPIsAFastTier3") != 0) {
        poolViewSystemKey(view, keys);
    }
}

void fastTieredKey(const CIMInstance& view, std::vector<std::string>& keys) {
    if (numberOf(view, "SPIsAFastTier3") == 0 && numberOf(view, "SPFastTierSetting") != 0) {
        poolViewSystemKey(view, keys);
    }
}

bool spareLink(const CIMInstance&, const CIMInstance&, std::vector<CIMProperty>& extra) {
    extra.push_back(uint16Property("SpareStatus", kHotStandby));
    extra.push_back(uint16Property("FailoverSupported", kAutomatic));
    return true;
}

// Where the dependent extent lies on the antecedent, in its blocks.
bool basedOnLink(const CIMInstance&, const CIMInstance& extent, std::vector<CIMProperty>& extra) {
    const std::uint64_t start = numberOf(extent, "StartingBlock");
    const std::uint64_t blocks = numberOf(extent, "NumberOfBlocks");
    extra.push_back(u64("StartingAddress", start));
    extra.push_back(u64("EndingAddress", blocks == 0 ? start : start + blocks - 1));
    return true;
}

bool volumeBasedOnLink(const CIMInstance& composite, const CIMInstance&, std::vector<CIMProperty>& extra) {
    const std::uint64_t blocks = numberOf(composite, "NumberOfBlocks");
    extra.push_back(u64("StartingAddress", 0));
    extra.push_back(u64("EndingAddress", blocks == 0 ? 0 : blocks - 1));
    return true;
}

// The logical unit number of a volume is its logical drive's number.
bool unitLink(const CIMInstance&, const CIMInstance& volume, std::vector<CIMProperty>& extra) {
    const std::string id = stringValueOf(volume, "DeviceID");
    const std::size_t separator = id.find('_');
    extra.push_back(stringProperty("DeviceNumber", separator == std::string::npos ? id : id.substr(separator + 1)));
    extra.push_back(uint16Property("DeviceAccess", kReadWrite));
    return true;
}

bool primordialAllocationLink(const CIMInstance&, const CIMInstance& pool, std::vector<CIMProperty>& extra) {
    return spaceConsumed(numberOf(pool, "SpaceConsumed"), extra);
}

bool primordialViewAllocationLink(const CIMInstance&, const CIMInstance& pool, std::vector<CIMProperty>& extra) {
    return spaceConsumed(numberOf(pool, "SPSpaceConsumed"), extra);
}

// A volume takes its whole logical drive.
bool volumeAllocationLink(const CIMInstance& pool, const CIMInstance&, std::vector<CIMProperty>& extra) {
    return spaceConsumed(numberOf(pool, "TotalManagedSpace"), extra);
}

bool volumeViewAllocationLink(const CIMInstance& pool, const CIMInstance&, std::vector<CIMProperty>& extra) {
    return spaceConsumed(numberOf(pool, "SPTotalManagedSpace"), extra);
}

bool defaultSettingLink(const CIMInstance&, const CIMInstance&, std::vector<CIMProperty>& extra) {
    extra.push_back(booleanProperty("DefaultSetting", true));
    return true;
}

bool otherSettingLink(const CIMInstance&, const CIMInstance&, std::vector<CIMProperty>& extra) {
    extra.push_back(booleanProperty("DefaultSetting", false));
    return true;
}

bool currentSettingLink(const CIMInstance&, const CIMInstance&, std::vector<CIMProperty>& extra) {
    extra.push_back(uint16Property("IsDefault", kIsDefault));
    extra.push_back(uint16Property("IsCurrent", kIsCurrent));
    return true;
}

}  // namespace vex::cim::fwf::storage

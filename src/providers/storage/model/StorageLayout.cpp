#include "providers/storage/model/StorageLayout.h"

#include <algorithm>
#include <cstdlib>

#include "controller/VexCacheManager.h"
#include "framework/CIMException.h"
#include "framework/PropertyBuilders.h"

namespace vex::cim::fwf::storage {

namespace {

template <typename T>
void appendNumbers(const CIMValue<T>& value, std::vector<std::uint64_t>& out) {
    for (const T& v : value.getValues()) {
        out.push_back(static_cast<std::uint64_t>(v));
    }
}

ControllerLayout* controllerNamed(std::vector<ControllerLayout>& all, const std::string& system) {
    for (ControllerLayout& c : all) {
        if (c.system == system) {
            return &c;
        }
    }
    return nullptr;
}

DriveLayout* driveNamed(ControllerLayout& controller, const std::string& id) {
    for (DriveLayout& d : controller.drives) {
        if (d.id == id) {
            return &d;
        }
    }
    return nullptr;
}

bool isBroken(const CIMInstance& drive) {
    const std::vector<std::uint64_t> status = numbersOf(drive, "SEExtentStatus");
    return std::find(status.begin(), status.end(), 3u) != status.end();  // 3 Broken
}

void addDrive(ControllerLayout& controller, const CIMInstance& record) {
    if (record.getPropertyByName("SENumberOfBlocks") == nullptr) {
        return;  // not a hard drive: no capacity of its own
    }
    DriveLayout drive;
    drive.id = stringValueOf(record, "SEDeviceID");
    drive.system = controller.system;
    drive.blockSize = std::max<std::uint64_t>(numberOf(record, "SEBlockSize"), 1);
    drive.blocks = numberOf(record, "SENumberOfBlocks");
    drive.counts = !isBroken(record);
    const std::uint64_t spare = numberOf(record, "DDSpareType");
    drive.spare = spare == 1 ? Spare::Global : spare == 2 ? Spare::Dedicated : Spare::None;
    for (std::uint64_t s : numbersOf(record, "SEOperationalStatus")) {
        drive.operationalStatus.push_back(static_cast<unsigned short>(s));
    }
    controller.drives.push_back(std::move(drive));
}

void addPool(std::vector<ControllerLayout>& all, const CIMInstance& record) {
    PoolLayout pool;
    pool.id = stringValueOf(record, "SPInstanceID");
    pool.system = systemOfId(pool.id);
    pool.record = &record;
    pool.packageRedundancy = static_cast<unsigned short>(numberOf(record, "SCPackageRedundancyMax"));
    ControllerLayout* controller = controllerNamed(all, pool.system);
    if (controller == nullptr) {
        return;
    }
    const std::vector<std::string> drives = stringsOf(record, "CEDriveID");
    const std::vector<std::uint64_t> starts = numbersOf(record, "CEStartMB");
    const std::vector<std::uint64_t> sizes = numbersOf(record, "CESizeMB");
    const std::vector<std::uint64_t> states = numbersOf(record, "CEState");
    for (std::size_t i = 0; i < drives.size() && i < starts.size() && i < sizes.size(); ++i) {
        DriveLayout* drive = driveNamed(*controller, drives[i]);
        if (drive != nullptr) {
            drive->chunks.push_back(ChunkLayout{pool.id, starts[i], sizes[i],
                                                i < states.size() ? static_cast<unsigned>(states[i]) : 0u,
                                                static_cast<unsigned>(i)});
        }
    }
    for (const std::string& spare : stringsOf(record, "CEDedicatedSpares")) {
        if (DriveLayout* drive = driveNamed(*controller, spare)) {
            drive->dedicatedTo.push_back(pool.id);
        }
    }
    controller->pools.push_back(std::move(pool));
}

// Sorts the used chunks and adds the free space between them and after the last.
void completeChunks(DriveLayout& drive) {
    std::sort(drive.chunks.begin(), drive.chunks.end(),
              [](const ChunkLayout& a, const ChunkLayout& b) { return a.startMB < b.startMB; });
    std::vector<ChunkLayout> all;
    std::uint64_t position = 0;
    const auto gap = [&](std::uint64_t end) {
        if (end > position) {
            all.push_back(ChunkLayout{std::string(), position, end - position, 0, 0});
        }
    };
    for (ChunkLayout& chunk : drive.chunks) {
        gap(chunk.startMB);
        position = std::max(position, chunk.startMB + chunk.sizeMB);
        all.push_back(std::move(chunk));
    }
    gap(drive.bytes() / kMiB);
    drive.chunks = std::move(all);
}

}  // namespace

const std::vector<CIMInstance>& CacheRecords::of(_eVEXObjectType type) {
    const auto found = m_lists.find(type);
    if (found != m_lists.end()) {
        return found->second;
    }
    std::vector<CIMInstance>& list = m_lists[type];
    VexCacheManager* cache = VexCacheManager::getInstance(true);
    if (cache == nullptr) {
        throw CIMException(CIM_ERR_FAILED, "Failed to retrieve objects of type %d", static_cast<int>(type));
    }
    cache->getRepositoryObject(type, "", {}, false, list);  // an absent type leaves it empty
    return list;
}

bool ControllerLayout::hasGlobalSpare() const {
    return std::any_of(drives.begin(), drives.end(), [](const DriveLayout& d) { return d.spare == Spare::Global; });
}

std::vector<ControllerLayout> layoutOf(CacheRecords& records) {
    std::vector<ControllerLayout> all;
    for (const CIMInstance& controller : records.of(VEX_OBJ_CONTROLLER)) {
        ControllerLayout layout;
        layout.system = stringValueOf(controller, "CSName");
        all.push_back(std::move(layout));
    }
    for (const CIMInstance& drive : records.of(VEX_OBJ_PHYSICAL_DRIVE)) {
        if (ControllerLayout* controller = controllerNamed(all, stringValueOf(drive, "SESystemName"))) {
            addDrive(*controller, drive);
        }
    }
    for (_eVEXObjectType type : {VEX_OBJ_CONCRETE_POOL, VEX_OBJ_SSP_POOL}) {
        for (const CIMInstance& pool : records.of(type)) {
            addPool(all, pool);
        }
    }
    for (ControllerLayout& controller : all) {
        for (DriveLayout& drive : controller.drives) {
            completeChunks(drive);
            if (!drive.counts) {
                continue;
            }
            controller.totalBytes += drive.bytes();
            for (const ChunkLayout& chunk : drive.chunks) {
                controller.remainingBytes += chunk.isFree() ? chunk.sizeMB * kMiB : 0;
            }
        }
    }
    return all;
}

std::uint64_t numberOf(const CIMInstance& instance, const std::string& name) {
    const std::vector<std::uint64_t> values = numbersOf(instance, name);
    return values.empty() ? 0 : values.front();
}

std::vector<std::uint64_t> numbersOf(const CIMInstance& instance, const std::string& name) {
    std::vector<std::uint64_t> out;
    const CIMProperty* property = instance.getPropertyByName(name);
    if (property == nullptr) {
        return out;
    }
    switch (property->getType() & ~1u) {
    case CIM_UINT8: appendNumbers(property->getUint8Value(), out); break;
    case CIM_UINT16: appendNumbers(property->getUint16Value(), out); break;
    case CIM_UINT32: appendNumbers(property->getUint32Value(), out); break;
    case CIM_UINT64: appendNumbers(property->getUint64Value(), out); break;
    case CIM_BOOLEAN: appendNumbers(property->getBoolValue(), out); break;
    default: break;
    }
    return out;
}

std::vector<std::string> stringsOf(const CIMInstance& instance, const std::string& name) {
    const CIMProperty* property = instance.getPropertyByName(name);
    if (property == nullptr || (property->getType() & ~1u) != CIM_STRING) {
        return {};
    }
    return property->getStringValue().getValues();
}

std::string systemOfId(const std::string& id) {
    char* end = nullptr;
    const long controller = std::strtol(id.c_str(), &end, 10);
    if (end == id.c_str() || controller < 0) {
        return std::string();
    }
    return "vexController_" + std::to_string(controller);
}

std::string ownerOf(const std::string& instanceId, const std::string& suffix) {
    const std::string tail = "_" + suffix;
    if (instanceId.size() <= tail.size() ||
        instanceId.compare(instanceId.size() - tail.size(), tail.size(), tail) != 0) {
        return std::string();
    }
    return instanceId.substr(0, instanceId.size() - tail.size());
}

}  // namespace vex::cim::fwf::storage

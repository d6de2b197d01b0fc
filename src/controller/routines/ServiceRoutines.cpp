// The pool routines of the storage configuration service: create, grow and
// delete concrete pools (logical drives), the extents a pool can be made of,
// and goal settings.
//
// A goal setting is a VEX_PrimordialGeneratedStorageSettings whose
// InstanceID "GoalSetting_<controller>_<level name>" carries its RAID level;
// a volume's own setting ("VolumeSetting_<controller>_<logical drive>")
// is accepted as a goal too and stands for that logical drive's level.
// Pools are created synchronously (0, no job); the build that follows shows
// as the pool's job.
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>

#include "controller/routines/ControllerSnapshot.h"
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RaidLevelMath.h"
#include "controller/routines/ReferenceArgs.h"
#include "controller/routines/Routines.h"
#include "controller/routines/StorLibCreate.h"
#include "controller/routines/StorLibModify.h"
#include "controller/CimNames.h"
#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;

constexpr unsigned long long kMiB = 1024ull * 1024ull;
constexpr const char* kGoalPrefix = "GoalSetting_";
constexpr const char* kVolumeSettingPrefix = "VolumeSetting_";
constexpr unsigned long long kSettingDefault = 2;
constexpr unsigned long long kSettingGoal = 3;

CIMProperty keyProperty(const char* name, const std::string& value) {
    return CIMProperty(name, CIMValue<std::string>(value), true, CIM_STRING, false);
}

CIMObjectPath poolPath(const CIMObjectPath& request, const _vdiskIdf& ld) {
    return CIMObjectPath(request.getHostName(), request.getNameSpace(), "VEX_ConcreteStoragePool",
                         {keyProperty("InstanceID", fsamap::logicalDriveId(ld.controller, ld.logicalDrive))});
}

const storlib::LogicalDrive* logicalDriveIn(const storlib::SystemConfig& config, const _vdiskIdf& ld) {
    return objectAt<storlib::LogicalDrive>(config, logicalDriveAddr(ld));
}

// The RAID level a goal reference stands for; kInvalidLevel when it names none.
std::uint32_t goalLevel(const CIMObjectPath& goal, const storlib::SystemConfig& config) {
    const std::string id = keyText(goal, "InstanceID").value_or("");
    if (id.compare(0, std::string(kGoalPrefix).size(), kGoalPrefix) == 0) {
        const std::size_t last = id.rfind('_');
        return raidmath::levelOfName(id.substr(last + 1));
    }
    if (id.compare(0, std::string(kVolumeSettingPrefix).size(), kVolumeSettingPrefix) == 0) {
        const std::optional<_vdiskIdf> ld = parseLogicalDrive(id.substr(std::string(kVolumeSettingPrefix).size()));
        const storlib::LogicalDrive* drive = ld ? logicalDriveIn(config, *ld) : nullptr;
        return drive != nullptr ? static_cast<std::uint32_t>(drive->getRaidLevel()) : raidmath::kInvalidLevel;
    }
    return raidmath::kInvalidLevel;
}

unsigned int modifyPool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out,
                        const storlib::SystemConfig& config) {
    const std::optional<std::vector<CIMObjectPath>> pools = referencesOf(in, "Pool");
    const std::optional<_vdiskIdf> ld =
        pools && pools->size() == 1 ? poolOf(pools->front(), "FsaifExCreateOrModifyStoragePool") : std::nullopt;
    const storlib::LogicalDrive* current = ld ? logicalDriveIn(config, *ld) : nullptr;
    const std::optional<int> service = targetController(path, in);
    if (current == nullptr || (service && *service != ld->controller)) {
        if (ld && service && *service != ld->controller) {
            TkzLogMsg(TKZ_LOG_ERROR, "Supplied Pool controllerID mismatches with StorageConfigurationService controllerID");
        }
        return FSAIF_INVALID_PARAM;
    }
    std::uint32_t level = static_cast<std::uint32_t>(current->getRaidLevel());
    if (const std::optional<std::vector<CIMObjectPath>> goal = referencesOf(in, "Goal"); goal && !goal->empty()) {
        level = goalLevel(goal->front(), config);
    }
    // The pool's members, then the extents added to it.
    std::vector<storlib::ChunkSpec> target;
    for (const storlib::RaidObject* o : storlib::FilterCollection(*current, "Chunk")) {
        target.emplace_back(storlib::Addr(static_cast<uint32_t>(ld->controller), o->getAddr().getChannelID(),
                                          o->getAddr().getDeviceID()));
    }
    if (const std::optional<std::vector<CIMObjectPath>> extents = referencesOf(in, "InExtents")) {
        for (const CIMObjectPath& ref : *extents) {
            const std::optional<_pdiskIdf> drive = extentDrive(ref);
            if (!drive || drive->controller != ld->controller) {
                return FSAIF_INVALID_PARAM;
            }
            target.emplace_back(driveAddr(*drive));
        }
    }
    storlib::LogicalDriveSpec spec;
    spec.name = text(in, "ElementName").value_or(current->getName());
    spec.stripeSizeKB = current->getStripeSizeKB();
    StorLibModify* modify = StorLibModify::getInstance();
    modify->loadArguments(adapterOf(config, ld->controller), current, level, current->getLegs() > 1 ? current->getLegs() : 0,
                          target);
    storlib::Ret ret;
    const unsigned int result = modify->executeModify(*ld, spec, ret);
    modify->cleanUp();
    if (result == FSAIF_SUCCESS) {
        putReference(out, "Pool", poolPath(path, *ld));
    }
    return result;
}

unsigned int createPool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out,
                        const storlib::SystemConfig& config) {
    const std::optional<int> controller = targetController(path, in);
    if (!controller || adapterOf(config, *controller) == nullptr) {
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<std::vector<CIMObjectPath>> inPools = referencesOf(in, "InPools");
    if (inPools && inPools->size() > 1) {
        TkzLogMsg(TKZ_LOG_ERROR, "Number of InPools is greater than available primordial pools");
        return FSAIF_INVALID_PARAM;
    }
    CreateRequest request;
    request.controller = *controller;
    if (argument(in, "InExtents") != nullptr) {
        const std::optional<std::vector<CIMObjectPath>> extents = referencesOf(in, "InExtents");
        if (!extents || extents->empty()) {
            TkzLogMsg(TKZ_LOG_ERROR, "User has to pass InExtents");
            return FSAIF_INVALID_PARAM;
        }
        for (const CIMObjectPath& ref : *extents) {
            const std::optional<_pdiskIdf> drive = extentDrive(ref);
            if (!drive) {
                return FSAIF_INVALID_PARAM;
            }
            if (drive->controller != *controller) {
                TkzLogMsg(TKZ_LOG_ERROR, "Supplied Pool controllerID mismatches with StorageConfigurationService controllerID");
                return FSAIF_INVALID_PARAM;
            }
            request.chunks.emplace_back(driveAddr(*drive));
        }
    }
    const std::optional<std::vector<CIMObjectPath>> goal = referencesOf(in, "Goal");
    if (goal && !goal->empty()) {
        request.level = goalLevel(goal->front(), config);
        if (request.level == raidmath::kInvalidLevel) {
            TkzLogMsg(TKZ_LOG_ERROR, "%s :: ObjectPath passed does not contain key %s", "FsaifExCreateOrModifyStoragePool",
                      "InstanceID");
            return FSAIF_INVALID_PARAM;
        }
    } else {
        const std::string source = inPools && !inPools->empty() ? inPools->front().toString() : std::string();
        TkzLogMsg(TKZ_LOG_INFO, "Goal is empty, using default configuration of source storagepool : %s", source.c_str());
        request.level = request.chunks.size() == 2 ? 1 : 5;
    }
    const unsigned long long sizeBytes = number(in, "Size").value_or(0);
    request.dataSizeMB = (sizeBytes + kMiB - 1) / kMiB;
    request.name = text(in, "ElementName").value_or("");
    std::uint32_t newId = 0;
    storlib::Ret ret;
    const unsigned int result = StorLibCreate::getInstance()->executeCreate(*adapterOf(config, *controller), request, ret, &newId);
    if (!ret.ok()) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExCreateOrModifyStoragePool: %s", ret.getReason().c_str());
    }
    if (result == FSAIF_SUCCESS) {
        const _vdiskIdf created{*controller, static_cast<int>(newId)};
        putReference(out, "Pool", poolPath(path, created));
        const auto now = snapshot();
        if (const storlib::LogicalDrive* pool = now ? logicalDriveIn(*now, created) : nullptr) {
            out.addArgument(CIMProperty("Size", CIMValue<unsigned long long>(pool->getDataSizeMB() * kMiB), false,
                                        CIM_UINT64, false));
        }
    }
    return result;
}

}  // namespace

unsigned int FsaifExCreateOrModifyStoragePool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExCreateOrModifyStoragePool");
    const auto config = snapshot();
    if (!config) {
        return FSAIF_FAIL;
    }
    return argument(in, "Pool") != nullptr ? modifyPool(path, in, out, *config) : createPool(path, in, out, *config);
}

unsigned int FsaifExDeleteStoragePool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExDeleteStoragePool");
    if (argument(in, "Pool") == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Pool is empty, Mandatory Parameter");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<std::vector<CIMObjectPath>> pools = referencesOf(in, "Pool");
    if (!pools || pools->size() != 1) {
        TkzLogMsg(TKZ_LOG_ERROR, "Pool is empty, Mandatory Parameter");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<_vdiskIdf> ld = poolOf(pools->front(), "FsaifExDeleteStoragePool");
    if (!ld) {
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<int> service = targetController(path, in);
    if (service && *service != ld->controller) {
        TkzLogMsg(TKZ_LOG_ERROR, "Supplied Pool controllerID mismatches with StorageConfigurationService controllerID");
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    return fsaifDeleteLogicalDrive(*ld, ret);
}

unsigned int FsaifExGetAvailableExtents(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out) {
    const std::optional<int> controller = targetController(path, in);
    const auto config = snapshot();
    const storlib::Adapter* adapter = controller && config ? adapterOf(*config, *controller) : nullptr;
    if (adapter == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: ObjectPath passed does not contain key %s", "FsaifExGetAvailableExtents",
                  "SystemName");
        return FSAIF_INVALID_PARAM;
    }
    std::vector<CIMObjectPath> extents;
    for (const storlib::RaidObject* o : storlib::FilterCollection(*adapter, storlib::HardDrive::kClassName)) {
        const auto* d = o->as<storlib::HardDrive>();
        const storlib::DriveState s = d->getState();
        if ((s != storlib::DriveState::Ready && s != storlib::DriveState::Online) || d->isSpare() ||
            d->getLargestFreeMB() == 0) {
            continue;
        }
        extents.emplace_back(
            path.getHostName(), path.getNameSpace(), "VEX_PrimordialStorageExtent",
            std::vector<CIMProperty>{
                keyProperty("SystemCreationClassName", fsamap::kControllerSystemClass),
                keyProperty("SystemName", fsamap::controllerSystemName(*controller)),
                keyProperty("CreationClassName", "VEX_PrimordialStorageExtent"),
                keyProperty("DeviceID", fsamap::driveDeviceId(*controller, static_cast<int>(d->getChannelID()),
                                                              static_cast<int>(d->getDeviceID())))});
    }
    out.addArgument(CIMProperty("AvailableExtents", CIMValue<CIMObjectPath>(std::move(extents), false, false), false,
                                CIM_REFERENCE_ARRAY, false));
    return FSAIF_SUCCESS;
}

unsigned int FsaifExCreateSetting(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out) {
    const std::optional<unsigned long long> type = number(in, "SettingType");
    if (!type) {
        TkzLogMsg(TKZ_LOG_ERROR, "SettingType is empty, it is a mandatory field");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<int> controller = targetController(path, in);
    if ((*type != kSettingDefault && *type != kSettingGoal) || !controller) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for SettingType");
        return FSAIF_INVALID_PARAM;
    }
    // The default goal: RAID 5, one drive's worth of redundancy, rotated parity.
    const std::string id = fsamap::formatText("%s%d_RAID5", kGoalPrefix, *controller);
    CIMInstance setting;
    setting.setPath(CIMObjectPath("", "", "VEX_PrimordialGeneratedStorageSettings", {}));
    setting.addCimKeyBinding(keyProperty("InstanceID", id));
    setting.addProperty(CIMProperty("ElementName", CIMValue<std::string>("RAID5 goal"), false, CIM_STRING, false));
    setting.addProperty(CIMProperty("ChangeableType", CIMValue<unsigned short>(*type == kSettingGoal ? 1 : 0), false,
                                    CIM_UINT16, false));
    setting.addProperty(CIMProperty("RAIDLevel", CIMValue<std::string>("RAID5"), false, CIM_STRING, false));
    for (const char* name : {"DataRedundancyGoal", "DataRedundancyMax", "DataRedundancyMin", "PackageRedundancyGoal",
                             "PackageRedundancyMax", "PackageRedundancyMin"}) {
        setting.addProperty(CIMProperty(name, CIMValue<unsigned short>(1), false, CIM_UINT16, false));
    }
    setting.addProperty(CIMProperty("NoSinglePointOfFailure", CIMValue<bool>(true), false, CIM_BOOLEAN, false));
    setting.addProperty(CIMProperty("ParityLayout", CIMValue<unsigned short>(2), false, CIM_UINT16, false));
    if (VexCacheManager* cache = VexCacheManager::getInstance(true)) {
        cache->addObjInstance(VEX_OBJ_PRIMORDIAL_SETTING, setting);  // already there: kept as it is
    }
    putReference(out, "NewSetting",
                 CIMObjectPath(path.getHostName(), path.getNameSpace(), "VEX_PrimordialGeneratedStorageSettings",
                               {keyProperty("InstanceID", id)}));
    return FSAIF_SUCCESS;
}

}  // namespace vex::cim::fwf

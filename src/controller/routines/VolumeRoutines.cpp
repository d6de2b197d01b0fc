// Creating and changing logical drives, and the extents of drives and
// logical drives.
//
// "InChunkSpec" lists the members, one element each: a drive's DDDeviceID
// ("0_0_3"), optionally followed by ":<start MB>:<size MB>" for an extent of
// it. CreateVD also reads "RaidLevel" (mandatory), "VDName", "StripeSize"
// (KB), "Size" (MB; 0 or absent: as large as the chunks allow), "Legs" and,
// when "InChunkSpec" is absent, "MemberCount" (drives chosen by the builder).
#include <storlib/Chunk.h>
#include <storlib/LogicalDrive.h>

#include "controller/routines/ControllerSnapshot.h"
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RaidLevelMath.h"
#include "controller/routines/Routines.h"
#include "controller/routines/StorLibCreate.h"
#include "controller/routines/StorLibModify.h"
#include "controller/CimNames.h"
#include "controller/FsaifWrappers.h"
#include "controller/VexFSAInterface.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;

constexpr unsigned long long kMaxStripeKB = 1u << 20;

std::optional<unsigned long long> megabytes(const std::string& text) {
    if (text.empty() || text.size() > 15 || text.find_first_not_of("0123456789") != std::string::npos) {
        return std::nullopt;
    }
    return std::stoull(text);
}

// One "InChunkSpec" element.
std::optional<storlib::ChunkSpec> chunkOf(const std::string& element) {
    const std::size_t colon = element.find(':');
    const std::optional<_pdiskIdf> drive = parseDrive(element.substr(0, colon));
    if (!drive) {
        return std::nullopt;
    }
    storlib::ChunkSpec chunk(driveAddr(*drive));
    if (colon != std::string::npos) {
        const std::size_t second = element.find(':', colon + 1);
        if (second == std::string::npos) {
            return std::nullopt;
        }
        const std::optional<unsigned long long> start = megabytes(element.substr(colon + 1, second - colon - 1));
        const std::optional<unsigned long long> size = megabytes(element.substr(second + 1));
        if (!start || !size) {
            return std::nullopt;
        }
        chunk.startMB = *start;
        chunk.sizeMB = *size;
    }
    return chunk;
}

// The whole list; empty optional when an element is malformed.
std::optional<std::vector<storlib::ChunkSpec>> chunksOf(const std::vector<std::string>& elements) {
    std::vector<storlib::ChunkSpec> chunks;
    for (const std::string& element : elements) {
        const std::optional<storlib::ChunkSpec> chunk = chunkOf(element);
        if (!chunk) {
            return std::nullopt;
        }
        chunks.push_back(*chunk);
    }
    return chunks;
}

CIMInstance extentInstance(const storlib::Chunk& chunk, int controller) {
    CIMInstance extent;
    extent.setPath(CIMObjectPath("", "", fsamap::kStorageExtentClass, {}));
    const std::string id = fsamap::formatText("%d_%u_%u_%llu", controller, chunk.getChannelID(), chunk.getDeviceID(),
                                              static_cast<unsigned long long>(chunk.getStartMB()));
    extent.addCimKeyBinding(CIMProperty("DeviceID", CIMValue<std::string>(id), true, CIM_STRING, false));
    extent.addCimKeyBinding(CIMProperty("SystemName", CIMValue<std::string>(fsamap::controllerSystemName(controller)),
                                        true, CIM_STRING, false));
    constexpr unsigned long long kMiB = 1024ull * 1024ull;
    constexpr unsigned long long kBlock = 512;
    extent.addProperty(CIMProperty("BlockSize", CIMValue<unsigned long long>(kBlock), false, CIM_UINT64, false));
    extent.addProperty(CIMProperty("NumberOfBlocks", CIMValue<unsigned long long>(chunk.getSizeMB() * kMiB / kBlock),
                                   false, CIM_UINT64, false));
    extent.addProperty(CIMProperty("StartingAddress",
                                   CIMValue<unsigned long long>(chunk.getStartMB() * kMiB / kBlock), false, CIM_UINT64,
                                   false));
    extent.addProperty(CIMProperty("Primordial", CIMValue<bool>(chunk.isFree()), false, CIM_BOOLEAN, false));
    extent.addProperty(CIMProperty("ElementName",
                                   CIMValue<std::string>(chunk.isFree() ? std::string("Free")
                                                                       : fsamap::logicalDriveId(controller, static_cast<int>(chunk.getLogicalDriveID()))),
                                   false, CIM_STRING, false));
    return extent;
}

// "Partition": the chunks below a drive or logical drive as extent instances.
unsigned int chunkDetails(const storlib::Addr& owner, int controller, CIMMethodParam& out) {
    const auto config = snapshot();
    const storlib::RaidObject* object = config ? config->getObject(owner) : nullptr;
    if (object == nullptr) {
        return FSAIF_DEVICE_NOT_FOUND;
    }
    std::vector<CIMInstance> extents;
    for (const storlib::RaidObject* o : storlib::FilterCollection(*object, storlib::Chunk::kClassName)) {
        extents.push_back(extentInstance(*o->as<storlib::Chunk>(), controller));
    }
    out.addArgument(CIMProperty("Partition", CIMValue<CIMInstance>(std::move(extents), false, false), false,
                                CIM_INSTANCE_ARRAY, false));
    return FSAIF_SUCCESS;
}

}  // namespace

unsigned int FsaifExGetPDChunk(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out) {
    const std::optional<std::string> id = targetText(path, in, "DDDeviceID");
    const std::optional<_pdiskIdf> drive = id ? parseDrive(*id) : std::nullopt;
    if (!drive) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExGetPDChunk exits with without calling FSA Func");
        return FSAIF_INVALID_PARAM;
    }
    const unsigned int result = chunkDetails(driveAddr(*drive), drive->controller, out);
    if (result == FSAIF_SUCCESS) {
        TkzLogMsg(TKZ_LOG_INFO, "Returning chunk instances");
    }
    return result;
}

unsigned int FsaifExGetVDChunk(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out) {
    const std::optional<std::string> id = targetText(path, in, "SPInstanceID");
    const std::optional<_vdiskIdf> ld = id ? parseLogicalDrive(*id) : std::nullopt;
    if (!ld) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExGetVDChunk exits with without calling FSA Func");
        return FSAIF_INVALID_PARAM;
    }
    const unsigned int result = chunkDetails(logicalDriveAddr(*ld), ld->controller, out);
    if (result == FSAIF_SUCCESS) {
        TkzLogMsg(TKZ_LOG_INFO, "Returning VD chunk instances");
    }
    return result;
}

unsigned int FsaifExCreateVD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExCreateVD");
    const std::optional<int> controller = targetController(path, in);
    if (!controller) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExCreateVD exits with without calling FSA Func");
        return FSAIF_INVALID_PARAM;
    }
    CreateRequest request;
    request.controller = *controller;
    const CIMProperty* isFastTier3 = argument(in, "IsFastTier3");
    if (isFastTier3 != nullptr && !flag(in, "IsFastTier3")) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for IsFastTier3");
        return FSAIF_INVALID_PARAM;
    }
    request.isFastTier3 = flag(in, "IsFastTier3").value_or(false);
    if (argument(in, "InChunkSpec") != nullptr) {
        const std::optional<std::vector<std::string>> elements = texts(in, "InChunkSpec");
        const std::optional<std::vector<storlib::ChunkSpec>> chunks = elements ? chunksOf(*elements) : std::nullopt;
        if (!chunks) {
            TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Chunk Spec");
            return FSAIF_INVALID_PARAM;
        }
        request.chunks = *chunks;
    }
    const std::optional<std::string> level = text(in, "RaidLevel");
    request.level = level ? raidmath::levelOfName(*level) : raidmath::kInvalidLevel;
    if (request.level == raidmath::kInvalidLevel) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Raid Level");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<unsigned long long> size = number(in, "Size");
    const std::optional<unsigned long long> stripe = number(in, "StripeSize");
    const std::optional<unsigned long long> legs = number(in, "Legs");
    const std::optional<unsigned long long> members = number(in, "MemberCount");
    if ((argument(in, "Size") && !size) || (argument(in, "StripeSize") && (!stripe || *stripe > kMaxStripeKB)) ||
        (argument(in, "Legs") && (!legs || *legs > 64)) || (argument(in, "MemberCount") && (!members || *members > 128))) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Size, StripeSize, Legs or MemberCount");
        return FSAIF_INVALID_PARAM;
    }
    request.dataSizeMB = size.value_or(0);
    request.stripeSizeKB = static_cast<std::uint32_t>(stripe.value_or(0));
    request.legs = static_cast<std::uint32_t>(legs.value_or(0));
    request.memberCount = static_cast<std::uint32_t>(members.value_or(0));
    request.name = text(in, "VDName").value_or("");
    const auto config = snapshot();
    const storlib::Adapter* adapter = config ? adapterOf(*config, *controller) : nullptr;
    if (adapter == nullptr) {
        return FSAIF_DEVICE_NOT_FOUND;
    }
    storlib::Ret ret;
    const unsigned int result = StorLibCreate::getInstance()->executeCreate(*adapter, request, ret);
    if (!ret.ok()) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExCreateVD: the controller refused: %s", ret.getReason().c_str());
    }
    return result;
}

unsigned int FsaifExModifyVD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExModifyVD");
    const std::optional<std::string> id = targetText(path, in, "SPInstanceID");
    const std::optional<_vdiskIdf> ld = id ? parseLogicalDrive(*id) : std::nullopt;
    if (!ld) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExModifyVD exits with without calling FSA Func");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<std::string> name = text(in, "VDName");
    if (!name) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for VD Name");
        return FSAIF_INVALID_PARAM;
    }
    std::vector<storlib::ChunkSpec> target;
    if (argument(in, "InChunkSpec") != nullptr) {
        const std::optional<std::vector<std::string>> elements = texts(in, "InChunkSpec");
        const std::optional<std::vector<storlib::ChunkSpec>> chunks = elements ? chunksOf(*elements) : std::nullopt;
        if (!chunks) {
            TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Chunk Spec");
            return FSAIF_INVALID_PARAM;
        }
        target = *chunks;
    }
    const std::optional<std::string> levelName = text(in, "RaidLevel");
    const std::uint32_t level = levelName ? StorLibModify::getRAIDLevelEnum(*levelName) : raidmath::kInvalidLevel;
    if (level == raidmath::kInvalidLevel) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Raid Level");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<unsigned long long> stripe = number(in, "StripeSize");
    if (!stripe || *stripe > kMaxStripeKB) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Stripe Size");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<unsigned long long> init = number(in, "InitMethod");
    if (!init || *init > 3) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Init Method");
        return FSAIF_INVALID_PARAM;
    }
    const auto config = snapshot();
    const storlib::Adapter* adapter = config ? adapterOf(*config, ld->controller) : nullptr;
    const storlib::RaidObject* object = config ? config->getObject(logicalDriveAddr(*ld)) : nullptr;
    const storlib::LogicalDrive* current = object != nullptr ? object->as<storlib::LogicalDrive>() : nullptr;
    if (adapter == nullptr || current == nullptr) {
        return FSAIF_DEVICE_NOT_FOUND;
    }
    for (const storlib::ChunkSpec& c : target) {
        if (static_cast<int>(c.drive.getAdapterID()) != ld->controller) {
            TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Chunk Spec");
            return FSAIF_INVALID_PARAM;
        }
    }
    storlib::LogicalDriveSpec spec;
    spec.name = *name;
    spec.stripeSizeKB = *stripe == 0 ? current->getStripeSizeKB() : static_cast<std::uint32_t>(*stripe);
    spec.initMethod = static_cast<storlib::InitMethod>(*init);
    spec.readCache = static_cast<storlib::ReadCacheMode>(number(in, "ReadCacheSetting").value_or(1) != 0 ? 1 : 0);
    const unsigned long long write = number(in, "WriteCacheSetting").value_or(2);
    spec.writeCache = static_cast<storlib::WriteCacheMode>(write > 2 ? 2 : write);
    spec.fastTierSetting = static_cast<std::uint32_t>(number(in, "FastTierSetting").value_or(0) & 0xffffffffull);
    const unsigned long long priority = number(in, "TaskPriority").value_or(2);
    spec.taskPriority = static_cast<storlib::TaskPriority>(priority < 1 || priority > 3 ? 2 : priority);
    StorLibModify* modify = StorLibModify::getInstance();
    modify->loadArguments(adapter, current, level, current->getLegs() > 1 ? current->getLegs() : 0, target);
    storlib::Ret ret;
    const std::string currentName = current->getName();
    unsigned int result = modify->executeModify(*ld, spec, ret);
    modify->cleanUp();
    if (result == FSAIF_SUCCESS && *name != currentName) {
        result = fsaifChangeLDName(ld->controller, ld->logicalDrive, *name, ret);
    }
    if (!ret.ok()) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExModifyVD: the controller refused: %s", ret.getReason().c_str());
    }
    return result;
}

}  // namespace vex::cim::fwf

#include "controller/routines/StorLibCreate.h"

#include <algorithm>
#include <map>

#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Names.h>
#include <storlib/RaidLevel.h>

#include "controller/routines/BuilderTrace.h"
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RaidLevelMath.h"
#include "controller/FsaifReturn.h"

namespace vex::cim::fwf {

namespace {

constexpr std::size_t kMaxName = 64;

constexpr std::uint32_t kSimpleVolume = 15;

bool usable(const storlib::HardDrive& d) {
    const storlib::DriveState s = d.getState();
    return (s == storlib::DriveState::Ready || s == storlib::DriveState::Online) && !d.isSpare() &&
           !d.isFastTierAssigned() && d.getLargestFreeMB() > 0;
}

bool printable(const std::string& name) {
    for (char c : name) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
            return false;
        }
    }
    return name.size() <= kMaxName;
}

const storlib::HardDrive* driveAt(const storlib::Adapter& adapter, const storlib::Addr& addr) {
    const storlib::RaidObject* o = adapter.getObject(addr);
    return o != nullptr ? o->as<storlib::HardDrive>() : nullptr;
}

}  // namespace

StorLibCreate* StorLibCreate::getInstance() {
    static StorLibCreate instance;
    return &instance;
}

std::vector<storlib::ChunkSpec> StorLibCreate::findChunkSpace(const storlib::Adapter& adapter,
                                                              std::uint32_t count) const {
    BuilderTrace trace("StorLibCreate::findChunkSpace");
    std::vector<const storlib::HardDrive*> drives;
    for (const storlib::RaidObject* o : storlib::FilterCollection(adapter, storlib::HardDrive::kClassName)) {
        if (usable(*o->as<storlib::HardDrive>())) {
            drives.push_back(o->as<storlib::HardDrive>());
        }
    }
    // One media type when enough drives share it: the type with most drives.
    std::map<storlib::MediaType, std::size_t> perType;
    for (const storlib::HardDrive* d : drives) {
        ++perType[d->getMediaType()];
    }
    auto most = std::max_element(perType.begin(), perType.end(),
                                 [](const auto& a, const auto& b) { return a.second < b.second; });
    if (most != perType.end() && most->second >= count) {
        drives.erase(std::remove_if(drives.begin(), drives.end(),
                                    [&](const storlib::HardDrive* d) { return d->getMediaType() != most->first; }),
                     drives.end());
    }
    std::stable_sort(drives.begin(), drives.end(), [](const storlib::HardDrive* a, const storlib::HardDrive* b) {
        return a->getLargestFreeMB() > b->getLargestFreeMB();
    });
    // Enclosure redundancy: take the best drive of each enclosure in turn.
    std::map<int, std::vector<const storlib::HardDrive*>> byEnclosure;
    for (const storlib::HardDrive* d : drives) {
        byEnclosure[d->getEnclosureIndex()].push_back(d);
    }
    std::vector<storlib::ChunkSpec> chosen;
    for (std::size_t round = 0; chosen.size() < count; ++round) {
        bool any = false;
        for (auto& [enclosure, list] : byEnclosure) {
            if (round < list.size() && chosen.size() < count) {
                chosen.emplace_back(list[round]->getAddr());
                any = true;
            }
        }
        if (!any) {
            break;
        }
    }
    return chosen;
}

const storlib::HardDrive* StorLibCreate::findJBODPromoteChunkSpace(const storlib::Adapter& adapter,
                                                                  const CreateRequest& request) const {
    if (request.level != kSimpleVolume || request.chunks.size() != 1) {
        return nullptr;
    }
    const storlib::HardDrive* drive = driveAt(adapter, request.chunks.front().drive);
    return drive != nullptr && drive->isJBOD() ? drive : nullptr;
}

unsigned int StorLibCreate::executeJBOD(const storlib::HardDrive& jbod, const storlib::LogicalDriveSpec& spec,
                                        storlib::Ret& ret, std::uint32_t* newId) {
    BuilderTrace trace("StorLibCreate::executeJBOD");
    const _pdiskIdf drive{static_cast<int>(jbod.getAddr().getAdapterID()), static_cast<int>(jbod.getChannelID()),
                          static_cast<int>(jbod.getDeviceID())};
    const unsigned int released = fsaifDeleteJBOD(drive, ret);
    if (released != FSAIF_SUCCESS) {
        return released;
    }
    storlib::LogicalDriveSpec whole = spec;
    whole.dataSizeMB = 0;
    const unsigned int created = fsaifCreateLogicalDrive(whole, ret, newId);
    if (created != FSAIF_SUCCESS) {
        storlib::Ret restored;
        fsaifCreateJBOD(drive, restored);  // the drive goes back to what it was
    }
    return created;
}

std::uint32_t StorLibCreate::setSpannedArrays(std::uint32_t level, std::uint32_t legs) const {
    if (level == 11 || level == 17) {
        return legs == 0 ? 2 : legs;
    }
    return 0;
}

std::string StorLibCreate::buildLogicalDriveName(const storlib::Adapter& adapter, std::uint32_t level) const {
    const std::string prefix = std::string(storlib::toString(static_cast<storlib::RaidLevel>(level))) + "_";
    std::uint32_t next = 0;
    for (const storlib::RaidObject* o : storlib::FilterCollection(adapter, storlib::LogicalDrive::kClassName)) {
        const std::string& name = o->as<storlib::LogicalDrive>()->getName();
        if (name.compare(0, prefix.size(), prefix) == 0) {
            next = std::max<std::uint32_t>(next, static_cast<std::uint32_t>(std::strtoul(name.c_str() + prefix.size(), nullptr, 10)) + 1);
        }
    }
    return prefix + std::to_string(next);
}

std::uint64_t StorLibCreate::maxDataSizeMB(const storlib::Adapter& adapter, const storlib::LogicalDriveSpec& spec) const {
    std::uint64_t smallest = ~0ull;
    for (const storlib::ChunkSpec& c : spec.chunks) {
        const storlib::HardDrive* d = driveAt(adapter, c.drive);
        const std::uint64_t room = d == nullptr ? 0 : (c.sizeMB != 0 ? std::min(c.sizeMB, d->getLargestFreeMB())
                                                                      : d->getLargestFreeMB());
        smallest = std::min(smallest, room);
    }
    if (spec.chunks.empty() || smallest == ~0ull) {
        return 0;
    }
    return storlib::raidDataCapacityMB(spec.raidLevel, static_cast<std::uint32_t>(spec.chunks.size()), smallest,
                                       spec.legs == 0 ? 1 : spec.legs);
}

unsigned int StorLibCreate::buildLogicalDriveSpec(const storlib::Adapter& adapter, const CreateRequest& request,
                                                  storlib::LogicalDriveSpec& spec) {
    BuilderTrace trace("StorLibCreate::buildLogicalDriveSpec");
    if (request.level == raidmath::kInvalidLevel || !printable(request.name)) {
        return FSAIF_INVALID_PARAM;
    }
    spec = storlib::LogicalDriveSpec{};
    spec.raidLevel = static_cast<storlib::RaidLevel>(request.level);
    spec.legs = setSpannedArrays(request.level, request.legs);
    if (request.stripeSizeKB != 0) {
        spec.stripeSizeKB = request.stripeSizeKB;
    }
    const std::uint32_t least = raidmath::minChunks(request.level, spec.legs);
    if (request.chunks.empty()) {
        const std::uint32_t wanted = std::max(least, request.memberCount);
        spec.chunks = findChunkSpace(adapter, wanted);
        if (spec.chunks.size() < wanted) {
            TkzLogMsg(TKZ_LOG_ERROR, "Not enough usable drives: %u wanted, %zu found", wanted, spec.chunks.size());
            return FSAIF_OP_INVALID;
        }
    } else {
        for (const storlib::ChunkSpec& c : request.chunks) {
            if (static_cast<int>(c.drive.getAdapterID()) != request.controller) {
                return FSAIF_INVALID_PARAM;
            }
        }
        spec.chunks = request.chunks;
        if (spec.chunks.size() < least) {
            TkzLogMsg(TKZ_LOG_ERROR, "Not enough drives: the level needs at least %u", least);
            return FSAIF_OP_INVALID;
        }
    }
    if (request.dataSizeMB != 0) {
        const std::uint64_t room = maxDataSizeMB(adapter, spec);
        if (room != 0 && request.dataSizeMB > room) {
            TkzLogMsg(TKZ_LOG_ERROR, "The size asked for exceeds the %llu MB the drives allow",
                      static_cast<unsigned long long>(room));
            return FSAIF_OP_INVALID;
        }
    }
    spec.dataSizeMB = request.dataSizeMB;
    spec.name = request.name.empty() ? buildLogicalDriveName(adapter, request.level) : request.name;
    spec.isFastTier3 = request.isFastTier3;
    return FSAIF_SUCCESS;
}

unsigned int StorLibCreate::executeCreate(const storlib::Adapter& adapter, const CreateRequest& request,
                                          storlib::Ret& ret, std::uint32_t* newId) {
    BuilderTrace trace("StorLibCreate::executeCreate");
    storlib::LogicalDriveSpec spec;
    const storlib::HardDrive* jbod = findJBODPromoteChunkSpace(adapter, request);
    const unsigned int built = buildLogicalDriveSpec(adapter, request, spec);
    if (built != FSAIF_SUCCESS) {
        return built;
    }
    return jbod != nullptr ? executeJBOD(*jbod, spec, ret, newId) : fsaifCreateLogicalDrive(spec, ret, newId);
}

}  // namespace vex::cim::fwf

#include "controller/routines/StorLibModify.h"

#include <algorithm>
#include <set>
#include <utility>

#include <storlib/Chunk.h>
#include <storlib/Feature.h>
#include <storlib/HardDrive.h>

#include "controller/routines/BuilderTrace.h"
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RaidLevelMath.h"
#include "controller/routines/StorLibCreate.h"
#include "controller/FsaifReturn.h"

namespace vex::cim::fwf {

namespace {

constexpr std::uint32_t kFailedDrive = 4;
constexpr int kFeatureNotEnabled = -1;

// The minimum chunk count of a migration that keeps data on its drives:
// max(base, times * n + plus), or the RAID 5 / RAID 6 morph search.
struct MigrationMinimum {
    std::uint32_t source;
    std::uint32_t target;
    bool morph;
    int times;
    int plus;
};

constexpr MigrationMinimum kMinimums[] = {
    {0, 0, false, 1, 0},  {0, 5, false, 1, 1},   {0, 9, false, 2, 0},  {1, 1, false, 1, 0},
    {1, 5, false, 1, 1},  {1, 9, false, 1, 2},   {2, 2, false, 1, 0},  {5, 0, false, 1, 0},
    {5, 5, false, 1, 0},  {5, 7, false, 1, 1},   {5, 9, false, 2, -2}, {5, 16, true, 0, 0},
    {5, 18, true, 0, 0},  {7, 5, false, 1, 0},   {7, 7, false, 1, 0},  {9, 9, false, 1, 0},
    {16, 16, false, 1, 0}, {16, 5, true, 0, 0},  {18, 18, false, 1, 0}, {18, 5, true, 0, 0},
};

struct Expansion {
    std::uint32_t level;
    std::uint32_t feature;
};

constexpr Expansion kExpansions[] = {{0, 29}, {1, 49}, {2, 50},  {5, 30},  {7, 51},
                                     {9, 53}, {11, 54}, {16, 52}, {17, 55}, {18, 206}};

using DriveKey = std::pair<std::uint32_t, std::uint32_t>;

std::set<DriveKey> drivesOf(const std::vector<storlib::ChunkSpec>& chunks) {
    std::set<DriveKey> keys;
    for (const storlib::ChunkSpec& c : chunks) {
        keys.insert({c.drive.getChannelID(), c.drive.getDeviceID()});
    }
    return keys;
}

}  // namespace

StorLibModify* StorLibModify::getInstance() {
    static StorLibModify instance;  // created once, thread-safely
    return &instance;
}

std::uint32_t StorLibModify::getRAIDLevelEnum(const std::string& name) { return raidmath::levelOfName(name); }

void StorLibModify::setLevels(std::uint32_t source, std::uint32_t target, std::uint32_t legs) {
    m_sourceLevel = source;
    m_targetLevel = target;
    m_legs = legs == 0 ? ((target == 11 || target == 17) ? 2 : 1) : legs;
}

void StorLibModify::loadArguments(const storlib::Adapter* adapter, const storlib::LogicalDrive* logicalDrive,
                                  std::uint32_t targetLevel, std::uint32_t legs,
                                  std::vector<storlib::ChunkSpec> target) {
    BuilderTrace trace("StorLibModify::loadArguments");
    m_adapter = adapter;
    m_logicalDrive = logicalDrive;
    m_source.clear();
    if (logicalDrive != nullptr) {
        for (const storlib::RaidObject* o : storlib::FilterCollection(*logicalDrive, storlib::Chunk::kClassName)) {
            m_source.emplace_back(o->as<storlib::Chunk>()->getDriveAddr());
        }
    }
    m_targetGiven = !target.empty();
    m_target = target.empty() ? m_source : std::move(target);
    setLevels(logicalDrive != nullptr ? static_cast<std::uint32_t>(logicalDrive->getRaidLevel()) : 0, targetLevel,
              legs);
    m_disjoint = false;
}

std::uint32_t StorLibModify::getMinorDataStripesPerMajorCycle(std::uint32_t n, std::uint32_t level) const {
    switch (level) {
    case 1: case 2: case 9: case 10: return n;
    case 3: case 4: case 5: case 11: return n - 1;
    case 7: return n - 2;
    case 16: case 17: case 18: case 19: {
        const raidmath::Raid6Params p = raidmath::raid6Params(n, level >= 18 ? 18 : 16);
        return p.drives == n ? p.data : 0;
    }
    default: return n;
    }
}

std::uint32_t StorLibModify::getMinorParityStripesPerMajorCycle(std::uint32_t n, std::uint32_t level) const {
    switch (level) {
    case 1: case 2: case 9: case 10: return n;
    case 3: case 4: case 5: case 11: case 7: return 1;
    case 16: case 17: case 18: case 19: {
        const raidmath::Raid6Params p = raidmath::raid6Params(n, level >= 18 ? 18 : 16);
        return p.drives == n ? p.parity : 0;
    }
    default: return 0;
    }
}

std::uint64_t StorLibModify::calculateMaxDataSize(std::uint64_t size, std::uint32_t n, std::uint32_t level,
                                                  std::uint32_t legs) const {
    switch (level) {
    case 0: case 8: case 13: case 15: return size;
    case 1: case 2: case 9: case 10: return size / 2;
    case 3: case 4: case 5: case 7: case 16: {
        const double d = getMinorDataStripesPerMajorCycle(n, level);
        const double p = getMinorParityStripesPerMajorCycle(n, level);
        const double e = m_sourceLevel == 7 ? 1 : 0;
        if (d + p + e == 0) {
            return 0;  // no valid geometry for this drive count
        }
        return static_cast<std::uint64_t>(static_cast<double>(size) * d / (d + p + e));
    }
    case 11: case 17: {
        const std::uint32_t k = n / legs;
        const std::uint32_t legLevel = m_sourceLevel == 11 ? 5 : 16;
        return legs * calculateMaxDataSize(k * (size / n), k, legLevel, 1);
    }
    default: return 0;
    }
}

bool StorLibModify::isValid_56_65_Morph(std::uint32_t k, std::uint32_t d, std::uint32_t r) const {
    const std::uint32_t dt = getMinorDataStripesPerMajorCycle(k, m_targetLevel);
    const std::uint32_t pt = getMinorParityStripesPerMajorCycle(k, m_targetLevel);
    return ((dt + pt) / k) * d <= dt * r;
}

std::uint32_t StorLibModify::countSourceChunks() const {
    std::uint32_t n = 0;
    for (const storlib::ChunkSpec& c : m_source) {
        const storlib::RaidObject* o = m_adapter != nullptr ? m_adapter->getObject(c.drive) : nullptr;
        const storlib::HardDrive* drive = o != nullptr ? o->as<storlib::HardDrive>() : nullptr;
        n += drive != nullptr && static_cast<std::uint32_t>(drive->getState()) == kFailedDrive ? 0 : 1;
    }
    return n;
}

std::uint32_t StorLibModify::morphSearch(std::uint32_t n) const {
    const std::uint32_t p = getMinorParityStripesPerMajorCycle(n, m_sourceLevel);
    const std::uint32_t d = getMinorDataStripesPerMajorCycle(n, m_sourceLevel);
    const std::uint32_t r = n == 0 ? 0 : (d + p) / n;
    const std::uint32_t m = raidmath::minimumDriveCount(m_targetLevel);
    const std::uint32_t h = m_adapter != nullptr
                                ? static_cast<std::uint32_t>(
                                      storlib::FilterCollection(*m_adapter, storlib::HardDrive::kClassName).size())
                                : 0;
    if (h < m) {
        return h + 1;
    }
    for (std::uint32_t k = m; k <= h; ++k) {
        if (isValid_56_65_Morph(k, d, r)) {
            return k;
        }
    }
    return h + 1;
}

std::uint32_t StorLibModify::getMinChunksAllowed() {
    BuilderTrace trace("StorLibModify::getMinChunksAllowed");
    const std::uint32_t n = countSourceChunks();
    const std::uint32_t base = raidmath::minChunks(m_targetLevel, m_legs);
    if (isSourceTargetDisjoint()) {
        m_disjoint = true;
        TkzLogMsg(TKZ_LOG_ERROR, "isSourceTargetDisjoint() returned true");
        return base;
    }
    for (const MigrationMinimum& row : kMinimums) {
        if (row.source == m_sourceLevel && row.target == m_targetLevel) {
            if (row.morph) {
                return morphSearch(n);
            }
            const long long wanted = static_cast<long long>(row.times) * n + row.plus;
            return std::max<long long>(base, wanted) > 0 ? static_cast<std::uint32_t>(std::max<long long>(base, wanted))
                                                         : base;
        }
    }
    return base;
}

std::uint64_t StorLibModify::getMinDataSpace() const {
    return m_logicalDrive != nullptr ? m_logicalDrive->getDataSizeMB() : 0;
}

std::uint32_t StorLibModify::getRLMFeature(std::uint32_t source, std::uint32_t target) {
    m_mirrorSimple = (source == 1 && target == 15) || (source == 15 && target == 1);
    return storlib::migrationFeature(static_cast<storlib::RaidLevel>(source), static_cast<storlib::RaidLevel>(target));
}

std::uint32_t StorLibModify::getOCEFeature(std::uint32_t level) {
    for (const Expansion& e : kExpansions) {
        if (e.level == level) {
            return e.feature;
        }
    }
    return storlib::Feature::None;
}

int StorLibModify::featureValue(std::uint32_t id) const {
    return m_adapter != nullptr ? m_adapter->getFeature(id) : 0;
}

bool StorLibModify::isValidRLM(std::uint32_t source, std::uint32_t target) {
    BuilderTrace trace("StorLibModify::isValidRLM");
    const std::uint32_t feature = getRLMFeature(source, target);
    if (feature == storlib::Feature::None) {
        return false;
    }
    const int reply = featureValue(feature);
    if (reply == 1) {
        return true;
    }
    if (reply == kFeatureNotEnabled) {
        TkzLogMsg(TKZ_LOG_INFO, "The requested feature is not enabled on this controller");
    } else if (reply != 0) {
        TkzLogMsg(TKZ_LOG_INFO, "Unknown Feature value");
    }
    return false;
}

bool StorLibModify::isSourceTargetDisjoint() const {
    const std::set<DriveKey> source = drivesOf(m_source);
    for (const DriveKey& k : drivesOf(m_target)) {
        if (source.count(k) != 0) {
            return false;
        }
    }
    return true;
}

bool StorLibModify::isSourceSubsetOfTarget() const {
    const std::set<DriveKey> target = drivesOf(m_target);
    for (const DriveKey& k : drivesOf(m_source)) {
        if (target.count(k) == 0) {
            return false;
        }
    }
    return true;
}

bool StorLibModify::isTargetChunkDisjoint() const { return drivesOf(m_target).size() == m_target.size(); }

bool StorLibModify::targetHasMixedTech() const {
    std::set<std::uint32_t> kinds;
    for (const storlib::ChunkSpec& c : m_target) {
        const storlib::RaidObject* o = m_adapter != nullptr ? m_adapter->getObject(c.drive) : nullptr;
        if (const storlib::HardDrive* d = o != nullptr ? o->as<storlib::HardDrive>() : nullptr) {
            kinds.insert(static_cast<std::uint32_t>(d->getMediaType()));
        }
    }
    return kinds.size() > 1;
}

unsigned int StorLibModify::executeModify(const _vdiskIdf& logicalDrive, storlib::LogicalDriveSpec spec,
                                          storlib::Ret& ret) {
    BuilderTrace trace("StorLibModify::executeModify");
    if (m_targetLevel == raidmath::kInvalidLevel || !isTargetChunkDisjoint()) {
        return FSAIF_INVALID_PARAM;
    }
    const bool expansion = m_sourceLevel == m_targetLevel;
    const bool offered = expansion ? featureValue(getOCEFeature(m_targetLevel)) == 1
                                   : isValidRLM(m_sourceLevel, m_targetLevel);
    if (!offered) {
        TkzLogMsg(TKZ_LOG_ERROR, "The controller does not offer this migration or expansion");
        return FSAIF_NOT_SUPPORTED;
    }
    findChunkSpace();
    const std::uint32_t least = getMinChunksAllowed();
    if (m_target.size() < least) {
        TkzLogMsg(TKZ_LOG_ERROR, "Not enough drives: the change needs at least %u chunks", least);
        return FSAIF_OP_INVALID;
    }
    spec.raidLevel = static_cast<storlib::RaidLevel>(m_targetLevel);
    spec.chunks = m_target;
    spec.legs = (m_targetLevel == 11 || m_targetLevel == 17) ? m_legs : 0;
    return fsaifModifyLogicalDrive(logicalDrive, spec, ret);
}

void StorLibModify::findChunkSpace() {
    BuilderTrace trace("StorLibModify::findChunkSpace");
    if (m_targetGiven || m_adapter == nullptr) {
        return;
    }
    const std::uint32_t least = getMinChunksAllowed();
    if (m_target.size() >= least) {
        return;
    }
    const std::set<DriveKey> taken = drivesOf(m_target);
    for (const storlib::ChunkSpec& c : StorLibCreate::getInstance()->findChunkSpace(*m_adapter, 0xffffffffu)) {
        if (m_target.size() >= least) {
            break;
        }
        if (taken.count({c.drive.getChannelID(), c.drive.getDeviceID()}) == 0) {
            m_target.push_back(c);
        }
    }
}

void StorLibModify::cleanUp() {
    m_adapter = nullptr;
    m_logicalDrive = nullptr;
    m_source.clear();
    m_target.clear();
    m_disjoint = false;
    m_mirrorSimple = false;
    m_targetGiven = false;
}

}  // namespace vex::cim::fwf

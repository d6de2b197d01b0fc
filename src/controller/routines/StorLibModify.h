// StorLibModify: turns a change of an existing logical drive (RAID level
// migration, capacity expansion) into the LogicalDriveSpec the controller
// accepts, and refuses before any change what the controller cannot do:
// a migration it does not offer, too few chunks, a smaller result.
//
// One instance; the per-request state lives in members and requests are
// serialised by the StorLib guard that execute holds.
#ifndef VEX_CONTROLLER_ROUTINES_STORLIBMODIFY_H
#define VEX_CONTROLLER_ROUTINES_STORLIBMODIFY_H

#include <cstdint>
#include <string>
#include <vector>

#include <storlib/Adapter.h>
#include <storlib/LogicalDrive.h>
#include <storlib/LogicalDriveSpec.h>
#include <storlib/Ret.h>

#include "controller/routines/RoutineInput.h"

namespace vex::cim::fwf {

class StorLibModify {
public:
    static StorLibModify* getInstance();

    static std::uint32_t getRAIDLevelEnum(const std::string& name);

    // The request: the controller and logical drive (from one snapshot), the
    // target level, legs (0: the level's default) and the target chunks
    // (none: the source's, completed by findChunkSpace).
    void loadArguments(const storlib::Adapter* adapter, const storlib::LogicalDrive* logicalDrive,
                       std::uint32_t targetLevel, std::uint32_t legs, std::vector<storlib::ChunkSpec> target);
    // The levels alone, for the arithmetic.
    void setLevels(std::uint32_t source, std::uint32_t target, std::uint32_t legs);

    std::uint32_t getMinorDataStripesPerMajorCycle(std::uint32_t n, std::uint32_t level) const;
    std::uint32_t getMinorParityStripesPerMajorCycle(std::uint32_t n, std::uint32_t level) const;
    std::uint64_t calculateMaxDataSize(std::uint64_t size, std::uint32_t n, std::uint32_t level,
                                       std::uint32_t legs) const;
    bool isValid_56_65_Morph(std::uint32_t k, std::uint32_t d, std::uint32_t r) const;
    std::uint32_t getMinChunksAllowed();
    std::uint64_t getMinDataSpace() const;

    std::uint32_t getRLMFeature(std::uint32_t source, std::uint32_t target);
    static std::uint32_t getOCEFeature(std::uint32_t level);
    bool isValidRLM(std::uint32_t source, std::uint32_t target);
    bool isMirrorSimpleMigration() const { return m_mirrorSimple; }

    // Chunk-set tests over (channel, device) of the source and target chunks.
    bool isSourceTargetDisjoint() const;
    bool isSourceTargetNonDisjoint() const { return !isSourceTargetDisjoint(); }
    bool isSourceSubsetOfTarget() const;
    bool isTargetChunkDisjoint() const;  // no drive twice in the target
    bool targetHasMixedTech() const;

    // With no target chunks given: adds usable drives (as the creation builder
    // chooses them) to the source's until the migration's minimum is met.
    void findChunkSpace();

    // Checks the loaded request and hands it to the controller: 0, 4 (bad
    // request), 11 (migration or expansion not offered), 17 (too few chunks
    // or a smaller result), or the wrapper's code.
    unsigned int executeModify(const _vdiskIdf& logicalDrive, storlib::LogicalDriveSpec spec, storlib::Ret& ret);
    void cleanUp();

private:
    StorLibModify() = default;

    int featureValue(std::uint32_t id) const;
    std::uint32_t countSourceChunks() const;
    std::uint32_t morphSearch(std::uint32_t n) const;

    std::uint32_t m_sourceLevel = 0;
    std::uint32_t m_targetLevel = 0;
    std::uint32_t m_legs = 1;
    bool m_disjoint = false;
    bool m_mirrorSimple = false;
    bool m_targetGiven = false;
    const storlib::Adapter* m_adapter = nullptr;
    const storlib::LogicalDrive* m_logicalDrive = nullptr;
    std::vector<storlib::ChunkSpec> m_source;
    std::vector<storlib::ChunkSpec> m_target;
};

}  // namespace vex::cim::fwf

#endif

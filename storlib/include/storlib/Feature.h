// Controller capability identifiers, asked with Adapter::getFeature().
#pragma once
#include <storlib/Export.h>
#include <storlib/Types.h>

#include <cstdint>

namespace storlib {

namespace Feature {
// Online capacity expansion per RAID level.
constexpr uint32_t OCE_RAID0 = 29, OCE_RAID5 = 30, OCE_RAID1 = 49, OCE_RAID1E = 50,
                   OCE_RAID5EE = 51, OCE_RAID6 = 52, OCE_RAID10 = 53, OCE_RAID50 = 54,
                   OCE_RAID60 = 55, OCE_RAID6RS = 206;
// Other capabilities.
constexpr uint32_t JBOD = 1, SecureErase = 2, FastTier = 3, DriveFirmwareUpdate = 4,
                   PowerManagement = 5, CopyBack = 6, AutomaticFailover = 7, SpannedArrays = 8,
                   BackgroundConsistencyCheck = 9, NCQ = 10, SaveRestoreConfig = 11;
// The identifier that means "no such capability".
constexpr uint32_t None = 306;
}  // namespace Feature

// The capability a RAID level migration from `from` to `to` needs, or Feature::None.
STORLIB_API uint32_t migrationFeature(RaidLevel from, RaidLevel to) noexcept;
// The capability an online capacity expansion of `level` needs, or Feature::None.
STORLIB_API uint32_t expansionFeature(RaidLevel level) noexcept;
// A short name of a capability identifier ("RLM_RAID5_RAID6", "OCE_RAID5", "JBOD"), or "".
STORLIB_API const char* featureName(uint32_t id) noexcept;

}  // namespace storlib

#include <cstdio>

#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"

namespace vex::cim::fwf::fsamap {

namespace {

// RAID-6 drive-count triples, each written "%d,%d,%d"; entries that are not
// three numbers are dropped.
std::vector<std::string> driveCountTriples(const std::vector<std::string>& reported) {
    std::vector<std::string> triples;
    for (const std::string& entry : reported) {
        int total = 0, data = 0, parity = 0;
        if (std::sscanf(entry.c_str(), "%d ,%d ,%d", &total, &data, &parity) == 3) {
            triples.push_back(formatText("%d,%d,%d", total, data, parity));
        }
    }
    return triples;
}

using storlib::AdapterData;
using Row = PropertyRow<ControllerContext>;

template <auto Member>
constexpr RawValue (*A)(const ControllerContext&) = &fieldOf<ControllerContext, Member>;

// "CSOemId" belongs to this family as well; it is read with the general
// information, so the instance holds it once.
const Row kLimits[] = {
    {"CSMaxTopLevelLDs", CIM_UINT32, PLAIN, A<&AdapterData::maxTopLevelLDs>},
    {"CSMaxLDMembers", CIM_UINT32, PLAIN, A<&AdapterData::maxLDMembers>},
    {"CSMaxLogicalDrives", CIM_UINT32, PLAIN, A<&AdapterData::maxLogicalDrives>},
    {"CSMaxArrays", CIM_UINT32, PLAIN, A<&AdapterData::maxArrays>},
    {"CSMaxSpannedArrays", CIM_UINT32, PLAIN, A<&AdapterData::maxSpannedArrays>},
    {"CSMaxChannels", CIM_UINT32, PLAIN, A<&AdapterData::maxChannels>},
    {"CSMaxIDs", CIM_UINT32, PLAIN, A<&AdapterData::maxIDs>},
    {"CSMaxDevsPerArray", CIM_UINT32, PLAIN, A<&AdapterData::maxDevsPerArray>},
    {"CSMaxControllers", CIM_UINT32, PLAIN, A<&AdapterData::maxControllers>},
    {"CSMaxJBODs", CIM_UINT32, PLAIN, A<&AdapterData::maxJBODs>},
    {"CSMaxConfiguredDrives", CIM_UINT32, PLAIN, A<&AdapterData::maxConfiguredDrives>},
    {"CSMaxGlobalSpares", CIM_UINT32, PLAIN, A<&AdapterData::maxGlobalSpares>},
    {"CSMaxDedSparePerLD", CIM_UINT32, PLAIN, A<&AdapterData::maxDedicatedSparesPerLD>},
    {"CSMaxRAID0Members", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid0Members>},
    {"CSMaxRAID5Members", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid5Members>},
    {"CSMaxRAIDVolumeMembers", CIM_UINT32, PLAIN, A<&AdapterData::maxRaidVolumeMembers>},
    {"CSMaxSpannedVolumeMembers", CIM_UINT32, PLAIN, A<&AdapterData::maxSpannedVolumeMembers>},
    {"CSMaxSnapshots", CIM_UINT32, PLAIN, A<&AdapterData::maxSnapshots>},
    {"CSMaxStripeSize", CIM_UINT32, PLAIN, A<&AdapterData::maxStripeSizeKB>},
    {"CSMinStripeSize", CIM_UINT32, PLAIN, A<&AdapterData::minStripeSizeKB>},
    {"CSMaxNumberOfPHYs", CIM_UINT32, PLAIN, A<&AdapterData::maxPhys>},
    {"CSMaxSASPorts", CIM_UINT32, PLAIN, A<&AdapterData::maxSASPorts>},
    {"CSMaxRAID6Members", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid6Members>},
    {"CSMaxRAID1EMembers", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid1EMembers>},
    {"CSMaxRAID5EEMembers", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid5EEMembers>},
    {"CSMaxRAID10Members", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid10Members>},
    {"CSMaxRAID50Members", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid50Members>},
    {"CSMaxRAID60Members", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid60Members>},
    {"CSMaxRAID6MajCycle", CIM_UINT32, PLAIN, A<&AdapterData::maxRaid6MajorCycle>},
    {"CSraid6RSDriveCounts", CIM_STRING_ARRAY, PLAIN,
     [](const ControllerContext& c) { return raw(driveCountTriples(c.adapter->getRaid6RSDriveCounts())); }},
    {"CSraid6DriveCounts", CIM_STRING_ARRAY, PLAIN,
     [](const ControllerContext& c) { return raw(driveCountTriples(c.adapter->getRaid6DriveCounts())); }},
    {"CSBackgroundConsistencyCheckPeriod", CIM_UINT32, PLAIN, A<&AdapterData::bgConsistencyCheckPeriodDays>},
    {"CSBackgroundConsistencyCheck", CIM_BOOLEAN, PLAIN, A<&AdapterData::bgConsistencyCheckEnabled>},
};

}  // namespace

void readAdapterOptions(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kLimits, controller);
}

}  // namespace vex::cim::fwf::fsamap

#include "ExpectedCounts.h"

#include <storlib/Adapter.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Progress.h>

#include "providers/storage/CachedClassTable.h"

namespace vex::datapath {

namespace {

using storlib::Adapter;
using storlib::FilterCollection;

struct ControllerTally {
    std::size_t devices = 0;     // hard drives and enclosure processors
    std::size_t logicalDrives = 0;
    std::size_t oversizedPools = 0;  // over the legacy size limit without extended LBA
    std::size_t enclosures = 0;
    std::size_t sesElements = 0;
    std::size_t phys = 0;
    std::size_t connectors = 0;
    std::size_t batteries = 0;
    std::size_t runningTasks = 0;
};

std::size_t count(const Adapter& adapter, const char* className) {
    return FilterCollection(adapter, className).size();
}

ControllerTally tally(const Adapter& adapter) {
    ControllerTally t;
    t.devices = count(adapter, "PhysicalDevice");
    t.enclosures = count(adapter, "SES2EnclosureDevice");
    t.sesElements = count(adapter, "SESElement");
    t.phys = count(adapter, "SASPhy");
    t.connectors = count(adapter, "SASConnector");
    t.batteries = count(adapter, "Battery");
    for (const storlib::RaidObject* object : FilterCollection(adapter, "LogicalDrive")) {
        const auto* logicalDrive = object->as<storlib::LogicalDrive>();
        ++t.logicalDrives;
        if (logicalDrive->getDataSizeMB() > adapter.getLegacyLbaLimitMB() && !logicalDrive->hasExtendedLba()) {
            ++t.oversizedPools;
        }
    }
    for (const storlib::RaidObject* object : FilterCollection(adapter, "Progress")) {
        if (object->as<storlib::Progress>()->getTaskState() == storlib::TaskState::Running) {
            ++t.runningTasks;
        }
    }
    return t;
}

void addController(const ControllerTally& t, std::map<std::string, std::size_t>& counts) {
    for (const char* cls : {"VEX_StorageVolume", "VEX_StorageVolumeView", "VEX_PrimordialFixedStorageSettings"}) {
        counts[cls] += t.logicalDrives;
    }
    counts["VEX_ConcreteStoragePool"] += t.logicalDrives - t.oversizedPools;
    counts["VEX_ConcreteStoragePoolView"] += t.logicalDrives - t.oversizedPools;
    counts["VEX_SourceStoragePoolView"] += t.oversizedPools;
    for (const char* cls : {"VEX_PrimordialStorageExtent", "VEX_DiskDrive", "VEX_DiskDriveView"}) {
        counts[cls] += t.devices;
    }
    for (const char* cls : {"VEX_ControllerComputerSystem", "VEX_ControllerView", "VEX_Card", "VEX_Product",
                            "VEX_PortController", "VEX_SCSIProtocolController", "VEX_AlarmDevice",
                            "VEX_DATargetPort"}) {
        counts[cls] += 1;
    }
    counts["VEX_Battery"] += t.batteries;
    counts["VEX_SASInitiatorPort"] += t.connectors;
    counts["VEX_InitiatorSASPhy"] += t.phys;
    counts["VEX_EnclosureChassis"] += t.enclosures;
    counts["VEX_SESElement"] += t.sesElements;
    counts["VEX_ConcreteJob"] += t.runningTasks;
}

}  // namespace

std::map<std::string, std::size_t> expectedInstanceCounts(const storlib::SystemConfig& system) {
    // Nothing from the controllers makes the indication channel's instances or
    // the settings of CreateSetting: those classes stay at 0.
    std::map<std::string, std::size_t> counts;
    for (const vex::cim::fwf::CachedClassRow& row : vex::cim::fwf::kCachedClasses) {
        counts[row.className] = 0;
    }
    for (std::size_t i = 0; i < system.getAdapterCount(); ++i) {
        addController(tally(*system.getAdapter(i)), counts);
    }
    return counts;
}

}  // namespace vex::datapath

#include "ExpectedCounts.h"

#include <storlib/Adapter.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Progress.h>

#include "providers/storage/CachedClassTable.h"

namespace vex::datapath {

namespace {

using Counts = std::map<std::string, std::size_t>;

void add(Counts& counts, std::initializer_list<const char*> classes, std::size_t n) {
    for (const char* cls : classes) {
        counts[cls] += n;
    }
}

std::size_t count(const storlib::Adapter& adapter, const char* className) {
    return storlib::FilterCollection(adapter, className).size();
}

// Logical drives over the legacy size limit without extended LBA are source
// pools; the others concrete pools.
void addLogicalDrives(const storlib::Adapter& adapter, Counts& counts) {
    for (const storlib::RaidObject* object : storlib::FilterCollection(adapter, "LogicalDrive")) {
        const auto* drive = object->as<storlib::LogicalDrive>();
        const bool source = drive->getDataSizeMB() > adapter.getLegacyLbaLimitMB() && !drive->hasExtendedLba();
        add(counts, {"VEX_StorageVolume", "VEX_StorageVolumeView", "VEX_PrimordialFixedStorageSettings"}, 1);
        if (source) {
            add(counts, {"VEX_SourceStoragePoolView"}, 1);
        } else {
            add(counts, {"VEX_ConcreteStoragePool", "VEX_ConcreteStoragePoolView"}, 1);
        }
    }
}

void addController(const storlib::Adapter& adapter, Counts& counts) {
    add(counts, {"VEX_ControllerComputerSystem", "VEX_ControllerView", "VEX_Card", "VEX_Product", "VEX_PortController",
                 "VEX_SCSIProtocolController", "VEX_AlarmDevice", "VEX_DATargetPort"},
        1);
    // Hard drives and enclosure processors alike.
    add(counts, {"VEX_PrimordialStorageExtent", "VEX_DiskDrive", "VEX_DiskDriveView"}, count(adapter, "PhysicalDevice"));
    add(counts, {"VEX_Battery"}, count(adapter, "Battery"));
    add(counts, {"VEX_SASInitiatorPort"}, count(adapter, "SASConnector"));
    add(counts, {"VEX_InitiatorSASPhy"}, count(adapter, "SASPhy"));
    add(counts, {"VEX_EnclosureChassis"}, count(adapter, "SES2EnclosureDevice"));
    add(counts, {"VEX_SESElement"}, count(adapter, "SESElement"));
    for (const storlib::RaidObject* object : storlib::FilterCollection(adapter, "Progress")) {
        add(counts, {"VEX_ConcreteJob"}, object->as<storlib::Progress>()->getTaskState() == storlib::TaskState::Running);
    }
    addLogicalDrives(adapter, counts);
}

}  // namespace

std::map<std::string, std::size_t> expectedInstanceCounts(const storlib::SystemConfig& system) {
    // Nothing from the controllers makes the indication channel's instances or
    // the settings of CreateSetting: those classes stay at 0.
    Counts counts;
    for (const vex::cim::fwf::CachedClassRow& row : vex::cim::fwf::kCachedClasses) {
        counts[row.className] = 0;
    }
    for (std::size_t i = 0; i < system.getAdapterCount(); ++i) {
        addController(*system.getAdapter(i), counts);
    }
    return counts;
}

}  // namespace vex::datapath

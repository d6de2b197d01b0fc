// ConfigSnapshot: what the RAID event monitor remembers of the controller
// configuration between two reads, and across provider restarts.
//
// Every object the monitor compares (controller, battery, drive, logical
// drive, enclosure, enclosure element, task) is one SnapshotObject: an
// element name and its properties as text, in a fixed order. The snapshot is
// written as XML ("NRMFSAConfig.xml") with one element per object:
//
//   <Config time="...">
//     <Controller controllerID="0" controllerSerial="..." ...>
//       <HardDrive channelID="0" deviceID="3" state="1" .../>
//       <LogicalDrive logicalDriveID="1" .../>
//       <SES2EnclosureDevice .../> <SESElement .../> <Battery .../>
//       <ProgressCollection><Progress taskID="4" .../></ProgressCollection>
//     </Controller>
//   </Config>
//
// and read back by the next start, so that what changed while the provider
// was not running is still reported.
#ifndef VEX_MONITOR_CONFIGSNAPSHOT_H
#define VEX_MONITOR_CONFIGSNAPSHOT_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace storlib {
class SystemConfig;
}

namespace vex::monitor {

struct SnapshotObject {
    std::string element;
    std::vector<std::pair<std::string, std::string>> attributes;

    // The value of an attribute; "" when absent.
    std::string get(const std::string& name) const;
    bool has(const std::string& name) const;
    void set(const std::string& name, std::string value);
    // Element name and identifying attributes: equal for the same object in
    // two snapshots.
    std::string identity() const;
};

struct AdapterSnapshot {
    SnapshotObject controller;
    std::vector<SnapshotObject> objects;  // everything below the controller

    std::uint32_t id() const;
    std::string serial() const { return controller.get("controllerSerial"); }
};

struct ConfigSnapshot {
    std::vector<AdapterSnapshot> adapters;
};

ConfigSnapshot snapshotOf(const storlib::SystemConfig& config);
// The SMART figures of every drive, as XML ("<SmartStats>" with one
// "HardDrive" element per drive).
std::string smartStatsOf(const storlib::SystemConfig& config);

std::string toXml(const ConfigSnapshot& snapshot);
// False (and snapshot empty) for text that is not a snapshot written by
// toXml: truncated, not XML, or nested deeper than the layout allows.
bool fromXml(const std::string& text, ConfigSnapshot& snapshot);

}  // namespace vex::monitor

#endif

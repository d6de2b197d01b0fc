// Library states as CIM values (value maps of the DMTF schema).
#ifndef VEX_CONTROLLER_STATUSMAPS_H
#define VEX_CONTROLLER_STATUSMAPS_H

#include <vector>

#include <storlib/Types.h>

namespace storlib {
class HardDrive;
class LogicalDrive;
}

namespace vex::cim::fwf::fsamap {

// CIM_ManagedSystemElement.OperationalStatus values used here.
enum OperationalStatusValue : unsigned long long {
    OS_UNKNOWN = 0,
    OS_OK = 2,
    OS_DEGRADED = 3,
    OS_PREDICTIVE_FAILURE = 5,
    OS_ERROR = 6,
    OS_NON_RECOVERABLE_ERROR = 7,
    OS_STOPPED = 10,
    OS_IN_SERVICE = 11,
    OS_LOST_COMMUNICATION = 13
};

std::vector<unsigned long long> driveOperationalStatus(const storlib::HardDrive& drive);
// Health from the substate; a running task adds "In Service".
std::vector<unsigned long long> logicalDriveOperationalStatus(const storlib::LogicalDrive& ld);
std::vector<unsigned long long> sesOperationalStatus(storlib::SESStatus status);
// CIM_StorageExtent.ExtentStatus of a drive's primordial extent.
std::vector<unsigned long long> driveExtentStatus(const storlib::HardDrive& drive);
// CIM_Battery.BatteryStatus.
unsigned batteryStatusValue(storlib::BatteryStatus status);
// A SAS link rate in Mbit/s; 0 when unknown or disabled.
unsigned linkRateMbps(storlib::LinkRate rate);

}  // namespace vex::cim::fwf::fsamap

#endif

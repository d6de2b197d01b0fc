#include "controller/StatusMaps.h"

#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>

namespace vex::cim::fwf::fsamap {

using storlib::DriveState;
using storlib::LogicalDriveState;

std::vector<unsigned long long> driveOperationalStatus(const storlib::HardDrive& drive) {
    if (drive.hasSmartError()) {
        return {OS_PREDICTIVE_FAILURE};
    }
    switch (drive.getState()) {
    case DriveState::Failed: return {OS_ERROR};
    case DriveState::Offline: return {OS_STOPPED};
    case DriveState::Missing: return {OS_LOST_COMMUNICATION};
    case DriveState::Rebuilding: return {OS_OK, OS_IN_SERVICE};
    default: return {OS_OK};
    }
}

std::vector<unsigned long long> logicalDriveOperationalStatus(const storlib::LogicalDrive& ld) {
    std::vector<unsigned long long> status;
    switch (ld.getSubstate()) {
    case LogicalDriveState::Failed: status.push_back(OS_NON_RECOVERABLE_ERROR); break;
    case LogicalDriveState::Degraded: status.push_back(OS_DEGRADED); break;
    default: status.push_back(OS_OK); break;
    }
    switch (ld.getState()) {
    case LogicalDriveState::Building:
    case LogicalDriveState::Rebuilding:
    case LogicalDriveState::Verifying:
    case LogicalDriveState::Migrating: status.push_back(OS_IN_SERVICE); break;
    default: break;
    }
    return status;
}

std::vector<unsigned long long> sesOperationalStatus(storlib::SESStatus status) {
    switch (status) {
    case storlib::SESStatus::OK: return {OS_OK};
    case storlib::SESStatus::NonCritical: return {OS_DEGRADED};
    case storlib::SESStatus::Critical: return {OS_ERROR};
    case storlib::SESStatus::Unrecoverable: return {OS_NON_RECOVERABLE_ERROR};
    case storlib::SESStatus::NotInstalled: return {OS_LOST_COMMUNICATION};
    default: return {OS_UNKNOWN};
    }
}

std::vector<unsigned long long> driveExtentStatus(const storlib::HardDrive& drive) {
    // 2 None/Not Applicable, 3 Broken, 11 Rebuild
    switch (drive.getState()) {
    case DriveState::Failed:
    case DriveState::Missing: return {3};
    case DriveState::Rebuilding: return {11};
    default: return {2};
    }
}

unsigned batteryStatusValue(storlib::BatteryStatus status) {
    // 1 Other, 2 Unknown, 3 Fully Charged, 4 Low, 5 Critical, 6 Charging
    switch (status) {
    case storlib::BatteryStatus::Ok: return 3;
    case storlib::BatteryStatus::Charging: return 6;
    case storlib::BatteryStatus::Low: return 4;
    case storlib::BatteryStatus::Failed: return 5;
    case storlib::BatteryStatus::Missing: return 2;
    default: return 1;
    }
}

unsigned linkRateMbps(storlib::LinkRate rate) {
    switch (rate) {
    case storlib::LinkRate::Rate1_5G: return 1500;
    case storlib::LinkRate::Rate3G: return 3000;
    case storlib::LinkRate::Rate6G: return 6000;
    case storlib::LinkRate::Rate12G: return 12000;
    default: return 0;
    }
}

}  // namespace vex::cim::fwf::fsamap

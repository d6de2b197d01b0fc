#include <cstdlib>

#include <storlib/Names.h>

#include "controller/CimNames.h"
#include "controller/DeviceMapping.h"
#include "controller/StatusMaps.h"

namespace vex::cim::fwf::fsamap {

namespace {

using storlib::HardDriveData;
using storlib::PhysicalDeviceData;
using Row = PropertyRow<DeviceContext>;

template <auto Member>
constexpr RawValue (*F)(const DeviceContext&) = &fieldOf<DeviceContext, Member>;

RawValue orUnknown(const std::string& text) { return raw(text.empty() ? std::string(kUnknown) : text); }

template <auto Member>
RawValue textOrUnknown(const DeviceContext& d) {
    return orUnknown(d.device->getDeviceData().*Member);
}

std::string deviceId(const DeviceContext& d) {
    return driveDeviceId(d.controller, static_cast<int>(d.device->getChannelID()),
                         static_cast<int>(d.device->getDeviceID()));
}

RawValue systemClass(const DeviceContext&) { return raw(kControllerSystemClass); }
RawValue systemName(const DeviceContext& d) { return controllerSystemName(d.controller); }
RawValue deviceIdValue(const DeviceContext& d) { return deviceId(d); }

// Number `index` of the firmware revision's digit groups ("C003" -> 3, then 0s).
unsigned revisionPart(const DeviceContext& d, std::size_t index) {
    const std::string& text = d.device->getFirmwareRevision();
    std::size_t seen = 0;
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] < '0' || text[i] > '9') {
            ++i;
            continue;
        }
        char* end = nullptr;
        const unsigned long value = std::strtoul(text.c_str() + i, &end, 10);
        if (seen++ == index) {
            return static_cast<unsigned>(value);
        }
        i = static_cast<std::size_t>(end - text.c_str());
    }
    return 0;
}

RawValue numberOrUnknown(int value) {
    return value < 0 ? raw(kUnknown) : raw(formatText("%d", value));
}

const Row kIdentity[] = {
    {"DDSystemCreationClassName", CIM_STRING, KEY_AND_VIEW_KEY, systemClass},
    {"DDSystemName", CIM_STRING, KEY_AND_VIEW_KEY, systemName},
    {"DDCreationClassName", CIM_STRING, KEY_AND_VIEW_KEY, [](const DeviceContext&) { return raw(kDiskDriveClass); }},
    {"DDDeviceID", CIM_STRING, KEY_AND_VIEW_KEY, deviceIdValue},
    {"DDName", CIM_STRING, PLAIN,
     [](const DeviceContext& d) {
         const std::string name = d.device->getVendor() + (d.device->getVendor().empty() ? "" : " ") + d.device->getProduct();
         return orUnknown(name);
     }},
    {"SESystemCreationClassName", CIM_STRING, VIEW_KEY, systemClass},
    {"SESystemName", CIM_STRING, VIEW_KEY, systemName},
    {"SECreationClassName", CIM_STRING, VIEW_KEY, [](const DeviceContext&) { return raw(kStorageExtentClass); }},
    {"SEDeviceID", CIM_STRING, VIEW_KEY, deviceIdValue},
    {"SIInstanceID", CIM_STRING, VIEW_KEY, [](const DeviceContext& d) { return raw("DiskFirmware_" + deviceId(d)); }},
    {"SIManufacturer", CIM_STRING, PLAIN, textOrUnknown<&PhysicalDeviceData::vendor>},
    {"SIVersionString", CIM_STRING, PLAIN, textOrUnknown<&PhysicalDeviceData::firmwareRevision>},
    {"PPCreationClassName", CIM_STRING, VIEW_KEY, [](const DeviceContext&) { return raw(kDiskPackageClass); }},
    {"PPTag", CIM_STRING, VIEW_KEY,
     [](const DeviceContext& d) { return raw("DiskDrivePhysicalPackage_" + deviceId(d)); }},
    {"PPModel", CIM_STRING, PLAIN, textOrUnknown<&PhysicalDeviceData::product>},
    {"PPManufacturer", CIM_STRING, PLAIN, textOrUnknown<&PhysicalDeviceData::vendor>},
    {"PPSerialNumber", CIM_STRING, PLAIN, textOrUnknown<&PhysicalDeviceData::serialNumber>},
};

const Row kDriveDetails[] = {
    {"DDChannelID", CIM_UINT32, PLAIN, [](const DeviceContext& d) { return raw(d.device->getChannelID()); }},
    {"SEInterfaceType", CIM_STRING, PLAIN, [](const DeviceContext& d) { return raw(storlib::toString(d.device->getInterfaceType())); }},
    {"SEBlockSize", CIM_UINT64, PLAIN, F<&HardDriveData::blockSize>},
    {"SENumberOfBlocks", CIM_UINT64, PLAIN, [](const DeviceContext& d) { return raw(d.drive->getNumberOfBlocks()); }},
    {"SEConsumableBlocks", CIM_UINT64, PLAIN, [](const DeviceContext& d) { return raw(d.drive->getNumberOfBlocks()); }},
    {"SEPrimordial", CIM_BOOLEAN, PLAIN, [](const DeviceContext&) { return raw(true); }},
    {"SEtype", CIM_STRING, PLAIN, [](const DeviceContext& d) { return raw(storlib::toString(d.drive->getMediaType())); }},
    {"SEOperationalStatus", CIM_UINT16_ARRAY, PLAIN, [](const DeviceContext& d) { return RawValue(driveOperationalStatus(*d.drive)); }},
    {"SEExtentStatus", CIM_UINT16_ARRAY, PLAIN, [](const DeviceContext& d) { return RawValue(driveExtentStatus(*d.drive)); }},
    {"SIBuildNumber", CIM_UINT16, PLAIN, [](const DeviceContext& d) { return raw(revisionPart(d, 3)); }},
    {"SIMajorVersion", CIM_UINT16, PLAIN, [](const DeviceContext& d) { return raw(revisionPart(d, 0)); }},
    {"SIMinorVersion", CIM_UINT16, PLAIN, [](const DeviceContext& d) { return raw(revisionPart(d, 1)); }},
    {"SIRevisionNumber", CIM_UINT16, PLAIN, [](const DeviceContext& d) { return raw(revisionPart(d, 2)); }},
    {"PPPartNumber", CIM_STRING, PLAIN, [](const DeviceContext& d) { return orUnknown(d.drive->getPartNumber()); }},
    {"DDWriteCacheMode", CIM_UINT32, PLAIN, F<&HardDriveData::writeCacheEnabled>},
    {"DDConfigurationStatus", CIM_UINT32, PLAIN, F<&HardDriveData::state>},
    {"DDIsJBOD", CIM_BOOLEAN, PLAIN, [](const DeviceContext& d) { return raw(d.drive->isJBOD()); }},
    {"DDSpareType", CIM_UINT32, PLAIN, F<&HardDriveData::spareType>},
    {"DDBlockSize", CIM_UINT32, PLAIN, F<&HardDriveData::blockSize>},
    {"DDOperationalStatus", CIM_UINT16_ARRAY, PLAIN, [](const DeviceContext& d) { return RawValue(driveOperationalStatus(*d.drive)); }},
    {"DDNegotiatedTransferSpeed", CIM_UINT32, PLAIN, [](const DeviceContext& d) { return raw(linkRateMbps(d.device->getNegotiatedLinkRate())); }},
    {"DDTierRCcapable", CIM_BOOLEAN, PLAIN, F<&HardDriveData::fastTierCapable>},
    {"DDTierRCassigned", CIM_BOOLEAN, PLAIN, F<&HardDriveData::fastTierAssigned>},
    {"DDPowerState", CIM_UINT32, PLAIN, F<&HardDriveData::powerState>},
    {"DDPowerStateSupported", CIM_UINT32, PLAIN, F<&HardDriveData::powerStatesSupported>},
    {"DDNCQStatus", CIM_BOOLEAN, PLAIN, F<&HardDriveData::ncqEnabled>},
    {"DDAtaSecuritySupport", CIM_BOOLEAN, PLAIN, F<&HardDriveData::ataSecuritySupported>},
    {"DDWWN", CIM_STRING, PLAIN, textOrUnknown<&PhysicalDeviceData::wwn>},
    {"DDEnclosureID", CIM_STRING, PLAIN, [](const DeviceContext& d) { return numberOrUnknown(d.drive->getEnclosureIndex()); }},
    {"DDSlotNo", CIM_STRING, PLAIN, [](const DeviceContext& d) { return numberOrUnknown(d.drive->getSlot()); }},
    {"isSesElement", CIM_BOOLEAN, PLAIN, [](const DeviceContext& d) { return raw(!d.enclosureTag.empty()); }},
    {"DDParityErrors", CIM_UINT32, PLAIN, F<&HardDriveData::parityErrors>},
    {"DDHardwareErrors", CIM_UINT32, PLAIN, F<&HardDriveData::hardwareErrors>},
    {"DDAbortedCommands", CIM_UINT32, PLAIN, F<&HardDriveData::abortedCommands>},
    {"DDLinkfailures", CIM_UINT32, PLAIN, F<&HardDriveData::linkFailures>},
    {"DDMediumErrors", CIM_UINT32, PLAIN, F<&HardDriveData::mediumErrors>},
    {"DDLocationIndicator", CIM_BOOLEAN, PLAIN, F<&HardDriveData::locateActive>},
    {"DDEnclosureTagID", CIM_STRING, PLAIN, [](const DeviceContext& d) { return orUnknown(d.enclosureTag); }},
};

const Row kOtherDetails[] = {
    {"DDNegotiatedTransferSpeed", CIM_UINT32, PLAIN, [](const DeviceContext& d) { return raw(linkRateMbps(d.device->getNegotiatedLinkRate())); }},
    {"DDWWN", CIM_STRING, PLAIN, textOrUnknown<&PhysicalDeviceData::wwn>},
};

}  // namespace

void insertStorageDevInfoDetails(const DeviceContext& device, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kIdentity, device);
    instance.addRows(kDriveDetails, device);
}

void insertOtherDeviceInfo(const DeviceContext& device, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kIdentity, device);
    instance.addRows(kOtherDetails, device);
}

}  // namespace vex::cim::fwf::fsamap

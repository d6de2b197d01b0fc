#include "ClassKeys.h"

#include <map>
#include <stdexcept>

namespace vex::datapath {

namespace {

std::set<std::string> deviceKeys(const std::string& prefix) {
    return {prefix + "SystemCreationClassName", prefix + "SystemName", prefix + "CreationClassName",
            prefix + "DeviceID"};
}

const std::set<std::string> kInstanceID = {"InstanceID"};
const std::set<std::string> kTagged = {"CreationClassName", "Tag"};

const std::map<std::string, std::set<std::string>>& classKeys() {
    static const std::map<std::string, std::set<std::string>> keys = {
        {"VEX_StorageVolume", deviceKeys("")},
        {"VEX_StorageVolumeView", deviceKeys("SV")},
        {"VEX_ConcreteStoragePool", kInstanceID},
        {"VEX_ConcreteStoragePoolView", {"SPInstanceID"}},
        {"VEX_SourceStoragePoolView", {"SPInstanceID"}},
        {"VEX_PrimordialStorageExtent", deviceKeys("")},
        {"VEX_DiskDrive", deviceKeys("")},
        {"VEX_DiskDriveView", deviceKeys("DD")},
        {"VEX_ControllerComputerSystem", {"CreationClassName", "Name"}},
        {"VEX_ControllerView", {"CSCreationClassName", "CSName"}},
        {"VEX_Card", kTagged},
        {"VEX_Product", {"Name", "IdentifyingNumber", "Vendor", "Version"}},
        {"VEX_PortController", deviceKeys("")},
        {"VEX_SCSIProtocolController", deviceKeys("")},
        {"VEX_AlarmDevice", deviceKeys("")},
        {"VEX_Battery", deviceKeys("")},
        {"VEX_SASInitiatorPort", deviceKeys("")},
        {"VEX_InitiatorSASPhy", deviceKeys("")},
        {"VEX_DATargetPort", deviceKeys("")},
        {"VEX_EnclosureChassis", kTagged},
        {"VEX_SESElement", deviceKeys("")},
        {"VEX_ConcreteJob", kInstanceID},
        {"VEX_PrimordialFixedStorageSettings", kInstanceID},
        {"VEX_PrimordialGeneratedStorageSettings", kInstanceID},
        {"VEX_ConcreteGeneratedStorageSettings", kInstanceID},
    };
    return keys;
}

}  // namespace

std::set<std::string> keysOfClass(const std::string& className) {
    const auto found = classKeys().find(className);
    if (found == classKeys().end()) {
        throw std::out_of_range("no keys listed for " + className);
    }
    return found->second;
}

}  // namespace vex::datapath

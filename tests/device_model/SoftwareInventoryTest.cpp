// Software inventory: each controller's driver, firmware and BIOS, and each
// drive's firmware, are identities with the versions the controllers
// report, linked to the element they run on.
#include <storlib/HardDrive.h>

#include <cstdio>

#include "DeviceModelFixture.h"

namespace vex::devicemodel {
namespace {

class SoftwareInventoryTest : public DeviceModelTest {
protected:
    void SetUp() override { startOn(datapath::shippedSystem("demo.json")); }
};

struct Kind {
    const char* className;
    const char* association;
    const char* suffix;
    const std::string& (storlib::Adapter::*version)() const;
};

const Kind kKinds[] = {
    {"VEX_DriverSoftwareIdentity", "VEX_DriverElementSoftwareIdentity", "_Driver",
     &storlib::Adapter::getDeviceDriverVersion},
    {"VEX_FirmwareSoftwareIdentity", "VEX_FirmwareElementSoftwareIdentity", "_Firmware",
     &storlib::Adapter::getFirmwareVersion},
    {"VEX_BiosSoftwareIdentity", "VEX_BiosElementSoftwareIdentity", "_BIOS", &storlib::Adapter::getBiosVersion},
};

TEST_F(SoftwareInventoryTest, EachControllerRunsItsOwnDriverFirmwareAndBios) {
    const auto config = system().snapshot();
    const std::vector<ObjectPath> controllers = names("VEX_ControllerComputerSystem");
    ASSERT_EQ(controllers.size(), config->getAdapterCount());
    for (const Kind& kind : kKinds) {
        ASSERT_EQ(enumerate(kind.className).size(), config->getAdapterCount()) << kind.className;
        for (std::size_t i = 0; i < config->getAdapterCount(); ++i) {
            const std::string id = std::to_string(i) + kind.suffix;
            const Instance identity = find(kind.className, "InstanceID", id);
            EXPECT_EQ(text(identity.properties, "VersionString"), (config->getAdapter(i)->*kind.version)());
            EXPECT_EQ(text(identity.properties, "Manufacturer"), "TKZ-Lorvan");
            // From the controller to its identity and back.
            const ObjectPath controller = find("VEX_ControllerComputerSystem", "Name",
                                               "vexController_" + std::to_string(i)).path;
            const std::vector<ObjectPath> software = linked(controller, kind.association);
            ASSERT_EQ(software.size(), 1u) << id;
            EXPECT_EQ(text(software.front().keys, "InstanceID"), id);
            const std::vector<ObjectPath> runsOn = linked(identity.path, kind.association);
            ASSERT_EQ(runsOn.size(), 1u) << id;
            EXPECT_EQ(text(runsOn.front().keys, "Name"), "vexController_" + std::to_string(i));
        }
    }
    const cmpihost::Response refs = cimom().references(controllers.front(), "VEX_FirmwareElementSoftwareIdentity", {});
    ASSERT_EQ(refs.instances.size(), 1u);
    EXPECT_EQ(refs.instances.front().property("ElementSoftwareStatus")->toString(), "uint16[]:{2,6}");
}

// The library's drive of a "controller_channel_device" identifier.
const storlib::HardDrive* driveOf(const storlib::SystemConfig& config, const std::string& deviceId) {
    unsigned c = 0, ch = 0, dev = 0;
    if (std::sscanf(deviceId.c_str(), "%u_%u_%u", &c, &ch, &dev) != 3) {
        return nullptr;
    }
    const storlib::RaidObject* object = config.getObject(storlib::Addr(c, ch, dev));
    return object != nullptr ? object->as<storlib::HardDrive>() : nullptr;
}

// A drive that reports no firmware revision has no firmware identity.
TEST_F(SoftwareInventoryTest, EachDriveRunsItsOwnFirmware) {
    const auto config = system().snapshot();
    std::size_t withFirmware = 0;
    for (const Instance& drive : enumerate("VEX_DiskDrive")) {
        const storlib::HardDrive* known = driveOf(*config, text(drive.path.keys, "DeviceID"));
        if (known == nullptr) {
            continue;  // an enclosure services device, not a drive
        }
        if (known->getFirmwareRevision().empty()) {
            EXPECT_TRUE(linked(drive.path, "VEX_DiskDriveElementSoftwareIdentity").empty());
            continue;
        }
        ++withFirmware;
        const std::vector<ObjectPath> firmware = linked(drive.path, "VEX_DiskDriveElementSoftwareIdentity");
        ASSERT_EQ(firmware.size(), 1u) << drive.path.toString();
        const std::string id = text(firmware.front().keys, "InstanceID");
        EXPECT_EQ(id, "DiskFirmware_" + text(drive.path.keys, "DeviceID"));
        const Instance identity = find("VEX_DiskDriveSoftwareIdentity", "InstanceID", id);
        EXPECT_EQ(text(identity.properties, "VersionString"), known->getFirmwareRevision()) << id;
        const std::vector<ObjectPath> back = linked(identity.path, "VEX_DiskDriveElementSoftwareIdentity");
        ASSERT_EQ(back.size(), 1u);
        EXPECT_EQ(text(back.front().keys, "DeviceID"), text(drive.path.keys, "DeviceID"));
    }
    EXPECT_GT(withFirmware, 0u);
    EXPECT_EQ(enumerate("VEX_DiskDriveSoftwareIdentity").size(), withFirmware);
}

}  // namespace
}  // namespace vex::devicemodel

// SAS/SATA initiator and target ports, and the drives' own ports: every
// port is implemented by exactly one protocol endpoint named after it, the
// endpoints of a controller are hosted by it, and a drive's endpoints give
// access to that drive.
#include "DeviceModelFixture.h"

namespace vex::devicemodel {
namespace {

class PortsAndEndpointsTest : public DeviceModelTest {
protected:
    void SetUp() override { startOn(datapath::shippedSystem("demo.json")); }
};

TEST_F(PortsAndEndpointsTest, EachDrivePortHasOneEndpointThatReachesItsDrive) {
    const struct {
        const char* port;
        const char* implementation;
        const char* endpoint;
        const char* available;
    } kinds[] = {{"VEX_DiskDriveSASPort", "VEX_SCSIDeviceSAPImplementation", "VEX_DiskDriveSCSIProtocolEndpoint",
                  "VEX_SASSAPAvailableForElement"},
                 {"VEX_DiskDriveATAPort", "VEX_SATADeviceSAPImplementation", "VEX_DiskDriveATAProtocolEndpoint",
                  "VEX_SATASAPAvailableForElement"}};
    for (const auto& kind : kinds) {
        const std::vector<ObjectPath> ports = names(kind.port);
        ASSERT_FALSE(ports.empty()) << kind.port;  // the demo has SAS and SATA drives
        EXPECT_EQ(names(kind.endpoint).size(), ports.size());
        for (const ObjectPath& port : ports) {
            const std::vector<ObjectPath> endpoints = linked(port, kind.implementation);
            ASSERT_EQ(endpoints.size(), 1u) << port.toString();
            EXPECT_EQ(text(endpoints.front().keys, "Name"), text(port.keys, "DeviceID"));
            EXPECT_EQ(linked(endpoints.front(), kind.implementation).size(), 1u);
            const std::vector<ObjectPath> drives = linked(endpoints.front(), kind.available);
            ASSERT_EQ(drives.size(), 1u);
            const std::string drive = text(drives.front().keys, "DeviceID");
            EXPECT_EQ(text(port.keys, "DeviceID").compare(0, drive.size() + 1, drive + "_"), 0);
            EXPECT_EQ(linked(drives.front(), kind.available).size(), 1u);
        }
    }
}

TEST_F(PortsAndEndpointsTest, ControllersHostTheirInitiatorAndTargetEndpoints) {
    for (const ObjectPath& controller : names("VEX_ControllerComputerSystem")) {
        const std::string name = text(controller.keys, "Name");
        const std::vector<ObjectPath> connectors = linked(controller, "VEX_SASInitiatorPortSystemDevice");
        const std::vector<ObjectPath> scsi = linked(controller, "VEX_InitiatorSCSIProtocolHostedAccessPoint");
        ASSERT_EQ(scsi.size(), connectors.size()) << name;
        EXPECT_EQ(linked(controller, "VEX_InitiatorATAProtocolHostedAccessPoint").size(), connectors.size());
        for (const ObjectPath& connector : connectors) {
            const std::vector<ObjectPath> endpoint = linked(connector, "VEX_InitiatorSCSIDeviceSAPImplementation");
            ASSERT_EQ(endpoint.size(), 1u);
            EXPECT_EQ(text(endpoint.front().keys, "SystemName"), name);
            // The ATA initiator runs over the SCSI one of the same connector.
            const std::vector<ObjectPath> ata = linked(endpoint.front(), "VEX_InitiatorATASCSIBindsTo");
            ASSERT_EQ(ata.size(), 1u);
            EXPECT_EQ(text(ata.front().keys, "Name"), text(endpoint.front().keys, "Name"));
        }
        // The host side: one target endpoint, behind the target port, for the protocol controller.
        const std::vector<ObjectPath> target = linked(controller, "VEX_TargetSCSIProtocolHostedAccessPoint");
        ASSERT_EQ(target.size(), 1u) << name;
        EXPECT_EQ(linked(target.front(), "VEX_TargetSCSIDeviceSAPImplementation").size(), 1u);
        const std::vector<ObjectPath> spc = linked(target.front(), "VEX_SCSISAPAvailableForElement");
        ASSERT_EQ(spc.size(), 1u);
        EXPECT_EQ(text(spc.front().keys, "SystemName"), name);
    }
}

}  // namespace
}  // namespace vex::devicemodel

// Storage enclosure: the fans, power supplies, temperature sensors and drive
// bays of an enclosure, each realised by its chassis and seen by the
// controller; their health is the enclosure's word on them, and a bay holds
// the package of the drive in it until the drive is pulled.
#include <storlib/Simulator.h>

#include "DeviceModelFixture.h"

namespace vex::devicemodel {
namespace {

constexpr unsigned short kOK = 2, kDegraded = 3, kError = 6;
constexpr long long kHealthOK = 5, kHealthDegraded = 10, kHealthCritical = 25;

// The demo's one enclosure, on controller 0.
const storlib::Addr kEnclosure = storlib::Addr::device(0, 0, 32);

class EnclosureTest : public DeviceModelTest {
protected:
    void SetUp() override { startOn(datapath::shippedSystem("demo.json")); }

    // Injects a fault and lets a fresh provider life read the changed controller.
    void inject(const storlib::Ret& done) {
        ASSERT_TRUE(done) << done.getReason();
        restart();
    }

    ObjectPath chassis() {
        const std::vector<ObjectPath> all = names("VEX_EnclosureChassis");
        EXPECT_EQ(all.size(), 1u);
        return all.empty() ? ObjectPath() : all.front();
    }

    // The element of class whose ElementName is name.
    Instance element(const char* className, const std::string& name) { return find(className, "ElementName", name); }

    static void expectHealth(const Instance& element, unsigned short status, long long health) {
        EXPECT_EQ(number(element, "OperationalStatus"), status) << element.path.toString();
        EXPECT_EQ(number(element, "HealthState"), health) << element.path.toString();
    }
};

TEST_F(EnclosureTest, TheChassisRealisesItsElementsAndHoldsItsBays) {
    const ObjectPath enclosure = chassis();
    const struct {
        const char* className;
        const char* realizes;
        const char* systemDevice;
        std::size_t count;
    } kinds[] = {{"VEX_EnclosureFan", "VEX_EnclosureFanRealizes", "VEX_EnclosureFanSystemDevice", 3},
                 {"VEX_EnclosurePowerSupply", "VEX_EnclosurePowerSupplyRealizes",
                  "VEX_EnclosurePowerSupplySystemDevice", 2},
                 {"VEX_EnclosureSensor", "VEX_EnclosureSensorRealizes", "VEX_EnclosureSensorSystemDevice", 2}};
    const ObjectPath controller = find("VEX_ControllerComputerSystem", "Name", "vexController_0").path;
    for (const auto& kind : kinds) {
        const std::vector<Instance> elements = enumerate(kind.className);
        ASSERT_EQ(elements.size(), kind.count) << kind.className;
        EXPECT_EQ(linked(enclosure, kind.realizes).size(), kind.count) << kind.realizes;
        EXPECT_EQ(linked(controller, kind.systemDevice).size(), kind.count) << kind.systemDevice;
        for (const Instance& e : elements) {
            expectHealth(e, kOK, kHealthOK);
            ASSERT_EQ(linked(e.path, kind.realizes).size(), 1u);
            const std::vector<ObjectPath> seenBy = linked(e.path, kind.systemDevice);
            ASSERT_EQ(seenBy.size(), 1u);
            EXPECT_EQ(text(seenBy.front().keys, "Name"), "vexController_0");
        }
    }
    // Twelve bays, each holding the package of the drive the library places there.
    EXPECT_EQ(linked(enclosure, "VEX_EnclosureConnectorOnPackage").size(), 12u);
    const Instance bay = find("VEX_EnclosureDiskDriveSlot", "ElementName", "Slot 4");
    const std::vector<ObjectPath> held = linked(bay.path, "VEX_EnclosurePackageInConnector");
    ASSERT_EQ(held.size(), 1u);
    EXPECT_EQ(text(held.front().keys, "Tag"), "DiskDrivePhysicalPackage_0_0_4");
    const std::vector<ObjectPath> bays = linked(held.front(), "VEX_EnclosurePackageInConnector");
    ASSERT_EQ(bays.size(), 1u);
    EXPECT_TRUE(bays.front() == bay.path) << bays.front().toString();
    const cmpihost::Response contained = cimom().references(held.front(), "VEX_Container", {});
    ASSERT_EQ(contained.instances.size(), 1u);
    EXPECT_EQ(text(contained.instances.front().properties, "LocationWithinContainer"), "Bay 4");
}

TEST_F(EnclosureTest, FailuresShowInTheHealthOfTheirElement) {
    storlib::Simulator sim(system().library());
    ASSERT_TRUE(sim.setFanFailed(kEnclosure, 1, true));
    ASSERT_TRUE(sim.setPowerSupplyFailed(kEnclosure, 0, true));
    ASSERT_TRUE(sim.setTemperature(kEnclosure, 0, 50));  // over the warning threshold (45)
    inject(sim.setTemperature(kEnclosure, 1, 60));        // over the critical one (55)
    expectHealth(element("VEX_EnclosureFan", "Fan 1"), kError, kHealthCritical);
    expectHealth(element("VEX_EnclosureFan", "Fan 0"), kOK, kHealthOK);
    expectHealth(element("VEX_EnclosurePowerSupply", "Power supply 0"), kError, kHealthCritical);
    expectHealth(element("VEX_EnclosurePowerSupply", "Power supply 1"), kOK, kHealthOK);
    const Instance warm = element("VEX_EnclosureSensor", "Temperature 0");
    expectHealth(warm, kDegraded, kHealthDegraded);
    EXPECT_EQ(text(warm.properties, "CurrentState"), "Upper Non-Critical");
    EXPECT_EQ(warm.property("CurrentReading")->asSigned(), 50);
    const Instance hot = element("VEX_EnclosureSensor", "Temperature 1");
    EXPECT_EQ(number(hot, "HealthState"), kHealthCritical);
    EXPECT_EQ(text(hot.properties, "CurrentState"), "Upper Critical");
}

TEST_F(EnclosureTest, APulledDriveLeavesItsBayEmpty) {
    storlib::Simulator sim(system().library());
    inject(sim.pullDrive(storlib::Addr::device(0, 0, 2)));
    const Instance bay = find("VEX_EnclosureDiskDriveSlot", "ElementName", "Slot 2");
    EXPECT_FALSE(bay.property("Occupied")->asBool());
    EXPECT_TRUE(linked(bay.path, "VEX_EnclosurePackageInConnector").empty());
    EXPECT_EQ(linked(chassis(), "VEX_Container").size(), 11u);
    EXPECT_EQ(linked(find("VEX_EnclosureDiskDriveSlot", "ElementName", "Slot 3").path,
                     "VEX_EnclosurePackageInConnector").size(), 1u);
}

TEST_F(EnclosureTest, ASystemWithoutEnclosuresHasNoEnclosureElements) {
    startOn(datapath::shippedSystem("minimal.json"));
    for (const char* className : {"VEX_EnclosureFan", "VEX_EnclosurePowerSupply", "VEX_EnclosureSensor",
                                  "VEX_EnclosureDiskDriveSlot", "VEX_EnclosureFanRealizes", "VEX_Container"}) {
        EXPECT_TRUE(names(className).empty()) << className;
    }
    // Its drives still have packages, which sit in no enclosure.
    for (const Instance& package : enumerate("VEX_DiskDrivePhysicalPackage")) {
        EXPECT_EQ(package.property("ChassisTag"), nullptr);
    }
    EXPECT_EQ(enumerate("VEX_DiskDrivePhysicalPackage").size(), 2u);
}

}  // namespace
}  // namespace vex::devicemodel

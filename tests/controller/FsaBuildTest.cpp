// Building the cache from a simulated system: what each type holds, the
// identifiers, the property names and CIM types, and controllers that are
// not usable or missing.
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <set>
#include <thread>

#include "FsaTestSupport.h"
#include "framework/LogCapture.h"

namespace vex::cim::fwf::test {

namespace {

// What a system description lists, counted from the file itself.
struct Described {
    size_t controllers = 0, drives = 0, enclosures = 0, sesElements = 0, logicalDrives = 0, tasks = 0;
};

Described describe(const std::string& path) {
    const nlohmann::json system = nlohmann::json::parse(std::ifstream(path));
    Described d;
    for (const auto& c : system.at("controllers")) {
        ++d.controllers;
        d.drives += c.value("drives", nlohmann::json::array()).size();
        d.logicalDrives += c.value("logicalDrives", nlohmann::json::array()).size();
        d.tasks += c.value("tasks", nlohmann::json::array()).size();
        for (const auto& e : c.value("enclosures", nlohmann::json::array())) {
            ++d.enclosures;
            d.sesElements += e.value("fans", nlohmann::json::array()).size() +
                             e.value("powerSupplies", nlohmann::json::array()).size() +
                             e.value("temperatureSensors", nlohmann::json::array()).size() +
                             e.value("numSlots", 0u);
        }
    }
    return d;
}

class FsaBuildTest : public FsaTest {};

std::vector<std::string> strings(const CIMInstance& instance, const std::string& name) {
    return property(instance, name).getStringValue().getValues();
}

}  // namespace

TEST_F(FsaBuildTest, EveryTypeHoldsTheObjectsTheSystemDescribes) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const Described d = describe(shippedSystem("demo.json"));
    ASSERT_GT(d.sesElements, 0u);
    ASSERT_GT(d.tasks, 0u);
    EXPECT_EQ(fsa->controllerCount(), d.controllers);
    EXPECT_EQ(served(VEX_OBJ_CONTROLLER).size(), d.controllers);
    // Enclosure processors are physical devices too.
    EXPECT_EQ(served(VEX_OBJ_PHYSICAL_DRIVE).size(), d.drives + d.enclosures);
    EXPECT_EQ(served(VEX_OBJ_STORAGE_VOLUME).size(), d.logicalDrives);
    EXPECT_EQ(served(VEX_OBJ_CONCRETE_POOL).size(), d.logicalDrives);
    EXPECT_EQ(readCode(VEX_OBJ_SSP_POOL), VEX_CM_DEVTYPE_NOT_EXIST);
    EXPECT_EQ(served(VEX_OBJ_ENCLOSURE).size(), d.enclosures);
    EXPECT_EQ(served(VEX_OBJ_SES_ELEMENT).size(), d.sesElements);
    EXPECT_EQ(served(VEX_OBJ_JOB).size(), d.tasks);
    EXPECT_EQ(served(VEX_OBJ_VOLUME_SETTING).size(), d.logicalDrives);
    // No two objects collided on their keys.
    for (const LoggedLine& line : loggedLines()) {
        EXPECT_EQ(line.text.find("ALREADY_EXIST"), std::string::npos) << line.text;
    }
}

TEST_F(FsaBuildTest, IdentifiersFollowTheirFormats) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const auto controllers = served(VEX_OBJ_CONTROLLER);
    const CIMInstance& c0 = withValue(controllers, "CSName", "vexController_0");
    withValue(controllers, "CSName", "vexController_1");
    EXPECT_EQ(text(c0, "CSElementName"), "Controller_0");
    EXPECT_EQ(text(c0, "CDTag"), "vex_0");
    EXPECT_EQ(text(c0, "BDeviceID"), "0_0");
    EXPECT_EQ(strings(c0, "SIInstanceID"), (std::vector<std::string>{"0_Driver", "0_Firmware", "0_BIOS"}));
    EXPECT_EQ(strings(c0, "SPDeviceID").at(1), "0_CN1_1");
    EXPECT_EQ(strings(c0, "IPDeviceID").at(2), "0_" + text(c0, "CSControllerWWN") + "_2");

    const CIMInstance drive = withValue(served(VEX_OBJ_PHYSICAL_DRIVE), "DDDeviceID", "0_0_3");
    EXPECT_EQ(text(drive, "SEDeviceID"), "0_0_3");
    EXPECT_EQ(text(drive, "PPTag"), "DiskDrivePhysicalPackage_0_0_3");
    EXPECT_EQ(strings(drive, "LPDeviceID"), std::vector<std::string>{"0_0_3_0"});
    EXPECT_EQ(text(drive, "DDSystemName"), "vexController_0");
    EXPECT_EQ(text(drive, "DDSystemCreationClassName"), "VEX_ControllerComputerSystem");

    const CIMInstance pool = withValue(served(VEX_OBJ_CONCRETE_POOL), "SPInstanceID", "1_0");
    unsigned serial = 0;
    char rest = 0;
    EXPECT_EQ(std::sscanf(text(pool, "SPSerialNumber").c_str(), "%8X%c", &serial, &rest), 1);
    EXPECT_EQ(text(pool, "SPSerialNumber").size(), 8u);
    int month = 0, day = 0, year = 0;
    EXPECT_EQ(std::sscanf(text(pool, "SPDateCreated").c_str(), "%d/%d/%d", &month, &day, &year), 3);
    EXPECT_GE(year, 1970);
    const CIMInstance volume = withValue(served(VEX_OBJ_STORAGE_VOLUME), "SPInstanceID", "1_0");
    EXPECT_EQ(text(volume, "SVSystemName"), "vexController_1");

    // Elements name their enclosure by the chassis tag "%d_%llu".
    const CIMInstance chassis = served(VEX_OBJ_ENCLOSURE).at(0);
    for (const CIMInstance& element : served(VEX_OBJ_SES_ELEMENT)) {
        int controller = -1, type = -1, index = -1;
        unsigned long long enclosure = 0;
        ASSERT_EQ(std::sscanf(text(element, "InstanceID").c_str(), "%d_%d_%llu_%d", &controller, &type, &enclosure,
                              &index), 4);
        char tag[64];
        std::snprintf(tag, sizeof tag, "%d_%llu", controller, enclosure);
        EXPECT_EQ(text(element, "SystemName"), tag);
        EXPECT_EQ(text(chassis, "Tag"), tag);
    }
}

TEST_F(FsaBuildTest, InstancesCarryTheControllerData) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const auto controllers = served(VEX_OBJ_CONTROLLER);
    const CIMInstance& c0 = withValue(controllers, "CSName", "vexController_0");
    const CIMInstance& c1 = withValue(controllers, "CSName", "vexController_1");
    EXPECT_EQ(text(c0, "CDSerialNumber"), "VX4A1F0C");
    EXPECT_EQ(text(c0, "PRDIdentifyingNumber"), "VX4A1F0C");
    EXPECT_EQ(text(c0, "PRDName"), "VEX-8160i");
    EXPECT_EQ(property(c0, "CSNoOfReadyDrives").getUint16Value().getValues(), std::vector<unsigned short>{12});
    // A plain battery has no super-capacitor group; a super-capacitor has it.
    EXPECT_EQ(c0.getPropertyByName("BsuperCapBUHealth"), nullptr);
    EXPECT_EQ(property(c1, "BsuperCapBUHealth").getUint32Value().getValues(), std::vector<unsigned>{100});
    // The phys and the connectors are parallel arrays, one element each.
    for (const char* name : {"IPSystemName", "IPDeviceID", "IPAttachedSASAddress", "IPNegotiatedPhysicalLinkRate"}) {
        EXPECT_EQ(property(c0, name).getStringValue().size() + property(c0, name).getUint8Value().size(), 8u) << name;
    }
    EXPECT_EQ(property(c0, "SPConnectorID").getUint32Value().getValues(), (std::vector<unsigned>{0, 1}));
    EXPECT_EQ(strings(c0, "SPPhyID").at(1), "4,5,6,7");
    EXPECT_EQ(strings(c0, "CSfeatPropNames").size(), strings(c0, "CSfeatPropValues").size());
    EXPECT_FALSE(strings(c0, "CSraid6DriveCounts").empty());

    const auto drives = served(VEX_OBJ_PHYSICAL_DRIVE);
    EXPECT_EQ(property(withValue(drives, "DDDeviceID", "0_0_7"), "DDMediumErrors").getUint32Value().getValues(),
              std::vector<unsigned>{3});
    const CIMInstance& sata = withValue(drives, "DDDeviceID", "1_0_0");
    EXPECT_EQ(strings(sata, "LPCreationClassName"), std::vector<std::string>{"VEX_DiskDriveATAPort"});
    EXPECT_EQ(text(withValue(drives, "DDDeviceID", "0_0_3"), "DDEnclosureTagID"),
              text(served(VEX_OBJ_ENCLOSURE).at(0), "Tag"));
    EXPECT_EQ(text(sata, "DDEnclosureTagID"), "unknown");

    const auto pools = served(VEX_OBJ_CONCRETE_POOL);
    const CIMInstance& mirror = withValue(pools, "SPElementName", "System");
    EXPECT_EQ(property(mirror, "SCDataRedundancyMax").getUint16Value().getValues(), std::vector<unsigned short>{2});
    EXPECT_EQ(property(withValue(pools, "SPElementName", "Archive"), "SCPackageRedundancyMax")
                  .getUint16Value().getValues(),
              std::vector<unsigned short>{2});
    EXPECT_TRUE(property(withValue(served(VEX_OBJ_STORAGE_VOLUME), "SVDeviceID", "0_0"), "SVIsBootDisk")
                    .getBoolValue().getValues().at(0));

    const CIMInstance job = served(VEX_OBJ_JOB).at(0);
    EXPECT_EQ(text(job, "DeviceTypeAndID"), "LogicalDrive:0_2");
    EXPECT_EQ(property(job, "PercentComplete").getUint16Value().getValues(), std::vector<unsigned short>{35});
}

// One property of each CIM type and each kind of source value.
TEST_F(FsaBuildTest, PropertiesHaveTheirNamesAndCimTypes) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    struct Expected {
        _eVEXObjectType type;
        const char* name;
        Primitive_DataType cimType;
    };
    const Expected expected[] = {
        {VEX_OBJ_CONTROLLER, "CSControllerTemparature", CIM_SINT32},
        {VEX_OBJ_CONTROLLER, "CSMaxRAID6MajCycle", CIM_UINT32},
        {VEX_OBJ_CONTROLLER, "CSTierRCReadCachePoolSizeSupported", CIM_UINT64},
        {VEX_OBJ_CONTROLLER, "CSfeatPropValues", CIM_STRING_ARRAY},
        {VEX_OBJ_CONTROLLER, "IPHardwareMaximumPhysicalLinkRate", CIM_UINT8_ARRAY},
        {VEX_OBJ_CONTROLLER, "HostBusLinkWidth", CIM_UINT32},
        {VEX_OBJ_PHYSICAL_DRIVE, "SENumberOfBlocks", CIM_UINT64},
        {VEX_OBJ_PHYSICAL_DRIVE, "LPSpeed", CIM_UINT64_ARRAY},
        {VEX_OBJ_PHYSICAL_DRIVE, "isSesElement", CIM_BOOLEAN},
        {VEX_OBJ_CONCRETE_POOL, "SPTotalManagedSpace", CIM_UINT64},
        {VEX_OBJ_CONCRETE_POOL, "SCNoSinglePointOfFailure", CIM_BOOLEAN},
        {VEX_OBJ_SES_ELEMENT, "ElementDesc", CIM_STRING},
        {VEX_OBJ_JOB, "PercentComplete", CIM_UINT16},
        {VEX_OBJ_JOB, "ElapsedTime", CIM_DATETIME},
    };
    for (const Expected& e : expected) {
        const auto list = served(e.type);
        ASSERT_FALSE(list.empty()) << e.name;
        // Of the physical devices, a hard drive (the enclosure processor has fewer properties).
        const CIMInstance& sample = e.type == VEX_OBJ_PHYSICAL_DRIVE ? withValue(list, "DDDeviceID", "0_0_3") : list.at(0);
        EXPECT_EQ(property(sample, e.name).getType(), e.cimType) << e.name;
    }
    // A time span is written as an interval.
    EXPECT_EQ(text(served(VEX_OBJ_JOB).at(0), "ElapsedTime").substr(21), ":000");
}

TEST_F(FsaBuildTest, AControllerThatIsNotUsableShowsOnlyItsEnumerationData) {
    simulatorOn(shippedSystem("demo.json"));
    ASSERT_TRUE(simulator().setControllerStatus(1, 3).ok());
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const auto controllers = served(VEX_OBJ_CONTROLLER);
    ASSERT_EQ(controllers.size(), 2u);
    const std::vector<std::string> names = propertyNames(withValue(controllers, "CSName", "vexController_1"));
    const std::vector<std::string> enumeration = {
        "CSCreationClassName", "CSName", "CSNameFormat", "CSElementName", "CSDedicated", "CSControllerNumber",
        "DASystemCreationClassName", "DASystemName", "DACreationClassName", "DAUsageRestriction", "DAPortType",
        "PRDElementName", "CDTag", "CDElementName", "CDCreationClassName", "CDHostingBoard", "CDPackageType",
        "CDManufacturer"};
    EXPECT_EQ(names, enumeration);
    EXPECT_GT(propertyNames(withValue(controllers, "CSName", "vexController_0")).size(), 150u);
    for (const CIMInstance& drive : served(VEX_OBJ_PHYSICAL_DRIVE)) {
        EXPECT_EQ(text(drive, "DDSystemName"), "vexController_0");
    }
    EXPECT_EQ(served(VEX_OBJ_STORAGE_VOLUME).size(), 4u);
}

TEST_F(FsaBuildTest, NoControllerAnswersNineWithEmptyTypes) {
    ASSERT_EQ(start(shippedSystem("none.json")), unsigned{FSAIF_NO_CONTROLLER});
    EXPECT_TRUE(logged("[AFAIF] No Controllers Found!"));
    EXPECT_EQ(readCode(VEX_OBJ_CONTROLLER), VEX_CM_DEVTYPE_NOT_EXIST);
}

TEST_F(FsaBuildTest, ARefreshAfterTheControllersWentEmptiesTheRebuiltTypes) {
    simulatorOn(shippedSystem("demo.json"));
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    ASSERT_TRUE(simulator().removeController(1).ok());
    ASSERT_TRUE(simulator().removeController(0).ok());
    clearLog();
    ASSERT_EQ(refresh(false), unsigned{FSAIF_NO_CONTROLLER});
    EXPECT_TRUE(logged("[AFAIF] No Controllers Found!"));
    EXPECT_EQ(fsa->controllerCount(), 0u);
    for (_eVEXObjectType type : {VEX_OBJ_CONTROLLER, VEX_OBJ_STORAGE_VOLUME, VEX_OBJ_CONCRETE_POOL,
                                 VEX_OBJ_ENCLOSURE, VEX_OBJ_SES_ELEMENT, VEX_OBJ_JOB}) {
        EXPECT_EQ(readCode(type), VEX_CM_DEVTYPE_NOT_EXIST) << type;
    }
    // The drives' type is left in place, empty.
    EXPECT_EQ(readCode(VEX_OBJ_PHYSICAL_DRIVE), VEX_CM_SUCCESS);
    EXPECT_TRUE(served(VEX_OBJ_PHYSICAL_DRIVE).empty());
}

TEST_F(FsaBuildTest, AMissingLibraryHandleIsThrownAndReleasesTheGuard) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    fsa->terminate();
    EXPECT_THROW(fsa->initialize(false, false, false, false), _FSAIF_Return);
    // The guard is free again for another thread.
    std::thread other([] {
        EXPECT_EQ(TkzMutexLock(VexFSAInterface::getStorlibGuard()), 0);
        TkzMutexUnlock(VexFSAInterface::getStorlibGuard());
    });
    other.join();
}

}  // namespace vex::cim::fwf::test

// Every device association, followed from both of its ends: each instance
// it has is found again from the object at either end, with the roles its
// row names; and malformed or foreign object paths give a proper status,
// never a crash.
#include <algorithm>

#include "DeviceModelFixture.h"
#include "providers/device/DeviceAssociations.h"

namespace vex::devicemodel {
namespace {

using cim::fwf::AssociationRow;

bool contains(const std::vector<ObjectPath>& paths, const ObjectPath& wanted) {
    return std::any_of(paths.begin(), paths.end(), [&](const ObjectPath& p) { return p == wanted; });
}

bool served(cmpihost::Host& cimom, const char* className) {
    cmpihost::Response r = cimom.enumerateInstanceNames({kImplNs, className});
    return r.ok() && !r.paths.empty();
}

class AssociationTableTest : public DeviceModelTest {
protected:
    void SetUp() override { startOn(datapath::shippedSystem("demo.json")); }
};

// On the demo and on a minimal system (no enclosure, no battery): an
// association whose ends both have instances has instances too.
class EveryAssociationTest : public DeviceModelTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override { startOn(datapath::shippedSystem(GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(Systems, EveryAssociationTest, ::testing::Values("demo.json", "minimal.json"));

TEST_P(EveryAssociationTest, IsFoundFromBothOfItsEnds) {
    for (std::size_t i = 0; i < cim::fwf::kDeviceAssociationCount; ++i) {
        const AssociationRow& row = cim::fwf::deviceassoc::kRows[i];
        if (!served(cimom(), row.first) || !served(cimom(), row.second)) {
            continue;  // an end another family serves is not built yet
        }
        const std::vector<Instance> links = enumerate(row.className);
        ASSERT_FALSE(links.empty()) << row.className;
        for (const Instance& link : links) {
            const cmpihost::Value* first = link.property(row.firstRole);
            const cmpihost::Value* second = link.property(row.secondRole);
            ASSERT_TRUE(first != nullptr && second != nullptr) << row.className;
            EXPECT_TRUE(contains(linked(first->asRef(), row.className), second->asRef()))
                << row.className << " from " << first->asRef().toString();
            EXPECT_TRUE(contains(linked(second->asRef(), row.className), first->asRef()))
                << row.className << " from " << second->asRef().toString();
            const cmpihost::Response refs = cimom().referenceNames(second->asRef(), row.className, row.secondRole);
            EXPECT_TRUE(contains(refs.paths, link.path)) << row.className;
        }
    }
}

TEST_F(AssociationTableTest, MalformedOrForeignPathsFindNothing) {
    struct Case {
        const char* className;
        cmpihost::NamedValues keys;
    };
    const Case cases[] = {
        {"VEX_EnclosureFan", {{"DeviceID", cmpihost::Value::string("0_3_1_0")}}},
        {"VEX_DriverSoftwareIdentity", {{"InstanceID", cmpihost::Value::uint32(0)}}},
        {"VEX_DriverSoftwareIdentity", {{"InstanceID", cmpihost::Value::string("0_Driver")},
                                        {"Extra", cmpihost::Value::string("x")}}},
        {"VEX_DiskDrivePhysicalPackage", {}},
        {"VEX_DiskDriveSCSIProtocolEndpoint", {{"Name", cmpihost::Value::string("9_9_9_9")}}},
    };
    for (const Case& c : cases) {
        const ObjectPath path(kImplNs, c.className, c.keys);
        const cmpihost::Response got = cimom().getInstance(path);
        // The adapter answers a get that finds nothing with no instance.
        EXPECT_TRUE(got.ok() || got.status.rc == CMPI_RC_ERR_NOT_FOUND) << path.toString();
        EXPECT_TRUE(got.instances.empty()) << path.toString();
        const cmpihost::Response assoc = cimom().associatorNames(path, {}, {}, {}, {});
        EXPECT_TRUE(assoc.paths.empty()) << path.toString();
    }
    // A well-formed object at neither end of an association.
    const ObjectPath drive = names("VEX_DiskDrive").front();
    const cmpihost::Response r = cimom().associatorNames(drive, "VEX_EnclosureFanRealizes", {}, {}, {});
    EXPECT_TRUE(r.ok()) << r.status.toString();
    EXPECT_TRUE(r.paths.empty());
}

}  // namespace
}  // namespace vex::devicemodel

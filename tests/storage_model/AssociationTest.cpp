// The storage associations on the demo system: how many instances each
// makes, and that each instance is found again from both of its ends under
// its roles. Then requests from paths a client got wrong.
#include "storage_model/StorageModelFixture.h"

namespace vex::storagemodel {
namespace {

struct Expected {
    const char* className;
    std::size_t count;
    const char* firstRole;
    const char* secondRole;
};

// clang-format off
const Expected kDemo[] = {
    {"VEX_CompositeExtentSystemDevice", 5, "GroupComponent", "PartComponent"},
    {"VEX_ConcreteComponent", 5, "GroupComponent", "PartComponent"},
    {"VEX_ConcretePoolConcreteDependency", 15, "Antecedent", "Dependent"},
    {"VEX_DedicatedHostedCollection", 1, "Antecedent", "Dependent"},
    {"VEX_DedicatedIsSpare", 1, "Antecedent", "Dependent"},
    {"VEX_DedicatedMemberOfCollection", 3, "Collection", "Member"},
    {"VEX_FailOverHostedCollection", 2, "Antecedent", "Dependent"},
    {"VEX_FailOverMemberOfCollection", 2, "Collection", "Member"},
    {"VEX_GlobalIsSpare", 1, "Antecedent", "Dependent"},
    {"VEX_GlobalMemberOfCollection", 9, "Collection", "Member"},   // RAID 1, 5 and 6 chunks, not RAID 0
    {"VEX_GlobalStorageRedundancyCollection", 1, "Antecedent", "Dependent"},
    {"VEX_HostedStoragePoolView", 5, "GroupComponent", "PartComponent"},
    {"VEX_PrimordialToConcreteBasedOn", 17, "Antecedent", "Dependent"},
    {"VEX_PrimordialToRemainingBasedOn", 4, "Antecedent", "Dependent"},
    {"VEX_SASInitiatorPhyConcreteComponent", 16, "GroupComponent", "PartComponent"},
    {"VEX_SCSIProtocolControllerForUnit", 5, "Antecedent", "Dependent"},
    {"VEX_StorageVolumeConcreteDependency", 15, "Antecedent", "Dependent"},
    {"VEX_VolumeToCompositeExtentBasedOn", 5, "Antecedent", "Dependent"},
    {"VEX_VolumeViewSystemDeviceView", 5, "GroupComponent", "PartComponent"},
    {"VEX_VolumeViewSystemDeviceViewView", 5, "GroupComponent", "PartComponent"},
    {"VEX_AssociatedComponentExtent", 15, "GroupComponent", "PartComponent"},
    {"VEX_AssociatedRemainingExtent", 4, "GroupComponent", "PartComponent"},
    {"VEX_ConcreteComponentView", 17, "GroupComponent", "PartComponent"},
    {"VEX_ConcretePoolAllocatedFromPrimordialPool", 5, "Antecedent", "Dependent"},
    {"VEX_ConcretePoolElementCapabilities", 5, "ManagedElement", "Capabilities"},
    {"VEX_ConcretePoolToVolumeAllocatedFromStoragePoolViewView", 5, "Antecedent", "Dependent"},
    {"VEX_ConcreteSettingsAssociatedToCapabilities", 5, "Antecedent", "Dependent"},
    {"VEX_ControllerVolumeSystemDevice", 5, "GroupComponent", "PartComponent"},
    {"VEX_HostedConcreteStoragePool", 5, "GroupComponent", "PartComponent"},
    {"VEX_HostedPrimordialStoragePool", 2, "GroupComponent", "PartComponent"},
    {"VEX_PrimordialAssociatedComponentExtent", 17, "GroupComponent", "PartComponent"},
    {"VEX_PrimordialPoolElementCapabilities", 2, "ManagedElement", "Capabilities"},
    {"VEX_PrimordialPoolToConcretePoolAllocatedFromStoragePoolViewView", 5, "Antecedent", "Dependent"},
    {"VEX_PrimordialSettingsAssociatedToCapabilities", 5, "Antecedent", "Dependent"},
    {"VEX_StorageVolumeAllocatedFromConcretePool", 5, "Antecedent", "Dependent"},
    {"VEX_VolumeElementSettingData", 5, "ManagedElement", "SettingData"},
    // Nothing on the demo system to link: no fast tier, no partitioned pool,
    // no generated settings.
    {"VEX_ConcreteStoragePoolFastTierdBy", 0, "FastTierdBy", "FastTierd"},
    {"VEX_ParentToChildPoolViewView", 0, "Antecedent", "Dependent"},
    {"VEX_ConcreteSettingsGeneratedFromCapabilities", 0, "Antecedent", "Dependent"},
    {"VEX_PrimordialSettingsGeneratedFromCapabilities", 0, "Antecedent", "Dependent"},
};
// clang-format on

bool holds(const std::vector<ObjectPath>& paths, const ObjectPath& wanted) {
    for (const ObjectPath& p : paths) {
        if (p.className == wanted.className && p.keys.size() == wanted.keys.size()) {
            bool same = true;
            for (const cmpihost::NamedValue& k : wanted.keys) {
                const cmpihost::Value* v = p.key(k.name);
                same = same && v != nullptr && v->toString() == k.value.toString();
            }
            if (same) return true;
        }
    }
    return false;
}

class AssociationTest : public StorageModelTest {
protected:
    void SetUp() override { startOn(datapath::shippedSystem("demo.json")); }
};

TEST_F(AssociationTest, EachMemberLinksItsEndsBothWays) {
    for (const Expected& e : kDemo) {
        SCOPED_TRACE(e.className);
        const Response all = cimom().enumerateInstances(ObjectPath(datapath::kImplNs, e.className));
        ASSERT_TRUE(all.ok()) << all.status.toString();
        EXPECT_EQ(all.instances.size(), e.count);
        if (all.instances.empty()) continue;
        const Instance& link = all.instances.back();
        const ObjectPath first = end(link, e.firstRole), second = end(link, e.secondRole);
        ASSERT_FALSE(first.className.empty());
        ASSERT_FALSE(second.className.empty());
        EXPECT_TRUE(holds(associatorNames(first, e.className, e.firstRole), second)) << first.toString();
        EXPECT_TRUE(holds(associatorNames(second, e.className, e.secondRole), first)) << second.toString();
        // The role names the source's end, in any case; the other role finds nothing from it
        // (unless both ends are one class).
        if (first.className != second.className) {
            EXPECT_TRUE(associatorNames(first, e.className, e.secondRole).empty());
        }
        const Response refs = cimom().referenceNames(second, e.className, std::string(e.secondRole));
        ASSERT_TRUE(refs.ok());
        EXPECT_FALSE(refs.paths.empty());
    }
}

TEST_F(AssociationTest, SparesAreInTheirRedundancySets) {
    // 0:9 is the global spare, 0:10 the dedicated spare of "Data" (0_1).
    const std::vector<Instance> global = enumerate("VEX_GlobalIsSpare");
    ASSERT_EQ(global.size(), 1u);
    EXPECT_EQ(text(end(global[0], "Antecedent"), "DeviceID"), "0_0_9_Spare");
    EXPECT_EQ(text(end(global[0], "Dependent"), "InstanceID"), "vexController_0_GlobalSpares");
    const std::vector<Instance> dedicated = enumerate("VEX_DedicatedIsSpare");
    ASSERT_EQ(dedicated.size(), 1u);
    EXPECT_EQ(text(end(dedicated[0], "Antecedent"), "DeviceID"), "0_0_10_Spare");
    EXPECT_EQ(text(end(dedicated[0], "Dependent"), "InstanceID"), "0_1_DedicatedSpares");
    EXPECT_EQ(number(dedicated[0], "SpareStatus"), 2u);
}

TEST_F(AssociationTest, VolumeAllocationConsumesThePool) {
    for (const Instance& a : enumerate("VEX_StorageVolumeAllocatedFromConcretePool")) {
        const Response pool = cimom().getInstance(end(a, "Antecedent"));
        ASSERT_EQ(pool.instances.size(), 1u);
        EXPECT_EQ(number(a, "SpaceConsumed"), number(pool.instances[0], "TotalManagedSpace"));
        EXPECT_EQ(text(end(a, "Antecedent"), "InstanceID"), text(end(a, "Dependent"), "DeviceID"));
    }
}

ObjectPath volume(bool allKeys, const std::string& id) {
    ObjectPath v(datapath::kImplNs, "VEX_StorageVolume");
    v.addKey("CreationClassName", cmpihost::Value::string("VEX_StorageVolume"));
    v.addKey("DeviceID", cmpihost::Value::string(id));
    v.addKey("SystemCreationClassName", cmpihost::Value::string("VEX_ControllerComputerSystem"));
    if (allKeys) v.addKey("SystemName", cmpihost::Value::string("vexController_0"));
    return v;
}

TEST_F(AssociationTest, BadPathsAnswerAStatusNotACrash) {
    const std::string alloc = "VEX_StorageVolumeAllocatedFromConcretePool";
    const Response corrupted = cimom().associators(volume(false, "0_1"), alloc, std::nullopt, std::nullopt, std::nullopt);
    EXPECT_EQ(corrupted.status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
    EXPECT_NE(corrupted.status.message.value_or("").find("Dependent ObjectPath Corrupted"), std::string::npos);
    const Response gone = cimom().associators(volume(true, "0_9"), alloc, std::nullopt, std::nullopt, std::nullopt);
    EXPECT_EQ(gone.status.rc, CMPI_RC_ERR_FAILED);
    // A chunk path with an extra key, with a key of the wrong type, or naming nothing.
    const std::vector<ObjectPath> chunks = cimom().enumerateInstanceNames(
        ObjectPath(datapath::kImplNs, "VEX_ConcreteStorageExtent")).paths;
    ASSERT_FALSE(chunks.empty());
    ObjectPath extra = chunks[0];
    extra.addKey("Color", cmpihost::Value::string("blue"));
    ObjectPath mistyped(datapath::kImplNs, "VEX_ConcreteStorageExtent");
    for (const cmpihost::NamedValue& k : chunks[0].keys) {
        mistyped.addKey(k.name, k.name == "DeviceID" ? cmpihost::Value::uint32(7) : k.value);
    }
    const std::size_t rightLinks = associatorNames(chunks[0], "VEX_AssociatedComponentExtent").size();
    for (const ObjectPath& bad : {extra, mistyped}) {
        const Response r = cimom().getInstance(bad);
        EXPECT_TRUE(r.instances.empty()) << bad.toString();  // names no instance: an empty answer
        const Response links = cimom().associatorNames(bad, "VEX_AssociatedComponentExtent", std::nullopt,
                                                       std::nullopt, std::nullopt);
        EXPECT_TRUE(links.ok()) << links.status.toString();
        EXPECT_LE(links.paths.size(), rightLinks) << bad.toString();  // at most the chunk's own
    }
}

}  // namespace
}  // namespace vex::storagemodel

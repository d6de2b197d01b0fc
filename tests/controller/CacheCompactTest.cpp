// Pooled storage gives back exactly what was stored: every kind of value,
// values that only look alike, odd key lists; and a change reaches only the
// instance and the repository it was made in, though they share values.
#include <cmath>

#include "CacheExactEquality.h"
#include "CacheTestSupport.h"
#include "controller/InstanceBatch.h"

namespace vex::cim::fwf::test {
namespace {

template <typename T>
CIMProperty prop(const std::string& name, std::vector<T> values, Primitive_DataType type,
                 bool isKey = false, bool viewKey = false, bool secondFlag = false) {
    return CIMProperty(name, CIMValue<T>(std::move(values), false, secondFlag), isKey, type, viewKey);
}

CIMInstance addressed(const std::string& className) {
    CIMInstance instance;
    instance.setPath(CIMObjectPath("host-a", "root/tkz/vex/smi_15", className, {}));
    return instance;
}

// Instances whose values differ only where a loose comparison would not see it.
std::vector<CIMInstance> awkwardInstances() {
    std::vector<CIMInstance> list;
    const CIMObjectPath lower("host-a", "root/tkz/vex/smi_15", "vex_storagevolume", {stringKey("DeviceID", "1")});
    const CIMObjectPath upper("HOST-B", "root/tkz/vex/smi_15", "VEX_StorageVolume", {stringKey("DeviceID", "1")});
    for (int i = 0; i < 2; ++i) {
        CIMInstance instance = addressed(i == 0 ? "VEX_DiskDrive" : "VEX_diskdrive");
        instance.addCimKeyBinding(stringKey("DeviceID", "d" + std::to_string(i)));
        instance.addProperty(prop<double>("Real", {i == 0 ? 0.0 : -0.0}, CIM_REAL64));
        instance.addProperty(prop<float>("Reals", {1.5f, NAN}, CIM_REAL32_ARRAY));
        instance.addProperty(prop<CIMObjectPath>("Ref", {i == 0 ? lower : upper}, CIM_REFERENCE));
        instance.addProperty(prop<CIMInstance>("Embedded", {addressed(i == 0 ? "A" : "a")}, CIM_INSTANCE));
        // Carried in another slot than the tag's: the tag's slot is empty.
        instance.addProperty(prop<unsigned int>("Mismatch", {5u + static_cast<unsigned>(i)}, CIM_UINT16));
        instance.addProperty(prop<std::string>("Flagged", {"same"}, CIM_STRING, false, false, i == 1));
        instance.addProperty(prop<std::string>("CSName", {"same"}, CIM_STRING, false, i == 1));
        instance.addProperty(prop<unsigned short>("Codes", {}, CIM_UINT16_ARRAY));
        instance.addProperty(prop<bool>("Flags", {true, false, i == 1}, CIM_BOOLEAN_ARRAY));
        instance.addProperty(prop<std::string>("When", {"20260101000000.000000+530"}, CIM_DATETIME));
        instance.addProperty(prop<long long>("Signed", {-1LL - i}, CIM_SINT64));
        instance.addProperty(prop<unsigned char>("Small", {7}, CIM_UINT8));
        list.push_back(instance);
    }
    // A key added after other properties, and a key not among the properties.
    CIMInstance late = addressed("VEX_DiskDrive");
    late.addProperty(stringProp("State", "OK"));
    late.addCimKeyBinding(stringKey("DeviceID", "late"));
    list.push_back(late);
    CIMInstance bare = addressed("VEX_DiskDrive");
    bare.addCimKeyBinding(stringKey("DeviceID", "bare"));
    bare.removeAllProperties();
    bare.addProperty(stringKey("Serial", "bare"));  // flagged: what tells it apart on add
    list.push_back(bare);
    // A key property changed in the property list only.
    CIMInstance split = addressed("VEX_DiskDrive");
    split.addCimKeyBinding(stringKey("DeviceID", "split"));
    *split.getPropertyByName("DeviceID") = stringKey("DeviceID", "changed");
    list.push_back(split);
    return list;
}

TEST_F(CacheTest, EveryKindOfValueComesBackExactlyThroughEveryWriteAndRead) {
    const std::vector<CIMInstance> stored = awkwardInstances();
    for (const CIMInstance& instance : stored) {
        first->addObjInstance(kDrives, instance);
    }
    std::vector<CIMInstance> swapped = stored;
    first->swapObjectInstance(VEX_OBJ_STORAGE_VOLUME, swapped);
    InstanceBatch batch;
    for (const CIMInstance& instance : stored) {
        batch.add(VEX_OBJ_CONCRETE_POOL, instance);
    }
    batch.storeInto(*first);
    Cache::copyNewCachetoOldCache();

    for (VexCacheManager* repository : {first, second}) {
        for (_eVEXObjectType type : {kDrives, VEX_OBJ_STORAGE_VOLUME, VEX_OBJ_CONCRETE_POOL}) {
            std::vector<CIMInstance> whole;
            ASSERT_EQ(repository->getRepositoryObject(type, "", {}, false, whole), VEX_CM_SUCCESS);
            EXPECT_EQ(exactly(stored), exactly(whole)) << "type " << type;
        }
        // By keys, a view, the view's keys.
        std::vector<CIMInstance> byKeys;
        ASSERT_EQ(repository->getRepositoryObject(kDrives, "", stored[1].getKeyPropertyList(), false, byKeys),
                  VEX_CM_SUCCESS);
        EXPECT_EQ(exactly(std::vector<CIMInstance>{stored[1]}), exactly(byKeys));
        for (bool keysOnly : {false, true}) {
            std::vector<CIMInstance> expected;
            for (const CIMInstance& instance : stored) {
                CIMInstance view;
                if (referenceView(instance, "C", keysOnly, view)) {
                    expected.push_back(view);
                }
            }
            std::vector<CIMInstance> views;
            ASSERT_EQ(repository->getRepositoryObject(kDrives, "C", {}, keysOnly, views), VEX_CM_SUCCESS);
            EXPECT_EQ(exactly(expected), exactly(views)) << "keysOnly " << keysOnly;
        }
    }
}

TEST_F(CacheTest, AChangeReachesOnlyItsInstanceAndItsRepository) {
    // Two drives alike but for their keys: they share every other value.
    std::vector<CIMInstance> drives{drive("a", "OK"), drive("b", "OK")};
    first->swapObjectInstance(kDrives, drives);
    Cache::copyNewCachetoOldCache();  // both repositories share the list
    std::vector<CIMInstance> before;
    first->getRepositoryObject(kDrives, "", {}, false, before);

    EXPECT_EQ(first->modifyObjectInstance(kDrives, {stringKey("DeviceID", "a")}, {stringProp("State", "Failed")}),
              VEX_CM_ENTRY_NOT_EXISTS);  // "b", the last instance, did not match
    EXPECT_EQ(valuesOf(before, "State"), (Ids{"OK", "OK"}));  // a copy handed out earlier
    std::vector<CIMInstance> after;
    first->getRepositoryObject(kDrives, "", {}, false, after);
    EXPECT_EQ(valuesOf(after, "State"), (Ids{"Failed", "OK"}));
    EXPECT_EQ(exactly(before[1]), exactly(after[1]));
    std::vector<CIMInstance> other;
    second->getRepositoryObject(kDrives, "", {}, false, other);
    EXPECT_EQ(exactly(before), exactly(other));
}

}  // namespace
}  // namespace vex::cim::fwf::test

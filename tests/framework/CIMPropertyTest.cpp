#include <gtest/gtest.h>

#include "LogCapture.h"
#include "TestProperties.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::test {
namespace {

// Builds a scalar, an array and an empty array of T and reads each back
// through `get`; every other element type must stay unfilled.
template <typename T, typename Getter>
void expectRoundTrip(Getter get, Primitive_DataType tag, const T& a, const T& b) {
    const CIMProperty scalar("P", CIMValue<T>(a, false, false), false, tag, false);
    EXPECT_EQ((scalar.*get)().getValues(), std::vector<T>{a});

    const CIMProperty array("P", CIMValue<T>(std::vector<T>{a, b, a}, false, false), false,
                            static_cast<Primitive_DataType>(tag + 1), false);
    EXPECT_EQ((array.*get)().getValues(), (std::vector<T>{a, b, a}));

    const CIMProperty empty("P", CIMValue<T>(std::vector<T>{}, false, false), false,
                            static_cast<Primitive_DataType>(tag + 1), false);
    EXPECT_TRUE((empty.*get)().isEmpty());
    EXPECT_EQ(empty.getType(), tag + 1);
}

TEST(CIMPropertySlots, EveryElementTypeReadsBackThroughItsOwnGetter) {
    expectRoundTrip<bool>(&CIMProperty::getBoolValue, CIM_BOOLEAN, true, false);
    expectRoundTrip<signed char>(&CIMProperty::getSint8Value, CIM_SINT8, -5, 7);
    expectRoundTrip<unsigned char>(&CIMProperty::getUint8Value, CIM_UINT8, 200, 1);
    expectRoundTrip<short>(&CIMProperty::getSint16Value, CIM_SINT16, -300, 300);
    expectRoundTrip<unsigned short>(&CIMProperty::getUint16Value, CIM_UINT16, 65535, 2);
    expectRoundTrip<int>(&CIMProperty::getSint32Value, CIM_SINT32, -70000, 70000);
    expectRoundTrip<unsigned int>(&CIMProperty::getUint32Value, CIM_UINT32, 4000000000u, 3);
    expectRoundTrip<long long>(&CIMProperty::getSint64Value, CIM_SINT64, -(1LL << 40), 9);
    expectRoundTrip<unsigned long long>(&CIMProperty::getUint64Value, CIM_UINT64, ~0ULL, 4);
    expectRoundTrip<float>(&CIMProperty::getReal32Value, CIM_REAL32, 1.5f, -2.25f);
    expectRoundTrip<double>(&CIMProperty::getReal64Value, CIM_REAL64, 1e300, -0.5);
    expectRoundTrip<std::string>(&CIMProperty::getStringValue, CIM_STRING,
                                 std::string(40, 'x'), "");
}

TEST(CIMPropertySlots, GettersOfOtherSlotsAreEmptyNotConverted) {
    const CIMProperty port = uint16Prop("PortType", 94);
    EXPECT_EQ(port.getUint16Value().getValues(), std::vector<unsigned short>{94});
    EXPECT_TRUE(port.getUint32Value().isEmpty());
    EXPECT_TRUE(port.getSint16Value().isEmpty());
    EXPECT_TRUE(port.getUint64Value().isEmpty());
    EXPECT_TRUE(port.getStringValue().isEmpty());
    EXPECT_TRUE(port.getBoolValue().isEmpty());
    EXPECT_TRUE(port.getObjectPathValue().isEmpty());
    EXPECT_TRUE(port.getInstanceValue().isEmpty());

    // The tag does not choose the slot: a mislabelled value is still found.
    const CIMProperty odd("X", CIMValue<std::string>("text", false, false), false, CIM_UINT32,
                          false);
    EXPECT_EQ(odd.getStringValue().getValues(), std::vector<std::string>{"text"});
    EXPECT_TRUE(odd.getUint32Value().isEmpty());
}

TEST(CIMPropertySlots, OnlyTheValuesSecondFlagTravelsIntoTheProperty) {
    const CIMProperty both("P", CIMValue<unsigned int>(5u, true, true), true, CIM_UINT32, true);
    const CIMValue<unsigned int> read = both.getUint32Value();
    EXPECT_FALSE(read.getFirstFlag());
    EXPECT_TRUE(read.getSecondFlag());
    EXPECT_TRUE(both.isKey());
    EXPECT_TRUE(both.isViewKey());

    CIMValue<std::string> noElements;
    noElements.setSecondFlag(true);
    const CIMProperty empty("E", noElements, false, CIM_STRING_ARRAY, false);
    EXPECT_TRUE(empty.getStringValue().isEmpty());
    EXPECT_TRUE(empty.getStringValue().getSecondFlag());
}

TEST(CIMPropertySetPropValue, CopiesTheSelectedSlotAndNothingElse) {
    CIMProperty target("Size", CIMValue<unsigned long long>(1ULL, false, true), false, CIM_UINT64,
                       false);
    const CIMProperty source("Other", CIMValue<unsigned long long>(
                                          std::vector<unsigned long long>{7, 8}, false, false),
                             true, CIM_UINT64_ARRAY, false);
    target.setPropValue(CIM_UINT64, source);

    EXPECT_EQ(target.getUint64Value().getValues(), (std::vector<unsigned long long>{7, 8}));
    EXPECT_TRUE(target.getUint64Value().getSecondFlag()) << "the target keeps its flags";
    EXPECT_EQ(target.getName(), "Size");
    EXPECT_EQ(target.getType(), CIM_UINT64);
    EXPECT_FALSE(target.isKey());
}

TEST(CIMPropertySetPropValue, FillsAnotherSlotWhileTheFirstStays) {
    CIMProperty target = uint16Prop("State", 3);
    target.setPropValue(CIM_STRING, stringProp("Text", "Online"));
    target.setPropValue(CIM_REFERENCE, refKey("R", volumePath("h", "0_1")));

    EXPECT_EQ(target.getUint16Value().getValues(), std::vector<unsigned short>{3});
    EXPECT_EQ(target.getStringValue().getValues(), std::vector<std::string>{"Online"});
    ASSERT_EQ(target.getObjectPathValue().size(), 1u);
    EXPECT_EQ(target.getObjectPathValue().getValues()[0].getHostName(), "h");

    const CIMProperty copy = target;  // every filled slot is copied
    EXPECT_EQ(copy.getStringValue().getValues(), std::vector<std::string>{"Online"});
    EXPECT_EQ(copy.getUint16Value().getValues(), std::vector<unsigned short>{3});
    EXPECT_EQ(copy.getObjectPathValue().size(), 1u);
}

TEST(CIMPropertySetPropValue, SourceWithoutThatSlotEmptiesIt) {
    CIMProperty target = stringProp("Name", "old");
    target.setPropValue(CIM_STRING, uint16Prop("N", 1));
    EXPECT_TRUE(target.getStringValue().isEmpty());
    EXPECT_TRUE(target.getUint16Value().isEmpty()) << "only the selected slot is copied";

    CIMProperty self = stringProp("Name", "same");
    self.setPropValue(CIM_STRING, self);
    EXPECT_EQ(self.getStringValue().getValues(), std::vector<std::string>{"same"});
}

TEST(CIMPropertySetPropValue, UnknownTagIsLoggedAndChangesNothing) {
    for (unsigned int tag : {2u, 3u, 32u, 0xffffffffu}) {
        CIMProperty target = stringProp("Name", "kept");
        clearLog();
        target.setPropValue(static_cast<Primitive_DataType>(tag), stringProp("Name", "new"));
        EXPECT_EQ(target.getStringValue().getValues(), std::vector<std::string>{"kept"});
        const std::vector<LoggedLine> lines = loggedLines();
        ASSERT_EQ(lines.size(), 1u) << "tag " << tag;
        EXPECT_EQ(lines[0].level, 2);
        EXPECT_EQ(lines[0].text, "setPropValue ::  :: Operation Failed.");
    }
}

TEST(CIMPropertyEquality, EqualsComparesNameTypeAndSelectedElements) {
    EXPECT_TRUE(stringKey("DeviceID", "0_1").equals(stringProp("DeviceID", "0_1")))
        << "flags are not compared";
    EXPECT_FALSE(stringKey("DeviceID", "0_1").equals(stringKey("DeviceId", "0_1")));
    EXPECT_FALSE(stringKey("DeviceID", "0_1").equals(stringKey("DeviceID", "0_2")));
    EXPECT_FALSE(uint16Prop("N", 1).equals(CIMProperty("N", CIMValue<unsigned short>(1, false,
                                                       false), false, CIM_UINT16_ARRAY, false)));

    const CIMProperty pair("N", CIMValue<unsigned short>(std::vector<unsigned short>{1, 2},
                                                         false, false), false, CIM_UINT16_ARRAY,
                           false);
    const CIMProperty one("N", CIMValue<unsigned short>(std::vector<unsigned short>{1}, false,
                                                        false), false, CIM_UINT16_ARRAY, false);
    EXPECT_FALSE(pair.equals(one));
    EXPECT_FALSE(one.equals(pair));

    // Other slots than the tag's do not count.
    CIMProperty extra = uint16Prop("N", 1);
    extra.setPropValue(CIM_STRING, stringProp("S", "x"));
    EXPECT_TRUE(extra.equals(uint16Prop("N", 1)));
}

TEST(CIMPropertyEquality, ReferencesCompareAsPaths) {
    const CIMProperty local = refKey("Antecedent", volumePath("", "0_1"));
    EXPECT_TRUE(local.equals(refKey("Antecedent", volumePath("cimom-host", "0_1"))));
    EXPECT_FALSE(local.equals(refKey("Antecedent", volumePath("", "0_2"))));
}

TEST(CIMPropertyEquality, ViewClassKeyMatchesPrefixedStoredKey) {
    const CIMProperty stored = stringKey("CSName", "vexController_0");
    EXPECT_TRUE(stored.subclassEqualsViewclass(stringKey("Name", "vexController_0")));
    EXPECT_FALSE(stored.subclassEqualsViewclass(stringKey("Name", "vexController_1")));
    const CIMProperty dateTyped("Name", CIMValue<std::string>("vexController_0", false, false),
                                true, CIM_DATETIME, false);
    EXPECT_FALSE(stored.subclassEqualsViewclass(dateTyped)) << "types must agree";
}

TEST(CIMPropertyCopy, EmbeddedInstancesAreValuesToo) {
    CIMInstance item;
    item.setPath(volumePath("h", "0_1"));
    item.addCimKeyBinding(stringKey("DeviceID", "0_1"));
    CIMProperty property("Partition", CIMValue<CIMInstance>(std::vector<CIMInstance>{item, item},
                                                            false, false),
                         false, CIM_INSTANCE_ARRAY, false);
    const CIMProperty copy = property;
    EXPECT_TRUE(copy.equals(property));
    ASSERT_EQ(copy.getInstanceValue().size(), 2u);
    EXPECT_EQ(copy.getInstanceValue().getValues()[1].getClassName(), "VEX_StorageVolume");

    item.addProperty(stringProp("ElementName", "v"));
    const CIMProperty other("Partition", CIMValue<CIMInstance>(std::vector<CIMInstance>{item,
                                                               item}, false, false),
                            false, CIM_INSTANCE_ARRAY, false);
    EXPECT_FALSE(other.equals(property));
}

TEST(CIMPropertyCopy, StaysCompact) {
    // The cache holds hundreds of thousands of properties: a property must
    // not grow back to one full value per element type.
    EXPECT_LE(sizeof(CIMProperty), 96u);
}

}  // namespace
}  // namespace vex::cim::fwf::test

// The property-table machinery: a library value becomes a property of the
// row's CIM type, or is left out; parallel arrays stay aligned; key rows go
// into the instance's path.
#include <gtest/gtest.h>

#include "controller/FsaCIMInstanceWrapper.h"

namespace vex::cim::fwf::fsamap {

namespace {

struct Source {
    unsigned int number;
    std::string name;
    bool known;
};

const PropertyRow<Source> kRows[] = {
    {"Id", CIM_STRING, KEY, [](const Source& s) { return raw(s.name); }},
    {"Narrow", CIM_UINT16, VIEW_KEY, [](const Source& s) { return raw(s.number); }},
    {"Signed", CIM_SINT32, PLAIN, [](const Source&) { return raw(-5); }},
    {"Maybe", CIM_UINT32, PLAIN, [](const Source& s) { return s.known ? raw(s.number) : RawValue(); }},
    {"Listed", CIM_UINT16_ARRAY, PLAIN, [](const Source&) { return RawValue(std::vector<unsigned long long>{2, 3}); }},
    {"Single", CIM_STRING_ARRAY, PLAIN, [](const Source& s) { return raw(s.name); }},
};

}  // namespace

TEST(PropertyTableTest, RowsBecomePropertiesOfTheirCimTypeOrAreLeftOut) {
    fsaCIMInstanceWrapper instance;
    instance.addRows(kRows, Source{7, "a", false});
    ASSERT_EQ(instance.getPropertyCount(), 5u);
    EXPECT_EQ(instance.getPropertyByName("Maybe"), nullptr);
    EXPECT_EQ(instance.getPropertyByName("Narrow")->getType(), CIM_UINT16);
    EXPECT_EQ(instance.getPropertyByName("Narrow")->getUint16Value().getValues(), std::vector<unsigned short>{7});
    EXPECT_TRUE(instance.getPropertyByName("Narrow")->isViewKey());
    EXPECT_FALSE(instance.getPropertyByName("Narrow")->isKey());
    EXPECT_EQ(instance.getPropertyByName("Signed")->getSint32Value().getValues(), std::vector<int>{-5});
    EXPECT_EQ(instance.getPropertyByName("Listed")->getUint16Value().getValues(), (std::vector<unsigned short>{2, 3}));
    EXPECT_EQ(instance.getPropertyByName("Single")->getStringValue().getValues(), std::vector<std::string>{"a"});
    // The key row is a key of the instance's path too.
    const std::vector<CIMProperty> keys = instance.getPath().getKeyBindings();
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys[0].getName(), "Id");
}

TEST(PropertyTableTest, AValueThatCannotTakeTheTypeIsLeftOut) {
    CIMProperty out;
    EXPECT_FALSE(makeProperty("X", CIM_UINT32, PLAIN, raw("text"), out));
    EXPECT_FALSE(makeProperty("X", CIM_STRING, PLAIN, raw(3u), out));
    EXPECT_FALSE(makeProperty("X", CIM_REAL32, PLAIN, raw(3u), out));
    DateAndTime moment;
    moment.year = 2024;
    moment.month = 2;
    moment.day = 29;
    ASSERT_TRUE(makeProperty("When", CIM_DATETIME, PLAIN, raw(moment), out));
    EXPECT_EQ(out.getStringValue().getValues().at(0), "20240229000000.000000+530");
}

TEST(PropertyTableTest, ColumnsKeepOneElementPerSourceAndPushBackAppends) {
    const std::vector<Source> sources = {{1, "a", true}, {2, "b", false}, {3, "c", true}};
    fsaCIMInstanceWrapper instance;
    const PropertyRow<Source> columns[] = {
        {"Names", CIM_STRING_ARRAY, VIEW_KEY, [](const Source& s) { return raw(s.name); }},
        {"Known", CIM_UINT32_ARRAY, PLAIN, [](const Source& s) { return s.known ? raw(s.number) : RawValue(); }},
    };
    instance.addColumns(columns, sources);
    EXPECT_EQ(instance.getPropertyByName("Names")->getStringValue().getValues(),
              (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_TRUE(instance.getPropertyByName("Names")->isViewKey());
    // An element that could not be read keeps its place with the default value.
    EXPECT_EQ(instance.getPropertyByName("Known")->getUint32Value().getValues(), (std::vector<unsigned>{1, 0, 3}));

    instance.fsaPushBack<std::string>("Feature", "x");
    instance.fsaPushBack<std::string>("Feature", "y");
    EXPECT_EQ(instance.getPropertyByName("Feature")->getType(), CIM_STRING_ARRAY);
    EXPECT_EQ(instance.getPropertyByName("Feature")->getStringValue().getValues(), (std::vector<std::string>{"x", "y"}));
}

}  // namespace vex::cim::fwf::fsamap

// Typed values and assignments on the command line: every type, its range,
// arrays with escaped commas, and the refusals.
#include <gtest/gtest.h>

#include <cmpihost/ObjectPath.h>

#include "Errors.h"
#include "TypedValue.h"

namespace vexraid {
namespace {

using cmpihost::Value;

Value typed(const std::string& assignment) {
    const Assignment a = parseAssignment(assignment);
    EXPECT_TRUE(a.type.has_value()) << assignment;
    return valueFromText(*a.type, a.text, "root/tkz/vex/smi_15");
}

TEST(TypedValue, ReadsEachTypeAtItsLimits) {
    EXPECT_EQ(typed("X=uint8:255"), Value::uint8(255));
    EXPECT_EQ(typed("X=uint16:0x10"), Value::uint16(16));
    EXPECT_EQ(typed("X=uint32:4294967295"), Value::uint32(4294967295u));
    EXPECT_EQ(typed("X=uint64:18446744073709551615"), Value::uint64(18446744073709551615ULL));
    EXPECT_EQ(typed("X=sint8:-128"), Value::sint8(-128));
    EXPECT_EQ(typed("X=sint16:32767"), Value::sint16(32767));
    EXPECT_EQ(typed("X=sint64:-9223372036854775808"), Value::sint64(INT64_MIN));
    EXPECT_EQ(typed("X=Boolean:TRUE"), Value::boolean(true));
    EXPECT_EQ(typed("X=boolean:0"), Value::boolean(false));
    EXPECT_EQ(typed("X=real64:2.5"), Value::real64(2.5));
    EXPECT_EQ(typed("X=char16:a"), Value::char16('a'));
    EXPECT_EQ(typed("X=string:a:b=c"), Value::string("a:b=c"));
    EXPECT_EQ(typed("X=datetime:20240102030405.000000+000").asDateTime().text(), "20240102030405.000000+000");
    EXPECT_EQ(typed("X=ref:VEX_Card.Tag=\"1\"").asRef().className, "VEX_Card");
    EXPECT_EQ(typed("X=uint16:010"), Value::uint16(10));  // decimal, not octal
}

TEST(TypedValue, ArraysSplitAtUnescapedCommas) {
    const Value v = typed(R"(X=string[]:a\,b,c\\,)");
    ASSERT_TRUE(v.isArray());
    ASSERT_EQ(v.elements().size(), 3u);
    EXPECT_EQ(v.elements()[0], Value::string("a,b"));
    EXPECT_EQ(v.elements()[1], Value::string("c\\"));
    EXPECT_EQ(v.elements()[2], Value::string(""));
    EXPECT_EQ(typed("X=uint16[]:1,2").elements().size(), 2u);
    EXPECT_TRUE(typed("X=uint16[]:").elements().empty());
}

TEST(TypedValue, UntypedValuesKeepTheirTextAndLeaveTheTypeOpen) {
    const Assignment a = parseAssignment("ElementName=my:volume");
    EXPECT_EQ(a.name, "ElementName");
    EXPECT_FALSE(a.type.has_value());
    EXPECT_EQ(a.text, "my:volume");
    EXPECT_EQ(parseAssignment("Empty=").text, "");
}

TEST(TypedValue, RefusesValuesOutsideTheirType) {
    for (const char* bad : {"X=uint8:256", "X=uint8:-1", "X=sint8:128", "X=uint32:12abc", "X=uint64:",
                            "X=boolean:yes", "X=real32:nan", "X=char16:ab", "X=datetime:2024", "X=ref:not a path",
                            "X=uint64:99999999999999999999", "X=uint16[]:1,x"}) {
        const Assignment a = parseAssignment(bad);
        EXPECT_THROW(valueFromText(*a.type, a.text, "ns"), UsageError) << bad;
    }
}

TEST(TypedValue, RefusesMalformedAssignments) {
    for (const char* bad : {"NoEquals", "=5", "9x=1", "a b=1"}) {
        EXPECT_THROW(parseAssignment(bad), UsageError) << bad;
    }
    EXPECT_FALSE(typeFromName("uint128"));
    EXPECT_EQ(*typeFromName("reference[]"), static_cast<CMPIType>(CMPI_ref | CMPI_ARRAY));
}

}  // namespace
}  // namespace vexraid

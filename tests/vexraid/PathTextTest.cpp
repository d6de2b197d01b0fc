// Object paths on the command line: the WBEM forms a user types or pastes
// from vexraid's own output, and malformed ones refused with the column.
#include <gtest/gtest.h>

#include "Errors.h"
#include "PathText.h"

namespace vexraid {
namespace {

using cmpihost::ObjectPath;
using cmpihost::Value;

constexpr const char* kNs = "root/tkz/vex/smi_15";

TEST(PathText, ReadsNamespaceClassAndTypedKeys) {
    const ObjectPath p = parseObjectPath(R"(root/PG_InterOp:VEX_Thing.Name="a \"b\", c\\d",Num=-5,Big=18446744073709551615,On=true)", kNs);
    EXPECT_EQ(p.nameSpace, "root/PG_InterOp");
    EXPECT_EQ(p.className, "VEX_Thing");
    ASSERT_EQ(p.keys.size(), 4u);
    EXPECT_EQ(*p.key("Name"), Value::string("a \"b\", c\\d"));
    EXPECT_EQ(*p.key("Num"), Value::sint64(-5));
    EXPECT_EQ(*p.key("Big"), Value::uint64(18446744073709551615ULL));
    EXPECT_EQ(*p.key("On"), Value::boolean(true));
}

TEST(PathText, DefaultsTheNamespaceAndKeepsAHost) {
    EXPECT_EQ(parseObjectPath("VEX_Card", kNs).nameSpace, kNs);
    const ObjectPath p = parseObjectPath("//cimom/root/x:VEX_Card.Tag=\"1\"", kNs);
    EXPECT_EQ(p.host, "cimom");
    EXPECT_EQ(p.nameSpace, "root/x");
}

TEST(PathText, AQuotedPathWithNamespaceAndKeysIsAReference) {
    const ObjectPath p = parseObjectPath(
        R"(VEX_SystemDevice.GroupComponent="root/a:VEX_S.Name=\"s\"",PartComponent="no:keys here",Text="a=b")", kNs);
    ASSERT_EQ(p.key("GroupComponent")->type(), CMPI_ref);
    EXPECT_EQ(p.key("GroupComponent")->asRef().className, "VEX_S");
    EXPECT_EQ(*p.key("GroupComponent")->asRef().key("Name"), Value::string("s"));
    EXPECT_EQ(p.key("PartComponent")->type(), CMPI_string);
    EXPECT_EQ(p.key("Text")->type(), CMPI_string);
}

TEST(PathText, ReadsBackWhatItWrites) {
    ObjectPath inner(kNs, "VEX_Battery");
    inner.addKey("DeviceID", Value::string("0_\"B\""));
    ObjectPath outer("root/PG_InterOp", "VEX_Assoc");
    outer.addKey("Antecedent", Value::ref(inner)).addKey("N", Value::sint64(3)).addKey("F", Value::boolean(false));
    EXPECT_EQ(parseObjectPath(pathText(outer), "elsewhere"), outer);
}

TEST(PathText, ClassPathsTakeNoKeys) {
    EXPECT_EQ(parseClassPath("root/PG_InterOp:VEX_RegisteredProfile", kNs).className, "VEX_RegisteredProfile");
    EXPECT_THROW(parseClassPath("VEX_Card.Tag=\"1\"", kNs), UsageError);
}

TEST(PathText, RefusesMalformedPathsNamingTheColumn) {
    const struct {
        const char* text;
        const char* says;
    } cases[] = {
        {"", "expected a class name at column 1"},
        {"9Class", "expected a class name"},
        {":VEX_Card", "empty namespace"},
        {"root//x:VEX_Card", "empty namespace segment"},
        {"//h//root:VEX_Card", "empty namespace segment"},
        {"VEX_Card.", "expected a key name at column 10"},
        {"VEX_Card.Tag", "expected '=' after Tag"},
        {"VEX_Card.Tag=", "expected a key value"},
        {"VEX_Card.Tag=\"open", "unterminated quoted value"},
        {"VEX_Card.Tag=abc", "'abc' is no number, TRUE, FALSE or quoted text"},
        {"VEX_Card.Tag=\"a\",Tag=\"b\"", "key Tag given twice"},
        {"VEX_Card.Tag=\"a\"x", "unexpected 'x'"},
        {"//host", "expected //host/"},
    };
    for (const auto& c : cases) {
        try {
            parseObjectPath(c.text, kNs);
            ADD_FAILURE() << c.text << " was accepted";
        } catch (const UsageError& e) {
            EXPECT_NE(std::string(e.what()).find(c.says), std::string::npos) << c.text << ": " << e.what();
        }
    }
}

TEST(PathText, DeeplyNestedOrHugeInputIsRefusedOrFlattenedWithoutCrashing) {
    std::string nested = "VEX_A.K=1";
    for (int i = 0; i < 12; ++i) {
        std::string escaped;
        for (char c : nested) escaped += (c == '"' || c == '\\') ? std::string("\\") + c : std::string(1, c);
        nested = "root/n:VEX_A.K=\"" + escaped + "\"";
    }
    EXPECT_NO_THROW(parseObjectPath(nested, kNs));
    EXPECT_THROW(parseObjectPath("VEX_A.K=\"" + std::string(70000, 'x') + "\"", kNs), UsageError);
}

}  // namespace
}  // namespace vexraid

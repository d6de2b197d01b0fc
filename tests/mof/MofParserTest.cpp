// The MOF subset the provider's schema is written in: qualifiers,
// superclasses, keys, references, arrays, methods with IN/OUT parameters;
// anything else is refused with the file and line.
#include <gtest/gtest.h>

#include "MofParser.h"

namespace vex::mof {
namespace {

const char* const kSample = R"(
#pragma locale ("en_US")
// A comment, and /* another */ one.
[Version ("1.5.0"), Description ("A volume. "
    "Two strings make one.")]
class VEX_Volume : CIM_StorageVolume
{
    [Key, Description ("Its id.")] string DeviceID;
    uint16 OperationalStatus[];
    [EmbeddedInstance ("CIM_Setting")] string Setting;
    datetime Created = "20240101000000.000000+000";
    uint32 Resize([IN] uint64 Size, [IN (false), OUT] CIM_ConcreteJob REF Job,
                  [IN] CIM_StorageExtent REF InExtents[]);
};

[Association, Indication (false)]
class VEX_Link
{
    [Key] VEX_Volume REF Antecedent;
    [Key] CIM_ManagedElement REF Dependent;
};
)";

TEST(MofParser, ReadsClassesWithTheirQualifiersPropertiesAndMethods) {
    const std::vector<ClassDecl> classes = parseMof(kSample, "sample.mof");
    ASSERT_EQ(classes.size(), 2u);
    const ClassDecl& volume = classes[0];
    EXPECT_EQ(volume.name, "VEX_Volume");
    EXPECT_EQ(volume.superClass, "CIM_StorageVolume");
    EXPECT_EQ(volume.line, 6);
    EXPECT_EQ(findQualifier(volume.qualifiers, "description")->values.front(), "A volume. Two strings make one.");
    EXPECT_EQ(volume.keyNames(), std::vector<std::string>{"DeviceID"});
    EXPECT_EQ(volume.property("operationalstatus")->type.toString(), "uint16[]");
    EXPECT_EQ(volume.property("Setting")->embeddedInstance(), "CIM_Setting");
    EXPECT_EQ(volume.property("Created")->type.name, "datetime");
    const Method* resize = volume.method("Resize");
    ASSERT_NE(resize, nullptr);
    ASSERT_EQ(resize->parameters.size(), 3u);
    EXPECT_TRUE(resize->parameter("Size")->isIn());
    EXPECT_FALSE(resize->parameter("Job")->isIn());
    EXPECT_TRUE(resize->parameter("Job")->isOut());
    EXPECT_EQ(resize->parameter("InExtents")->type.toString(), "CIM_StorageExtent REF[]");
    // The declaration as written, for the namespace files.
    EXPECT_EQ(volume.text.substr(0, 18), "[Version (\"1.5.0\")");
    EXPECT_EQ(volume.text.back(), ';');

    const ClassDecl& link = classes[1];
    EXPECT_TRUE(link.isAssociation());
    EXPECT_FALSE(link.isIndication());
    EXPECT_TRUE(link.superClass.empty());
    EXPECT_EQ(link.property("Antecedent")->type.toString(), "VEX_Volume REF");
}

TEST(MofParser, RefusesWhatItDoesNotReadNamingFileAndLine) {
    const struct {
        const char* text;
        const char* says;
    } cases[] = {
        {"class A {\n  strng Name;\n};", "t.mof:2: unknown type, found 'strng'"},
        {"class A {\n  string Name\n};", "t.mof:3: expected ';'"},
        {"class A : { };", "t.mof:1: expected superclass name"},
        {"instance of A { };", "t.mof:1: expected 'class'"},
        {"class A {\n  string \"x;\n};", "t.mof:2: unterminated string"},
        {"/* never closed\nclass A {};", "t.mof:1: unterminated comment"},
        {"class A { string B; }", "t.mof:1: expected ';', found end of text"},
        {"[Key(] class A {};", "t.mof:1: expected a value"},
        {"class A { uint8 X = @; };", "unexpected character '@'"},
    };
    for (const auto& c : cases) {
        try {
            parseMof(c.text, "t.mof");
            ADD_FAILURE() << c.text;
        } catch (const MofError& e) {
            EXPECT_NE(std::string(e.what()).find(c.says), std::string::npos) << e.what();
        }
    }
}

}  // namespace
}  // namespace vex::mof

// What vexraid prints: MOF-like text and JSON of instances (escapes,
// arrays, nulls, references, embedded instances), the summary tables and
// the progress bar.
#include <gtest/gtest.h>

#include "CimText.h"
#include "JsonText.h"
#include "MofText.h"
#include "ProgressBar.h"
#include "Summary.h"
#include "TextTable.h"

namespace vexraid {
namespace {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using cmpihost::Value;

Instance sample() {
    ObjectPath path("root/tkz/vex/smi_15", "VEX_Battery");
    path.addKey("DeviceID", Value::string("0_0"));
    Instance i(path);
    i.set("DeviceID", Value::string("0_0"));
    i.set("Text", Value::string("say \"hi\"\n\ttab\x01"));
    i.set("Status", Value::array(CMPI_uint16, {Value::uint16(2), Value::uint16(11)}));
    i.set("Temp", Value::sint32(-4));
    i.set("Missing", Value::null(CMPI_string));
    i.set("Owner", Value::ref(ObjectPath("root/x", "VEX_Card", {{"Tag", Value::string("t")}})));
    return i;
}

TEST(Output, MofTextEscapesAndShowsEveryKindOfValue) {
    const std::string text = mofInstance(sample());
    EXPECT_EQ(text,
              "// root/tkz/vex/smi_15:VEX_Battery.DeviceID=\"0_0\"\n"
              "instance of VEX_Battery {\n"
              "    DeviceID = \"0_0\";\n"
              "    Text = \"say \\\"hi\\\"\\n\\ttab\\x01\";\n"
              "    Status = {2, 11};\n"
              "    Temp = -4;\n"
              "    Missing = NULL;\n"
              "    Owner = \"root/x:VEX_Card.Tag=\\\"t\\\"\";\n"
              "};");
    Instance outer(ObjectPath("root/tkz/vex/smi_15", "CIM_InstModification"));
    outer.set("SourceInstance", Value::instance(sample()));
    EXPECT_NE(mofInstance(outer).find("    SourceInstance = instance of VEX_Battery {\n        DeviceID = \"0_0\";"),
              std::string::npos);
}

TEST(Output, JsonCarriesValuesWithTheirJsonTypesAndSurvivesBadUtf8) {
    const nlohmann::json j = jsonInstance(sample());
    EXPECT_EQ(j["class"], "VEX_Battery");
    EXPECT_EQ(j["path"], "root/tkz/vex/smi_15:VEX_Battery.DeviceID=\"0_0\"");
    EXPECT_EQ(j["properties"]["Status"], nlohmann::json({2, 11}));
    EXPECT_EQ(j["properties"]["Temp"], -4);
    EXPECT_TRUE(j["properties"]["Missing"].is_null());
    EXPECT_EQ(j["properties"]["Owner"], "root/x:VEX_Card.Tag=\"t\"");
    Instance bad(ObjectPath("n", "C"));
    bad.set("Raw", Value::string(std::string("\xff\xfe", 2)));
    EXPECT_NO_THROW(nlohmann::json::parse(jsonText(jsonInstance(bad), false)));
}

TEST(Output, TablesPadColumnsAndCutLongCells) {
    TextTable table({"ID", "NAME"}, 8);
    table.add({"1", "short"});
    table.add({"22", "much too long a name"});
    table.add({"3"});
    EXPECT_EQ(table.render(1),
              " ID  NAME\n"
              " 1   short\n"
              " 22  much to~\n"
              " 3\n");
}

TEST(Output, CimValuesInWords) {
    const Value status = Value::array(CMPI_uint16, {Value::uint16(3), Value::uint16(11), Value::uint16(99)});
    EXPECT_EQ(operationalStatusText(&status), "Degraded, In Service, 99");
    const Value battery = Value::uint16(6);
    EXPECT_EQ(batteryStatusText(&battery), "Charging");
    EXPECT_EQ(sizeText(512), "512 B");
    EXPECT_EQ(sizeText(1199999811584ULL), "1.2 TB");
    EXPECT_EQ(sizeText(960197124096ULL), "960.2 GB");
}

TEST(Output, ProgressLinesAreBoundedAndRedrawOnlyOnChange) {
    EXPECT_EQ(progressLine(50, "0_1  verify", 10), "[#####.....]  50%  0_1  verify");
    EXPECT_EQ(progressLine(250, "x", 4), "[####] 100%  x");
    std::ostringstream out;
    {
        ProgressBar bar(out, false);
        bar.show(10, "a");
        bar.show(10, "a");
        bar.show(20, "a");
    }
    EXPECT_EQ(out.str(), progressLine(10, "a") + "\n" + progressLine(20, "a") + "\n");
}

Instance view(const std::string& cls, std::initializer_list<cmpihost::NamedValue> properties) {
    Instance i(ObjectPath("root/tkz/vex/smi_15", cls));
    for (const auto& p : properties) i.set(p.name, p.value);
    return i;
}

TEST(Output, SummaryJoinsPoolsToTheirRaidLevelAndVolumesToTheirPool) {
    SummarySource source;
    source.pools.push_back(view("VEX_ConcreteStoragePoolView",
                                {{"SPInstanceID", Value::string("0_1")}, {"SPElementName", Value::string("Data")},
                                 {"SPTotalManagedSpace", Value::uint64(2400000000000ULL)},
                                 {"SPOperationalStatus", Value::array(CMPI_uint16, {Value::uint16(3)})}}));
    source.settings.push_back(view("VEX_PrimordialFixedStorageSettings",
                                   {{"PoolInstanceID", Value::string("0_1")}, {"RAIDLevel", Value::string("RAID5")}}));
    source.volumes.push_back(view("VEX_StorageVolumeView", {{"SVDeviceID", Value::string("0_1")},
                                                             {"SPInstanceID", Value::string("0_1")},
                                                             {"SVIsBootDisk", Value::boolean(false)}}));
    // An enclosure processor in the drive view has no extent and is left out.
    source.drives.push_back(view("VEX_DiskDriveView", {{"DDDeviceID", Value::string("0_0_32")}}));
    const auto sections = summarize(source);
    const nlohmann::json j = summaryJson(sections);
    EXPECT_EQ(j["pools"][0]["RAID"], "RAID5");
    EXPECT_EQ(j["pools"][0]["STATUS"], "Degraded");
    EXPECT_EQ(j["volumes"][0]["NAME"], "Data");
    EXPECT_EQ(j["volumes"][0]["SIZE"], "2.4 TB");
    EXPECT_EQ(j["volumes"][0]["BOOT"], "no");
    EXPECT_TRUE(j["drives"].empty());
    const std::string text = summaryText(sections);
    EXPECT_NE(text.find("Controllers (0)\n\nDrives (0)\n\nPools (1)\n  ID   NAME  RAID   SIZE    STATUS\n"), std::string::npos);
}

}  // namespace
}  // namespace vexraid

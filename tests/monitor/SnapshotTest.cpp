// The configuration snapshot as XML, the comparison rules as data, and the
// refresh rule of controller events.
#include <gtest/gtest.h>

#include "MonitorFixture.h"
#include "monitor/CompareRules.h"
#include "monitor/ConfigCompare.h"
#include "monitor/ConfigSnapshot.h"
#include "monitor/ControllerEventRules.h"
#include "monitor/EventVocabulary.h"

namespace vex::monitortest {
namespace {

using namespace monitor;

ConfigSnapshot sample() {
    ConfigSnapshot s;
    AdapterSnapshot a;
    a.controller = SnapshotObject{"Controller", {{"controllerID", "0"}, {"controllerSerial", "S<&>\"'"}}};
    a.objects.push_back(SnapshotObject{"HardDrive", {{"channelID", "0"}, {"deviceID", "3"}, {"state", "1"}}});
    a.objects.push_back(SnapshotObject{"Progress", {{"taskID", "4"}, {"percentageComplete", "35"}}});
    s.adapters.push_back(a);
    return s;
}

TEST(Snapshot, XmlRoundTripKeepsEveryAttribute) {
    const std::string xml = toXml(sample());
    EXPECT_NE(xml.find("controllerSerial=\"S&lt;&amp;&gt;&quot;&apos;\""), std::string::npos) << xml;
    EXPECT_NE(xml.find("<ProgressCollection>"), std::string::npos);
    ConfigSnapshot back;
    ASSERT_TRUE(fromXml(xml, back));
    EXPECT_EQ(toXml(back), xml);
    EXPECT_EQ(back.adapters.at(0).serial(), "S<&>\"'");
    EXPECT_TRUE(fromXml("<Config/>", back));
    EXPECT_TRUE(back.adapters.empty());
}

TEST(Snapshot, TruncatedOrForeignTextIsRefused) {
    const std::string xml = toXml(sample());
    ConfigSnapshot back;
    for (std::size_t cut = 0; cut + 2 < xml.size(); cut += 7) {
        EXPECT_FALSE(fromXml(xml.substr(0, cut), back)) << cut;
        EXPECT_TRUE(back.adapters.empty());
    }
    for (const char* text : {"", "not xml", "<Config><Controller a=\"1\"><X><Y><Z/></Y></X></Controller></Config>",
                             "<Config><HardDrive/></Config>", "<Config></Controller></Config>",
                             "<Config><Controller a=\"&bogus;\"></Controller></Config>", "<Config/><Config/>"}) {
        EXPECT_FALSE(fromXml(text, back)) << text;
    }
}

TEST(Snapshot, EveryRuleRaisesAKnownEvent) {
    std::size_t count = 0;
    const CompareRule* rules = compareRules(count);
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_NE(findEventKind(rules[i].key), nullptr) << rules[i].key;
    }
    std::size_t kinds = 0;
    const EventKind* all = eventKinds(kinds);
    for (std::size_t i = 0; i < kinds; ++i) {
        for (std::size_t j = i + 1; j < kinds; ++j) {
            EXPECT_NE(all[i].code, all[j].code) << all[i].key << " " << all[j].key;
        }
    }
}

TEST(Snapshot, ComparisonPairsByIdentityAndUsesOldValues) {
    AdapterSnapshot before;
    before.controller = SnapshotObject{"Controller", {{"controllerID", "0"}, {"status", "0"}}};
    before.objects = {SnapshotObject{"HardDrive", {{"channelID", "0"}, {"deviceID", "1"}, {"state", "2"}, {"spareType", "1"}}},
                      SnapshotObject{"HardDrive", {{"channelID", "0"}, {"deviceID", "2"}, {"state", "1"}}}};
    AdapterSnapshot after = before;
    after.objects[0].set("state", "3");
    after.objects[0].set("spareType", "0");
    after.objects.erase(after.objects.begin() + 1);
    after.objects.push_back(SnapshotObject{"HardDrive", {{"channelID", "0"}, {"deviceID", "9"}, {"state", "0"}}});
    std::vector<std::string> found;
    compareObjects(before, after, {"Controller", "HardDrive"}, [&](const Finding& f) { found.push_back(f.key); });
    EXPECT_EQ(found, (std::vector<std::string>{"EVENT_STRATAVOL_PD_SPARE_USED", "EVENT_STRATAVOL_PD_INSERTED",
                                               "EVENT_STRATAVOL_PD_REMOVED"}));
}

TEST(Snapshot, RefreshRule) {
    EXPECT_FALSE(eventNeedsRefresh(8192, 6, 0, 0));
    EXPECT_TRUE(eventNeedsRefresh(8192, 3, 0, 0));
    EXPECT_FALSE(eventNeedsRefresh(32768, 0, 0, 5));
    EXPECT_FALSE(eventNeedsRefresh(32768, 0, 0, 0));
    EXPECT_TRUE(eventNeedsRefresh(32768, 0, 0, 1));
    EXPECT_FALSE(eventNeedsRefresh(0x100000, 5, 0, 0));
    EXPECT_TRUE(eventNeedsRefresh(0x100000, 1, 0, 0));
    EXPECT_TRUE(eventNeedsRefresh(0x10000000, 3, 0, 0));
    EXPECT_TRUE(eventNeedsRefresh(0x10000000, 2, 16, 0));
    EXPECT_FALSE(eventNeedsRefresh(0x10000000, 2, 4, 0));
    EXPECT_FALSE(eventNeedsRefresh(0x10000000, 1, 16, 0));
    EXPECT_TRUE(eventNeedsRefresh(0x40000b, 0, 0, 0));
    EXPECT_FALSE(eventNeedsRefresh(0x1, 0, 0, 0));
    EXPECT_FALSE(eventNeedsRefresh(0x12345, 0, 0, 0));
}

}  // namespace
}  // namespace vex::monitortest

// The message catalogue and settings parser: look-up, phrases, placeholders,
// and files that are missing, binary, huge or malformed.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "MonitorFixture.h"
#include "monitor/BaseRaidMonitor.h"
#include "monitor/EventVocabulary.h"
#include "monitor/NLSParser.h"
#include "monitor/StringTokenizer.h"

namespace vex::monitortest {
namespace {

using monitor::NLSParser;

TEST(Catalogue, LookUpSkipsCommentsAndTrimsAndFillsPhrases) {
    TempDir dir;
    dir.write("c.properties",
              "# key=never\n"
              "\n"
              "key =  spaced value \t\n"
              "other=x\n"
              "phrase=the %inner% phrase\n"
              "inner=deep\n"
              "percent=50% done, 100%\n"
              "loop=%loop%!\n"
              "novalue\n");
    NLSParser parser(dir.file("c.properties"));
    EXPECT_EQ(parser.get("key"), "spaced value");
    EXPECT_EQ(parser.get("# key"), "");
    EXPECT_EQ(parser.get("phrase"), "the deep phrase");
    EXPECT_EQ(parser.get("percent"), "50% done, 100%");
    EXPECT_EQ(parser.get("novalue"), "");
    EXPECT_EQ(parser.get("missing"), "");
    // A phrase naming itself ends after a few rounds.
    EXPECT_NE(parser.get("loop").find('!'), std::string::npos);
}

TEST(Catalogue, PlaceholdersAreThreeCharacters) {
    const std::vector<std::string> one{"A"};
    EXPECT_EQ(NLSParser::parse("x{0}y", one), "xAy");
    EXPECT_EQ(NLSParser::parse("x{1}y", one), "xy");           // beyond the arguments: removed
    EXPECT_EQ(NLSParser::parse("x{10}y", {"a", "b"}), "x}y");   // two digits leave the brace
    EXPECT_EQ(NLSParser::parse("{9}{-1}{", one), "}A");        // "{-1" goes, then a bare "{" reads index 0
    // An argument holding a placeholder is filled again, but never endlessly.
    EXPECT_EQ(NLSParser::parse("{0}", {"[{1}]", "B"}), "[B]");
    EXPECT_FALSE(NLSParser::parse("{0}", {"{0}"}).empty());
    NLSParser none("");
    EXPECT_EQ(none.get("key", std::vector<long>{1, 2}), "");
}

TEST(Catalogue, MissingFileIsCreatedEmptyAndBadFilesAreSurvived) {
    TempDir dir;
    {
        NLSParser parser(dir.file("new.properties"));
        EXPECT_TRUE(parser.isOpen());
        EXPECT_EQ(parser.get("anything"), "");
    }
    EXPECT_TRUE(std::ifstream(dir.file("new.properties")).good());
    std::string binary(70000, '\0');
    for (std::size_t i = 0; i < binary.size(); ++i) {
        binary[i] = static_cast<char>(i * 7);
    }
    dir.write("bad.properties", binary + "\nafter=fine\n" + std::string(NLSParser::kMaxLine + 5, 'k') + "=v\nlast=1");
    NLSParser parser(dir.file("bad.properties"));
    EXPECT_EQ(parser.get("after"), "fine");
    EXPECT_EQ(parser.get("last"), "1");
    EXPECT_EQ(parser.get(std::string(NLSParser::kMaxLine + 5, 'k')), "");
}

TEST(Catalogue, NumbersInBasesUpToSixteen) {
    EXPECT_EQ(NLSParser::itoa(255, 16), "ff");
    EXPECT_EQ(NLSParser::itoa(-42, 10), "-42");
    EXPECT_EQ(NLSParser::itoa(-1, 16), "ffffffff");
    EXPECT_EQ(NLSParser::ltoa(5, 2), "101");
    EXPECT_EQ(NLSParser::ltoa(5, 17), "");
}

TEST(Catalogue, TokenizerSkipsEmptyTokens) {
    monitor::StringTokenizer t(",a,,b c,", ", ");
    EXPECT_EQ(t.countTokens(), 3);
    EXPECT_EQ(t.nextToken(), "a");
    EXPECT_EQ(t.nextToken(), "b");
    EXPECT_EQ(t.nextToken(), "c");
    EXPECT_FALSE(t.hasMoreTokens());
    EXPECT_EQ(t.nextToken(), "");
}

TEST(Catalogue, SettingsFallBackToDefaults) {
    TempDir dir;
    dir.write("s.conf", "nrm.eventQueueSize=300\nnrm.debugMask=junk\nagent.alarm=oN\nnrm.pollInterval=0\n"
                        "agent.lifecycleIndications=ON\n");
    const monitor::MonitorSettings s = monitor::readSettings(dir.file("s.conf"));
    EXPECT_EQ(s.eventQueueSize, 300u);
    EXPECT_EQ(s.debugMask, 0u);
    EXPECT_EQ(s.osLoggingLevel, 3);
    EXPECT_FALSE(s.alarm);
    EXPECT_EQ(s.pollInterval, 1u);
    EXPECT_TRUE(s.lifecycleIndications);
    EXPECT_EQ(monitor::readSettings(dir.file("none.conf")).pollInterval, 5u);
}

// Every event of the vocabulary has its text in the shipped catalogue.
TEST(Catalogue, ShippedCatalogueWordsEveryEvent) {
    NLSParser parser(VEX_CATALOGUE_FILE);
    std::size_t count = 0;
    const monitor::EventKind* kinds = monitor::eventKinds(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text = parser.get(kinds[i].message, {"OBJ", "7", "NEW", "OLD", "DET"});
        EXPECT_FALSE(text.empty()) << kinds[i].key;
        EXPECT_EQ(text.find('%'), text.find("% ")) << kinds[i].key << ": " << text;  // no phrase left unfilled
        EXPECT_EQ(text.find('{'), std::string::npos) << kinds[i].key;
    }
}

}  // namespace
}  // namespace vex::monitortest

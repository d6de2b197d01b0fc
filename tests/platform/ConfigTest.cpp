// Configuration files, installation paths and the bounds of every getter
// that fills a caller's buffer.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"
#include "platform/TkzPaths.h"

namespace vex::platform::test {
namespace {

class ConfigFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        setRefreshIntervalFile(dir_.file("vexProvider.conf"));
        setProductVersionFile(dir_.file("tidalDS.conf"));
    }
    void TearDown() override { restoreDefaultPaths(); }
    TempDir dir_;
};

struct IntervalCase {
    std::string content;
    int interval;
};

class RefreshIntervalTest : public ConfigFileTest, public ::testing::WithParamInterface<IntervalCase> {};

TEST_P(RefreshIntervalTest, TakesTheNumberAfterTheFirstEqualsOfTheFirstLine) {
    writeFile(dir_.file("vexProvider.conf"), GetParam().content);
    int interval = -1;
    EXPECT_EQ(TkzGetRefreshInterval(&interval), 0);
    EXPECT_EQ(interval, GetParam().interval);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, RefreshIntervalTest,
    ::testing::Values(IntervalCase{"RefreshInterval=30\n", 30}, IntervalCase{"interval = 45\n", 45},
                      IntervalCase{"=7", 7}, IntervalCase{"x=12abc\n", 12}, IntervalCase{"a=b=7\n", 0},
                      IntervalCase{"no equals sign\n", 0}, IntervalCase{"", 0},
                      IntervalCase{"\ninterval=5\n", 0},
                      IntervalCase{std::string(510, 'k') + "=9\n", 9},   // '9' is the 512th character
                      IntervalCase{std::string(511, 'k') + "=9\n", 0}));  // '9' is beyond what is read

TEST_F(ConfigFileTest, MissingRefreshFileGivesOneAndZeroInterval) {
    int interval = -1;
    EXPECT_EQ(TkzGetRefreshInterval(&interval), 1);
    EXPECT_EQ(interval, 0);
    EXPECT_EQ(TkzGetRefreshInterval(nullptr), 1);
}

TEST_F(ConfigFileTest, ProductVersionIsTheFirstLineWithoutItsEnd) {
    char version[64];
    EXPECT_EQ(TkzGetProductVersion(version, sizeof version), 1);

    writeFile(dir_.file("tidalDS.conf"), "1.5.0-17\r\nsecond line\n");
    ASSERT_EQ(TkzGetProductVersion(version, sizeof version), 0);
    EXPECT_STREQ(version, "1.5.0-17");
}

// Sets or clears "tidalDS" for one test and puts the old value back.
class InstallPathTest : public ::testing::Test {
protected:
    void SetUp() override {
        const char *old = std::getenv("tidalDS");
        had_ = old != nullptr;
        old_ = had_ ? old : "";
    }
    void TearDown() override {
        if (had_) {
            setenv("tidalDS", old_.c_str(), 1);
        } else {
            unsetenv("tidalDS");
        }
    }
    bool had_ = false;
    std::string old_;
};

using PathGetter = int (*)(char *, size_t);
const std::pair<PathGetter, const char *> kGetters[] = {
    {TkzGetLogPath, "/log"}, {TkzGetConfPath, "/conf"}, {TkzGetBinPath, "/bin"},
    {TkzGetLogInfoPath, "/loginfo"}, {TkzGetGUIConfPath, "/gui/conf"}};

TEST_F(InstallPathTest, UnsetOrEmptyVariableGivesThree) {
    char path[256] = "stale";
    unsetenv("tidalDS");
    for (auto [getter, sub] : kGetters) {
        EXPECT_EQ(getter(path, sizeof path), 3) << sub;
        EXPECT_STREQ(path, "") << sub;
    }
    setenv("tidalDS", "", 1);
    EXPECT_EQ(TkzGetLogPath(path, sizeof path), 3);
}

TEST_F(InstallPathTest, EachGetterAppendsItsDirectoryOnce) {
    char path[256];
    for (const char *root : {"/opt/tidal", "/opt/tidal/", "/opt/tidal//"}) {
        setenv("tidalDS", root, 1);
        for (auto [getter, sub] : kGetters) {
            ASSERT_EQ(getter(path, sizeof path), 0) << root << sub;
            EXPECT_EQ(std::string(path), std::string("/opt/tidal") + sub);
        }
    }
    setenv("tidalDS", "/", 1);
    ASSERT_EQ(TkzGetLogPath(path, sizeof path), 0);
    EXPECT_STREQ(path, "/log");
}

TEST_F(InstallPathTest, GetenvCopiesTheValueOrReportsItMissing) {
    char value[64];
    setenv("tidalDS", "/opt/tidal", 1);
    ASSERT_EQ(TkzGetenv("tidalDS", value, sizeof value), 0);
    EXPECT_STREQ(value, "/opt/tidal");
    unsetenv("tidalDS");
    EXPECT_EQ(TkzGetenv("tidalDS", value, sizeof value), 1);
}

// Every getter writes at most `size` bytes and terminates what it wrote.
TEST_F(InstallPathTest, GettersNeverWriteBeyondTheGivenSize) {
    TempDir dir;
    setProductVersionFile(dir.file("version"));
    writeFile(dir.file("version"), "1.5.0-17 build 2026\n");
    setenv("tidalDS", "/opt/a/rather/long/installation/directory", 1);

    const std::pair<const char *, std::function<int(char *, size_t)>> fillers[] = {
        {"LocalTime", TkzGetLocalTime},   {"FormatedTime", TkzGetFormatedTime},
        {"TimeZone", TkzGetTimeZone},     {"OSInfo", TkzGetOSInfo},
        {"HostName", TkzGetHostName},     {"ProductVersion", TkzGetProductVersion},
        {"LogPath", TkzGetLogPath},       {"GUIConfPath", TkzGetGUIConfPath},
        {"Getenv", [](char *b, size_t s) { return TkzGetenv("tidalDS", b, s); }}};
    for (const auto &[name, fill] : fillers) {
        char buffer[16];
        std::memset(buffer, 'Z', sizeof buffer);
        fill(buffer, 4);
        EXPECT_NE(std::memchr(buffer, '\0', 4), nullptr) << name;
        for (size_t i = 4; i < sizeof buffer; ++i) {
            EXPECT_EQ(buffer[i], 'Z') << name << " wrote byte " << i;
        }
        EXPECT_NE(fill(buffer, 0), 0) << name;
        EXPECT_NE(fill(nullptr, 16), 0) << name;
    }
    char small[8];
    EXPECT_EQ(TkzGetLogPath(small, sizeof small), 2);
    EXPECT_STREQ(small, "/opt/a/");
    restoreDefaultPaths();
}

TEST(LibraryTest, LoadsResolvesAndUnloads) {
    TKZ_LIBRARY library = TkzLoadLibrary("libm.so.6");
    ASSERT_NE(library, nullptr);
    auto cosine = reinterpret_cast<double (*)(double)>(TkzGetFuncAddress(library, "cos"));
    ASSERT_NE(cosine, nullptr);
    EXPECT_DOUBLE_EQ(cosine(0.0), 1.0);
    EXPECT_EQ(TkzGetFuncAddress(library, "no_such_symbol_here"), nullptr);
    EXPECT_EQ(TkzUnloadLibrary(library), 0);

    EXPECT_EQ(TkzLoadLibrary("/nonexistent/libnothing.so"), nullptr);
    EXPECT_EQ(TkzLoadLibrary(nullptr), nullptr);
}

}  // namespace
}  // namespace vex::platform::test

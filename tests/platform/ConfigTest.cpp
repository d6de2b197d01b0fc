// Configuration files, installation paths and the bounds of the getters that
// fill a caller's buffer.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"
#include "platform/TkzPaths.h"

namespace vex::platform::test {
namespace {

// Config files in a scratch directory; "tidalDS" put back afterwards.
class ConfigTest : public ::testing::Test {
protected:
    void SetUp() override {
        setRefreshIntervalFile(dir_.file("vexProvider.conf"));
        setProductVersionFile(dir_.file("tidalDS.conf"));
        const char *root = std::getenv("tidalDS");
        hadRoot_ = root != nullptr;
        oldRoot_ = hadRoot_ ? root : "";
    }
    void TearDown() override {
        restoreDefaultPaths();
        hadRoot_ ? setenv("tidalDS", oldRoot_.c_str(), 1) : unsetenv("tidalDS");
    }
    TempDir dir_;
    bool hadRoot_ = false;
    std::string oldRoot_;
};

TEST_F(ConfigTest, RefreshIntervalIsTheNumberAfterTheFirstEqualsOfTheFirstLine) {
    int interval = -1;
    EXPECT_EQ(TkzGetRefreshInterval(&interval), 1);  // no file
    EXPECT_EQ(interval, 0);

    const std::pair<std::string, int> cases[] = {
        {"RefreshInterval=30\n", 30}, {"interval = 45\n", 45}, {"x=12abc", 12}, {"a=b=7\n", 0},
        {"no equals sign\n", 0}, {"", 0}, {"\ninterval=5\n", 0},
        {std::string(510, 'k') + "=9\n", 9},   // '9' is the 512th character: read
        {std::string(511, 'k') + "=9\n", 0}};  // '9' is the 513th: not read
    for (const auto &[content, expected] : cases) {
        writeFile(dir_.file("vexProvider.conf"), content);
        interval = -1;
        EXPECT_EQ(TkzGetRefreshInterval(&interval), 0) << content;
        EXPECT_EQ(interval, expected) << content;
    }
}

TEST_F(ConfigTest, ProductVersionIsTheFirstLineWithoutItsEnd) {
    char version[64];
    EXPECT_EQ(TkzGetProductVersion(version, sizeof version), 1);
    writeFile(dir_.file("tidalDS.conf"), "1.5.0-17\r\nsecond line\n");
    ASSERT_EQ(TkzGetProductVersion(version, sizeof version), 0);
    EXPECT_STREQ(version, "1.5.0-17");
}

TEST_F(ConfigTest, InstallPathsNeedTidalDSAndAppendTheirDirectoryOnce) {
    const std::pair<int (*)(char *, size_t), const char *> getters[] = {
        {TkzGetLogPath, "/log"}, {TkzGetConfPath, "/conf"}, {TkzGetBinPath, "/bin"},
        {TkzGetLogInfoPath, "/loginfo"}, {TkzGetGUIConfPath, "/gui/conf"}};
    char path[256];
    unsetenv("tidalDS");
    for (auto [getter, sub] : getters) {
        EXPECT_EQ(getter(path, sizeof path), 3) << sub;
    }
    for (const char *root : {"/opt/tidal", "/opt/tidal/", "/opt/tidal//"}) {
        setenv("tidalDS", root, 1);
        for (auto [getter, sub] : getters) {
            ASSERT_EQ(getter(path, sizeof path), 0) << root << sub;
            EXPECT_EQ(std::string(path), std::string("/opt/tidal") + sub);
        }
    }
}

// Every getter writes at most `size` bytes and terminates what it wrote.
TEST_F(ConfigTest, GettersNeverWriteBeyondTheGivenSize) {
    writeFile(dir_.file("tidalDS.conf"), "1.5.0-17 build 2026\n");
    setenv("tidalDS", "/opt/a/rather/long/installation/directory", 1);
    using Getter = int (*)(char *, size_t);
    const Getter getters[] = {TkzGetLocalTime, TkzGetFormatedTime,   TkzGetTimeZone,
                              TkzGetOSInfo,    TkzGetHostName,       TkzGetProductVersion,
                              TkzGetLogPath,   TkzGetGUIConfPath};
    for (size_t i = 0; i < std::size(getters); ++i) {
        char buffer[16];
        std::memset(buffer, 'Z', sizeof buffer);
        getters[i](buffer, 4);
        EXPECT_NE(std::memchr(buffer, '\0', 4), nullptr) << "getter " << i;
        EXPECT_EQ(std::string(buffer + 4, sizeof buffer - 4), std::string(12, 'Z')) << "getter " << i;
    }
    char small[8];
    EXPECT_EQ(TkzGetLogPath(small, sizeof small), 2);
    EXPECT_STREQ(small, "/opt/a/");
}

}  // namespace
}  // namespace vex::platform::test

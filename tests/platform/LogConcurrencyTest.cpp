// Many threads initialising and logging at once: one init, whole lines.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

constexpr int kThreads = 8;
constexpr int kLinesPerThread = 150;

using LogConcurrencyTest = LogTest;

TEST_F(LogConcurrencyTest, ConcurrentWritersProduceWholeLinesInEachThreadsOrder) {
    switchLogOn();
    std::vector<std::thread> threads;
    std::vector<std::string> ids(kThreads);
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t, &ids] {
            ids[t] = logThreadId();
            TkzLogInit("SMIS");
            for (int i = 0; i < kLinesPerThread; ++i) {
                if (i % 2 == 0) {
                    TkzLogMsg(TKZ_LOG_DEBUG, "writer %d line %d", t, i);
                } else {
                    TkzTrace(("writer " + std::to_string(t) + " line " + std::to_string(i)).c_str());
                }
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }

    std::regex line(R"(^[0-9/]+ [0-9:]{8}\[SMIS------(.{8})\](\t:LOG_DEBUG::|  :LOG_INFO :: )writer ([0-9]+) line ([0-9]+)$)");
    std::map<int, int> nextLine;
    int inits = 0;
    auto lines = logLines();
    for (const std::string &text : lines) {
        if (text.find("######OSLIB Init Suucesazful#####") != std::string::npos) {
            ++inits;
            continue;
        }
        std::smatch m;
        ASSERT_TRUE(std::regex_match(text, m, line)) << text;
        int writer = std::stoi(m[3]);
        EXPECT_EQ(m[1].str(), ids[writer]);
        EXPECT_EQ(std::stoi(m[4]), nextLine[writer]++) << text;
    }
    EXPECT_EQ(inits, 1);
    EXPECT_EQ(lines.size(), static_cast<size_t>(kThreads * kLinesPerThread + 1));
}

}  // namespace
}  // namespace vex::platform::test

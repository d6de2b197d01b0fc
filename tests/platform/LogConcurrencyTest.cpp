// Many threads initialising and logging at once: one init, whole lines.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

constexpr int kThreads = 8;
constexpr int kLines = 150;  // per thread, logs and traces alternating

using LogConcurrencyTest = LogTest;

TEST_F(LogConcurrencyTest, ConcurrentWritersProduceWholeLinesInEachThreadsOrder) {
    switchLogOn();
    std::vector<std::thread> threads;
    std::vector<std::string> ids(kThreads);
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t, &ids] {
            ids[t] = logThreadId();
            TkzLogInit("SMIS");
            for (int i = 0; i < kLines; ++i) {
                std::string text = "writer " + std::to_string(t) + " line " + std::to_string(i);
                i % 2 == 0 ? TkzLogMsg(TKZ_LOG_DEBUG, "%s", text.c_str()) : TkzTrace(text.c_str());
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }

    auto lines = parsedLogLines();
    ASSERT_EQ(lines.size(), static_cast<size_t>(kThreads * kLines + 1));
    std::vector<int> next(kThreads, 0);
    int inits = 0;
    for (const LogLine &line : lines) {
        if (line.rest == "  :LOG_INFO :: ######OSLIB Init Suucesazful#####") {
            ++inits;
            continue;
        }
        int writer = -1, number = -1, used = 0;
        size_t body = line.rest.find("writer ");
        ASSERT_NE(body, std::string::npos) << line.rest;
        ASSERT_EQ(std::sscanf(line.rest.c_str() + body, "writer %d line %d%n", &writer, &number, &used), 2);
        ASSERT_TRUE(writer >= 0 && writer < kThreads && body + used == line.rest.size()) << line.rest;
        const char *word = number % 2 == 0 ? "\t:LOG_DEBUG::" : "  :LOG_INFO :: ";
        EXPECT_EQ(line.rest.substr(0, body), word);
        EXPECT_EQ(line.threadId, ids[writer]);
        EXPECT_EQ(number, next[writer]++) << line.rest;
    }
    EXPECT_EQ(inits, 1);
}

}  // namespace
}  // namespace vex::platform::test

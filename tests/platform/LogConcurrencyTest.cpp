// Many threads initialising and logging at once: one init, whole lines.
#include <gtest/gtest.h>

#include <map>
#include <cstdio>
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

    const std::string logWord = "\t:LOG_DEBUG::";
    const std::string traceWord = "  :LOG_INFO :: ";
    std::map<int, int> nextLine;
    int inits = 0;
    auto lines = logLines();
    for (const std::string &text : lines) {
        LogLine line;
        ASSERT_TRUE(parseLogLine(text, &line)) << text;
        EXPECT_EQ(line.tag, "SMIS------");
        if (line.rest == traceWord + "######OSLIB Init Suucesazful#####") {
            ++inits;
            continue;
        }
        bool isLog = line.rest.compare(0, logWord.size(), logWord) == 0;
        bool isTrace = line.rest.compare(0, traceWord.size(), traceWord) == 0;
        ASSERT_TRUE(isLog || isTrace) << text;
        std::string body = line.rest.substr(isLog ? logWord.size() : traceWord.size());
        int writer = -1;
        int number = -1;
        int consumed = 0;
        ASSERT_EQ(std::sscanf(body.c_str(), "writer %d line %d%n", &writer, &number, &consumed), 2) << text;
        ASSERT_EQ(static_cast<size_t>(consumed), body.size()) << text;
        ASSERT_TRUE(writer >= 0 && writer < kThreads) << text;
        EXPECT_EQ(isLog, number % 2 == 0) << text;
        EXPECT_EQ(line.threadId, ids[writer]);
        EXPECT_EQ(number, nextLine[writer]++) << text;
    }
    EXPECT_EQ(inits, 1);
    EXPECT_EQ(lines.size(), static_cast<size_t>(kThreads * kLinesPerThread + 1));
}

}  // namespace
}  // namespace vex::platform::test

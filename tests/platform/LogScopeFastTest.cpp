// One look at the log switch per answer: inside a scope, a line that found
// the log off keeps the scope's later lines from looking again; outside a
// scope, and with logging on, every line looks as before.
#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"
#include "platform/TkzLogScope.h"

namespace vex::platform::test {
namespace {

using LogScopeTest = LogTest;

TEST_F(LogScopeTest, LogSwitchedOnDuringAnAnswerStartsWithTheNext) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    {
        LogAnswerScope answer;
        TkzLogMsg(TKZ_LOG_DEBUG, "off");
        switchLogOn();
        TkzLogMsg(TKZ_LOG_DEBUG, "still off for this answer");
        TkzTrace("still off for this answer");
        {
            LogAnswerScope nested;
            TkzLogMsg(TKZ_LOG_DEBUG, "nested: still off");
        }
        // Another thread's answer looks for itself.
        std::thread([] {
            LogAnswerScope other;
            TkzLogMsg(TKZ_LOG_DEBUG, "other thread");
        }).join();
        EXPECT_EQ(logLines().size(), 1u);
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "next answer");
    EXPECT_EQ(logLines().size(), 2u);
}

TEST_F(LogScopeTest, WithLoggingOnEveryLineOfAnAnswerLooks) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    LogAnswerScope answer;
    TkzLogMsg(TKZ_LOG_DEBUG, "one");
    std::filesystem::remove(logFile());
    TkzLogMsg(TKZ_LOG_DEBUG, "lost");
    switchLogOn();
    TkzLogMsg(TKZ_LOG_DEBUG, "lost: the answer saw the log off");
    EXPECT_TRUE(logLines().empty());
}

}  // namespace
}  // namespace vex::platform::test

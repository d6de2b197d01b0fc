/*
 * The process's logging state, shared by TkzLogInit, TkzLogMsg and TkzTrace.
 * Internal to the provider (not exported).
 *
 * g_LogMutex is created once and then lives as long as the process. LOGInit
 * and g_LogMsg are read and written only while g_LogMutex is held.
 */
#ifndef VEX_PLATFORM_TKZLOGSTATE_H
#define VEX_PLATFORM_TKZLOGSTATE_H

#include <atomic>
#include <cstddef>

#include "platform/Tkz.h"

namespace vex::platform {

// g_LogMsg: the log file's path in the first part, the component name after it.
constexpr std::size_t kLogMsgSize = 768;
constexpr std::size_t kLogPathSize = 512;
constexpr std::size_t kLogComponentSize = kLogMsgSize - kLogPathSize;

// The log stops growing once the file is larger than this many bytes.
constexpr unsigned long long kLogSizeLimit = 10485759ULL;

extern std::atomic<int> LOGInit;          // 1 once TkzLogInit has succeeded
extern std::atomic<TKZ_MUTEX> g_LogMutex; // serialises every log and trace line
extern char *g_LogMsg;                    // kLogMsgSize bytes, or null

inline const char *logFilePath() { return g_LogMsg; }
inline const char *logComponent() { return g_LogMsg + kLogPathSize; }

// Holds g_LogMutex for its lifetime; held() is false when there is no mutex
// yet or locking failed.
class LogLock {
public:
    LogLock();
    ~LogLock();
    LogLock(const LogLock &) = delete;
    LogLock &operator=(const LogLock &) = delete;
    bool held() const { return held_; }

private:
    TKZ_MUTEX mutex_;
    bool held_;
};

// For unit tests only: forgets a previous TkzLogInit (frees the buffer and
// clears LOGInit) so that the next TkzLogInit starts afresh. The mutex stays.
void resetLogStateForTesting();

}  // namespace vex::platform

#endif  // VEX_PLATFORM_TKZLOGSTATE_H

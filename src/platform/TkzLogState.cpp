#include "platform/TkzLogState.h"

namespace vex::platform {

std::atomic<int> LOGInit{0};
std::atomic<TKZ_MUTEX> g_LogMutex{nullptr};
char *g_LogMsg = nullptr;

LogLock::LogLock()
    : mutex_(g_LogMutex.load(std::memory_order_acquire)), held_(TkzMutexLock(mutex_) == 0) {}

LogLock::~LogLock() {
    if (held_) {
        TkzMutexUnlock(mutex_);
    }
}

}  // namespace vex::platform

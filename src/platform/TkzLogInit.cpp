/* Opening and closing the provider's log: TkzLogInit and TkzLogUninit. */
#include <cstdio>
#include <cstring>
#include <mutex>
#include <new>
#include <string>

#include "platform/Tkz.h"
#include "platform/TkzLogState.h"
#include "platform/TkzPaths.h"

namespace vex::platform {
namespace {

constexpr int kStatusNoMutex = 1;
constexpr int kStatusNoMemory = 2;
constexpr int kStatusBadComponent = 3;

// Serialises TkzLogInit with itself and with the test reset.
std::mutex &initGuard() {
    static std::mutex guard;
    return guard;
}

bool ensureLogMutex() {
    if (g_LogMutex.load(std::memory_order_acquire) != nullptr) {
        return true;
    }
    TKZ_MUTEX mutex = TkzMutexInit();
    if (mutex == nullptr) {
        return false;
    }
    g_LogMutex.store(mutex, std::memory_order_release);
    return true;
}

// Writes "<dir>[/]<component>.txt" and the component into buffer.
int composeLogMsg(char *buffer, const char *component) {
    std::string dir;
    try {
        dir = logDirectory();
    } catch (...) {
        return kStatusNoMemory;
    }
    if (std::strlen(component) >= kLogComponentSize) {
        return kStatusBadComponent;
    }
    std::snprintf(buffer + kLogPathSize, kLogComponentSize, "%s", component);
    const char *slash = (!dir.empty() && dir.back() == '/') ? "" : "/";
    int n = std::snprintf(buffer, kLogPathSize, "%s%s%s.txt", dir.c_str(), slash, component);
    return (n < 0 || static_cast<std::size_t>(n) >= kLogPathSize) ? kStatusBadComponent : 0;
}

int initialiseUnderGuard(const char *component) {
    if (LOGInit.load() != 0) {
        return 0;
    }
    if (!ensureLogMutex()) {
        return kStatusNoMutex;
    }
    if (component == nullptr) {
        return kStatusBadComponent;
    }
    LogLock lock;
    if (!lock.held()) {
        return kStatusNoMutex;
    }
    char *buffer = new (std::nothrow) char[kLogMsgSize]();
    if (buffer == nullptr) {
        return kStatusNoMemory;
    }
    int rc = composeLogMsg(buffer, component);
    if (rc != 0) {
        delete[] buffer;
        return rc;
    }
    g_LogMsg = buffer;
    LOGInit.store(1);
    return 0;
}

void releaseLogMsg() {
    delete[] g_LogMsg;
    g_LogMsg = nullptr;
}

}  // namespace

void resetLogStateForTesting() {
    std::lock_guard<std::mutex> guard(initGuard());
    LogLock lock;
    releaseLogMsg();
    LOGInit.store(0);
}

}  // namespace vex::platform

using namespace vex::platform;

extern "C" int TkzLogInit(const char *component) {
    bool fresh = false;
    int rc;
    {
        std::lock_guard<std::mutex> guard(initGuard());
        fresh = (LOGInit.load() == 0);
        rc = initialiseUnderGuard(component);
    }
    if (fresh && rc == 0) {
        TkzTrace("######OSLIB Init Suucesazful#####");
    }
    return rc;
}

// The buffer goes; LOGInit stays, so later lines are dropped and a later
// TkzLogInit does not open the log again.
extern "C" void TkzLogUninit(void) {
    LogLock lock;
    if (lock.held()) {
        releaseLogMsg();
    }
}

// The poll loop that the listener path replaced. Nothing starts it; it is
// kept working for a site that wants the controllers' own events polled.
#include <storlib/StorLib.h>

#include "controller/VexFSAInterface.h"
#include "events/FsaIfEventManager.h"

namespace vex::cim::fwf {

namespace {

constexpr int kDefaultInterval = 5;
constexpr std::uint32_t kConfigChangeEvent = 0x8000;

bool ignoredEvent(std::uint32_t type) {
    static constexpr std::uint32_t kIgnored[] = {1,        2,        16,       64,        128,       512,
                                                 1024,     2048,     0x10000,  0x80000,   0x100000,  0x400000,
                                                 0x800000, 0x1000000, 0x2000000, 0x8000000, 0x80000000};
    for (std::uint32_t ignored : kIgnored) {
        if (type == ignored) {
            return true;
        }
    }
    return false;
}

}  // namespace

void FsaIfEventManager::pollForEvent() {
    int interval = 0;
    if (TkzGetRefreshInterval(&interval) != 0) {
        TkzLogMsg(TKZ_LOG_ERROR, "Cache Refresh Config File Not found or in Wrong Format");
        interval = kDefaultInterval;
    }
    while (isCallBackValid() && !flagTermThread.load()) {
        TkzSleep(1);
        uPollEvent event{};
        bool due = false;
        try {
            due = forceCacheUpdate(event, interval);
        } catch (...) {
            due = false;
        }
        if (due) {
            if (m_eventProcessorMutex != nullptr) {
                TkzMutexLock(m_eventProcessorMutex);
            }
            invokeCallBack(event);
            if (m_eventProcessorMutex != nullptr) {
                TkzMutexUnlock(m_eventProcessorMutex);
            }
        }
    }
}

// Throws 21 when the controller library is missing.
bool FsaIfEventManager::forceCacheUpdate(uPollEvent& event, int interval) {
    if (std::time(nullptr) - m_lastUpdateTime.load() < interval) {
        return false;
    }
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    TKZ_MUTEX guard = VexFSAInterface::getStorlibGuard();
    TkzMutexLock(guard);
    storlib::StorLib* library = fsa != nullptr ? fsa->getStorLib() : nullptr;
    if (library == nullptr) {
        TkzMutexUnlock(guard);
        throw static_cast<unsigned int>(21);
    }
    const unsigned long controllers = library->getNumAdapters();
    for (unsigned long i = 0; i < controllers; ++i) {
        storlib::StorEventCollection events;
        library->getEvents(static_cast<std::uint32_t>(i), events);
        for (const storlib::StorEvent& e : events) {
            if (e.getType() == kConfigChangeEvent) {
                event.EventType |= FSA_POLL_CONFIG_CHANGE;
            } else if (!ignoredEvent(e.getType())) {
                event.EventType |= FSA_POLL_REFRESH;
            }
        }
    }
    TkzMutexUnlock(guard);
    return event.EventType != 0;
}

}  // namespace vex::cim::fwf

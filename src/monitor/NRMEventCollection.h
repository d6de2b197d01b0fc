// NRMEventCollection: the bounded queue of monitor events between the monitor
// thread (adds) and the event listener thread (drains). Each accepted event
// is also written as one line of the events log.
#ifndef VEX_MONITOR_NRMEVENTCOLLECTION_H
#define VEX_MONITOR_NRMEVENTCOLLECTION_H

#include <atomic>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

#include "monitor/NRMEvent.h"

namespace vex::monitor {

// The lock object of the collection.
class NRMLocker {
public:
    void lock() { m_mutex.lock(); }
    void unlock() { m_mutex.unlock(); }

private:
    std::mutex m_mutex;
};

class NRMEventCollection {
public:
    static constexpr int kOverloadCode = 200;
    static constexpr const char* kOverloadText = "NRM Event queue overload. Discarding events.";
    static constexpr std::size_t kSmallestMaxSize = 201;

    NRMEventCollection(std::string eventsLogPath, std::size_t maxSize, int typeLevel);

    // Queues a copy of event unless its type is above the type level; a full
    // queue first loses its oldest tenth (at least one) and reports the
    // overload in place of the oldest record left.
    void addEvent(const NRMEvent& event);

    std::size_t getNumberOfEvents();
    // Removes and returns the oldest n (all) records, oldest first.
    std::vector<NRMEvent> getEvents(std::size_t n);
    std::vector<NRMEvent> getAllEvents();
    // Removes the n oldest records; 0 or more than queued: all.
    void flushEvents(std::size_t n);

    // Below kSmallestMaxSize or unchanged: ignored.
    void setMaxSize(std::size_t n);
    std::size_t getMaxSize();
    void setEventTypeLevel(int level);

    // The event's line in the debug log.
    void printEvent(const NRMEvent& event);

private:
    std::string m_eventsLog;
    std::deque<NRMEvent> m_events;
    std::size_t m_maxSize;
    std::atomic<int> m_typeLevel;
    NRMLocker m_lock;
};

}  // namespace vex::monitor

#endif

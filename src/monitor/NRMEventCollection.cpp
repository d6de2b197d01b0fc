#include "monitor/NRMEventCollection.h"

#include <algorithm>
#include <utility>

#include "monitor/MonitorFiles.h"

namespace vex::monitor {

NRMEventCollection::NRMEventCollection(std::string eventsLogPath, std::size_t maxSize, int typeLevel)
    : m_eventsLog(std::move(eventsLogPath)), m_maxSize(std::max<std::size_t>(maxSize, 1)),
      m_typeLevel(typeLevel) {}

void NRMEventCollection::addEvent(const NRMEvent& event) {
    if (event.getType() > m_typeLevel) {
        nrmDebug(NRM_DEBUG_EVENTS, "Event not queued (type %d): %s", event.getType(), event.toString().c_str());
        return;
    }
    std::lock_guard<NRMLocker> guard(m_lock);
    if (m_events.size() >= m_maxSize) {
        const std::size_t tenth = m_maxSize / 10;
        const std::size_t discard = tenth > 1 ? tenth - 1 : 1;
        m_events.erase(m_events.begin(), m_events.begin() + static_cast<long>(std::min(discard, m_events.size())));
        if (!m_events.empty()) {
            NRMEvent& head = m_events.front();
            head.setCode(kOverloadCode);
            head.setType(NRM_EVENT_WARNING);
            head.setDescription(kOverloadText);
        }
    }
    m_events.push_back(event);
    appendLogLine(m_eventsLog, event.toString());
}

std::size_t NRMEventCollection::getNumberOfEvents() {
    std::lock_guard<NRMLocker> guard(m_lock);
    return m_events.size();
}

std::vector<NRMEvent> NRMEventCollection::getEvents(std::size_t n) {
    std::lock_guard<NRMLocker> guard(m_lock);
    const std::size_t count = std::min(n, m_events.size());
    std::vector<NRMEvent> out(m_events.begin(), m_events.begin() + static_cast<long>(count));
    m_events.erase(m_events.begin(), m_events.begin() + static_cast<long>(count));
    return out;
}

std::vector<NRMEvent> NRMEventCollection::getAllEvents() { return getEvents(static_cast<std::size_t>(-1)); }

void NRMEventCollection::flushEvents(std::size_t n) {
    std::lock_guard<NRMLocker> guard(m_lock);
    if (n == 0 || n >= m_events.size()) {
        m_events.clear();
        return;
    }
    m_events.erase(m_events.begin(), m_events.begin() + static_cast<long>(n));
}

void NRMEventCollection::setMaxSize(std::size_t n) {
    std::lock_guard<NRMLocker> guard(m_lock);
    if (n < kSmallestMaxSize || n == m_maxSize) {
        return;
    }
    m_maxSize = n;
}

std::size_t NRMEventCollection::getMaxSize() {
    std::lock_guard<NRMLocker> guard(m_lock);
    return m_maxSize;
}

void NRMEventCollection::setEventTypeLevel(int level) {
    std::lock_guard<NRMLocker> guard(m_lock);
    m_typeLevel = level;
}

void NRMEventCollection::printEvent(const NRMEvent& event) {
    nrmDebug(~0U, "%s", event.toString().c_str());
}

}  // namespace vex::monitor

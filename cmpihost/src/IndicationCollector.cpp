#include "cmpihost/IndicationCollector.h"

namespace cmpihost {

bool IndicationCollector::waitFor(std::size_t count, std::chrono::milliseconds timeout) const {
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_arrived.wait_for(lock, timeout, [&] { return m_received.size() >= count; });
}

std::size_t IndicationCollector::count() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_received.size();
}

std::vector<DeliveredIndication> IndicationCollector::all() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_received;
}

void IndicationCollector::clear() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_received.clear();
}

void IndicationCollector::setAnswer(CMPIrc rc) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_answer = rc;
}

CMPIrc IndicationCollector::deliver(DeliveredIndication indication) {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_answer == CMPI_RC_OK) {
        m_received.push_back(std::move(indication));
        m_arrived.notify_all();
    }
    return m_answer;
}

}  // namespace cmpihost

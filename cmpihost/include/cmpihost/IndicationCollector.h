// IndicationCollector: receives what a provider hands to the broker's
// deliverIndication, from any thread, and lets a test wait for it.
#ifndef CMPIHOST_INDICATIONCOLLECTOR_H
#define CMPIHOST_INDICATIONCOLLECTOR_H

#include <cmpidt.h>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "cmpihost/Instance.h"

namespace cmpihost {

struct DeliveredIndication {
    std::string nameSpace;
    Instance indication;
    std::thread::id thread;
    // The delivering thread was a request thread or had called attachThread.
    bool attached = false;
};

class IndicationCollector {
public:
    // Waits until at least count indications have arrived; false on timeout.
    bool waitFor(std::size_t count, std::chrono::milliseconds timeout) const;
    std::size_t count() const;
    std::vector<DeliveredIndication> all() const;
    void clear();
    // What deliverIndication answers from now on; an indication answered
    // with anything but CMPI_RC_OK is not kept.
    void setAnswer(CMPIrc rc);

    // Called by the broker; returns the answer.
    CMPIrc deliver(DeliveredIndication indication);

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_arrived;
    std::vector<DeliveredIndication> m_received;
    CMPIrc m_answer = CMPI_RC_OK;
};

}  // namespace cmpihost

#endif

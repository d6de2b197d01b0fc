// Broker: the host's CMPI broker - the CMPIBroker handle given to the
// provider, the host's environment behind it (principal, class hierarchy,
// repository, indication collector, up-call log) and the arenas that own
// what it makes.
#ifndef CMPIHOST_SRC_BROKER_H
#define CMPIHOST_SRC_BROKER_H

#include <cmpift.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Arena.h"
#include "Object.h"
#include "cmpihost/ClassHierarchy.h"
#include "cmpihost/HostConfig.h"
#include "cmpihost/IndicationCollector.h"
#include "cmpihost/InstanceRepository.h"
#include "cmpihost/Upcall.h"

namespace cmpihost::detail {

class Broker {
public:
    explicit Broker(const HostConfig& config);
    ~Broker();
    Broker(const Broker&) = delete;
    Broker& operator=(const Broker&) = delete;

    // The Broker behind a CMPIBroker handle; null for NULL or hollow ones.
    static Broker* of(const CMPIBroker* mb);
    const CMPIBroker* handle() const { return &m_face; }
    std::uint64_t id() const { return m_id; }

    Flavor flavor() const { return m_config.flavor; }
    bool keepKeyTypes() const { return m_config.keepKeyTypes; }
    Principal principal() const;
    void setPrincipal(Principal principal);

    ClassHierarchy& classes() { return m_classes; }
    InstanceRepository& repository() { return m_repository; }
    IndicationCollector& indications() { return m_indications; }
    void recordUpcall(const char* function, ObjectPath path = {});
    std::vector<Upcall> upcalls() const;
    void clearUpcalls();

    // A new object owned by the calling thread's arena (request or
    // attachment), or by the host when the thread has none.
    template <class T, class... A>
    T* make(A&&... args) {
        T* object = new T(*this, std::forward<A>(args)...);
        arena().adopt(object);
        return object;
    }
    // A new object owned by the host until released (clones, prepared
    // contexts).
    template <class T, class... A>
    T* makeHostOwned(A&&... args) {
        T* object = new T(*this, std::forward<A>(args)...);
        m_hostArena.adopt(object);
        return object;
    }
    Arena& arena();
    Arena& hostArena() { return m_hostArena; }

    void objectCreated() { m_live.fetch_add(1, std::memory_order_relaxed); }
    void objectDestroyed() { m_live.fetch_sub(1, std::memory_order_relaxed); }
    std::size_t liveObjects() const { return m_live.load(std::memory_order_relaxed); }

    // attachThread / detachThread. A request thread counts as attached
    // already; a provider thread gets an arena of its own until it detaches.
    void attachThisThread();
    bool detachThisThread();
    bool thisThreadAttached() const { return Arena::current(m_id) != nullptr; }

private:
    struct Attachment {
        std::unique_ptr<Arena> arena;
        int depth = 0;
    };

    const HostConfig m_config;
    const std::uint64_t m_id;
    CMPIBroker m_face;

    mutable std::mutex m_mutex;  // principal and up-call log
    Principal m_principal;
    std::vector<Upcall> m_upcalls;

    ClassHierarchy m_classes;
    InstanceRepository m_repository;
    IndicationCollector m_indications;

    // Declared before the arenas: objects report to it while arenas die.
    std::atomic<std::size_t> m_live{0};
    Arena m_hostArena;
    std::mutex m_attachMutex;
    std::unordered_map<std::thread::id, Attachment> m_attached;
};

}  // namespace cmpihost::detail

#endif

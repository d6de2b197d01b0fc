#include "Broker.h"

#include "BrokerTables.h"

namespace cmpihost::detail {

namespace {
std::atomic<std::uint64_t> g_nextBrokerId{1};
}

Broker::Broker(const HostConfig& config)
    : m_config(config),
      m_id(g_nextBrokerId.fetch_add(1)),
      m_principal(config.principal),
      m_hostArena(m_id) {
    m_face.hdl = this;
    m_face.bft = brokerServices(config.flavor);
    m_face.eft = brokerFactories(config.flavor);
    m_face.xft = brokerThreads(config.flavor);
    m_face.mft = brokerMemory(config.flavor);
}

Broker::~Broker() {
    std::lock_guard<std::mutex> lock(m_attachMutex);
    m_attached.clear();
}

Broker* Broker::of(const CMPIBroker* mb) {
    return mb != nullptr ? static_cast<Broker*>(mb->hdl) : nullptr;
}

Principal Broker::principal() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_principal;
}

void Broker::setPrincipal(Principal principal) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_principal = std::move(principal);
}

void Broker::recordUpcall(const char* function, ObjectPath path) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_upcalls.push_back(Upcall{function, std::move(path)});
}

std::vector<Upcall> Broker::upcalls() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_upcalls;
}

void Broker::clearUpcalls() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_upcalls.clear();
}

Arena& Broker::arena() {
    Arena* current = Arena::current(m_id);
    return current != nullptr ? *current : m_hostArena;
}

void Broker::attachThisThread() {
    std::lock_guard<std::mutex> lock(m_attachMutex);
    auto it = m_attached.find(std::this_thread::get_id());
    if (it != m_attached.end()) {
        ++it->second.depth;
        return;
    }
    if (thisThreadAttached()) {
        return;  // a request thread
    }
    Attachment& a = m_attached[std::this_thread::get_id()];
    a.arena = std::make_unique<Arena>(m_id);
    a.depth = 1;
    Arena::setCurrent(a.arena.get());
}

bool Broker::detachThisThread() {
    std::unique_ptr<Arena> finished;
    {
        std::lock_guard<std::mutex> lock(m_attachMutex);
        auto it = m_attached.find(std::this_thread::get_id());
        if (it == m_attached.end()) {
            return thisThreadAttached();  // a request thread stays as it is
        }
        if (--it->second.depth > 0) {
            return true;
        }
        finished = std::move(it->second.arena);
        m_attached.erase(it);
    }
    Arena::setCurrent(nullptr);
    return true;
}

}  // namespace cmpihost::detail

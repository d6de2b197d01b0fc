// Arena: owner of the CMPI objects made during one request, one thread
// attachment, or the host's whole life. Destroying an arena deletes what it
// still holds. Thread-safe: a provider may make or release objects of one
// request from several threads.
//
// Each thread has a current arena per broker (set by ArenaScope for a
// request, by attachThread for a provider thread); objects made on a thread
// without one go to the host's own arena.
#ifndef CMPIHOST_SRC_ARENA_H
#define CMPIHOST_SRC_ARENA_H

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <unordered_map>

namespace cmpihost::detail {

class Object;

class Arena {
public:
    explicit Arena(std::uint64_t brokerId) : m_brokerId(brokerId) {}
    ~Arena();
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    void adopt(Object* object);
    // Deletes the object if this arena holds it; false otherwise.
    bool destroy(Object* object);
    // Deletes every object made after the given mark (see mark()).
    void destroyAfter(std::uint64_t mark);
    std::uint64_t mark() const;
    std::size_t size() const;
    std::uint64_t brokerId() const { return m_brokerId; }

    // The calling thread's arena for the given broker, or null. The slot
    // keeps the broker's id beside the pointer, so a stale pointer of a
    // destroyed host is never followed.
    struct Slot {
        Arena* arena = nullptr;
        std::uint64_t brokerId = 0;
    };
    static Arena* current(std::uint64_t brokerId);
    static void setCurrent(Arena* arena);
    static Slot slot();
    static void restore(Slot slot);

private:
    const std::uint64_t m_brokerId;
    mutable std::mutex m_mutex;
    std::uint64_t m_sequence = 0;
    std::unordered_map<Object*, std::uint64_t> m_objects;  // object -> sequence number
};

// Makes an arena the calling thread's current one for its lifetime.
class ArenaScope {
public:
    explicit ArenaScope(Arena& arena) : m_previous(Arena::slot()) { Arena::setCurrent(&arena); }
    ~ArenaScope() { Arena::restore(m_previous); }
    ArenaScope(const ArenaScope&) = delete;
    ArenaScope& operator=(const ArenaScope&) = delete;

private:
    Arena::Slot m_previous;
};

}  // namespace cmpihost::detail

#endif

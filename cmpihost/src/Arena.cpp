#include "Arena.h"

#include <vector>

#include "Object.h"

namespace cmpihost::detail {

namespace {
thread_local Arena::Slot t_current;
}

Arena::~Arena() {
    std::unordered_map<Object*, std::uint64_t> objects;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        objects.swap(m_objects);
    }
    for (auto& entry : objects) {
        delete entry.first;
    }
}

void Arena::adopt(Object* object) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_objects.emplace(object, ++m_sequence);
    object->setArena(this);
}

bool Arena::destroy(Object* object) {
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_objects.erase(object) == 0) {
            return false;
        }
    }
    delete object;
    return true;
}

void Arena::destroyAfter(std::uint64_t mark) {
    std::vector<Object*> doomed;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (auto it = m_objects.begin(); it != m_objects.end();) {
            if (it->second > mark) {
                doomed.push_back(it->first);
                it = m_objects.erase(it);
            } else {
                ++it;
            }
        }
    }
    for (Object* o : doomed) {
        delete o;
    }
}

std::uint64_t Arena::mark() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_sequence;
}

std::size_t Arena::size() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_objects.size();
}

Arena* Arena::current(std::uint64_t brokerId) {
    return t_current.brokerId == brokerId ? t_current.arena : nullptr;
}

void Arena::setCurrent(Arena* arena) {
    t_current = Slot{arena, arena != nullptr ? arena->m_brokerId : 0};
}

Arena::Slot Arena::slot() { return t_current; }

void Arena::restore(Slot slot) { t_current = slot; }

}  // namespace cmpihost::detail

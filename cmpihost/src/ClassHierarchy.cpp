#include "cmpihost/ClassHierarchy.h"

#include "NameCompare.h"

namespace cmpihost {

void ClassHierarchy::add(const std::string& className, const std::string& superClass) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_super[detail::lowerName(className)] = superClass;
}

void ClassHierarchy::clear() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_super.clear();
}

std::optional<std::string> ClassHierarchy::superClassOf(const std::string& className) const {
    std::lock_guard<std::mutex> lock(m_mutex);
    auto it = m_super.find(detail::lowerName(className));
    if (it == m_super.end()) {
        return std::nullopt;
    }
    return it->second;
}

bool ClassHierarchy::isA(const std::string& className, const std::string& ancestor) const {
    std::string current = className;
    // The bound guards against a cycle in what a test registered.
    for (int depth = 0; depth < 64; ++depth) {
        if (detail::equalNames(current, ancestor)) {
            return true;
        }
        std::optional<std::string> parent = superClassOf(current);
        if (!parent) {
            return false;
        }
        current = *parent;
    }
    return false;
}

}  // namespace cmpihost

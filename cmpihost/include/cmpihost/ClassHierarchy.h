// ClassHierarchy: the class -> superclass relation the broker answers
// classPathIsA from. Class names compare case-insensitively; a class not
// listed has no superclass (it is only "a" itself). Thread-safe.
#ifndef CMPIHOST_CLASSHIERARCHY_H
#define CMPIHOST_CLASSHIERARCHY_H

#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace cmpihost {

class ClassHierarchy {
public:
    void add(const std::string& className, const std::string& superClass);
    void clear();

    std::optional<std::string> superClassOf(const std::string& className) const;
    // True when className is ancestor or derives from it.
    bool isA(const std::string& className, const std::string& ancestor) const;

private:
    mutable std::mutex m_mutex;
    std::map<std::string, std::string> m_super;  // lower-case child -> superclass as given
};

}  // namespace cmpihost

#endif

// ObjectPath: host-side copy of a CMPI object path - host, namespace,
// class name and key bindings in the order they were added.
#ifndef CMPIHOST_OBJECTPATH_H
#define CMPIHOST_OBJECTPATH_H

#include <string>

#include "cmpihost/Value.h"

namespace cmpihost {

struct ObjectPath {
    std::string host;
    std::string nameSpace;
    std::string className;
    NamedValues keys;

    ObjectPath() = default;
    ObjectPath(std::string ns, std::string cls, NamedValues k = {})
        : nameSpace(std::move(ns)), className(std::move(cls)), keys(std::move(k)) {}

    // Case-insensitive; null when there is no such key.
    const Value* key(const std::string& name) const { return findNamed(keys, name); }
    ObjectPath& addKey(const std::string& name, Value value);

    // "//host/ns:Class.Key=\"v\",Num=5"; the host part only when set, the
    // namespace part only when set.
    std::string toString() const;

    // Exact comparison of every field, keys in order.
    bool operator==(const ObjectPath& o) const;
    bool operator!=(const ObjectPath& o) const { return !(*this == o); }
};

}  // namespace cmpihost

#endif

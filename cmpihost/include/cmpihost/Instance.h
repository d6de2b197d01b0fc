// Instance: host-side copy of a CMPI instance - its object path (class,
// namespace, keys) and its properties in the order they were first set.
#ifndef CMPIHOST_INSTANCE_H
#define CMPIHOST_INSTANCE_H

#include <string>

#include "cmpihost/ObjectPath.h"
#include "cmpihost/Value.h"

namespace cmpihost {

struct Instance {
    ObjectPath path;
    NamedValues properties;

    Instance() = default;
    explicit Instance(ObjectPath p, NamedValues props = {})
        : path(std::move(p)), properties(std::move(props)) {}

    const std::string& className() const { return path.className; }
    const std::string& nameSpace() const { return path.nameSpace; }

    // Case-insensitive; null when the instance has no such property.
    const Value* property(const std::string& name) const { return findNamed(properties, name); }
    Instance& set(const std::string& name, Value value);

    bool operator==(const Instance& o) const { return path == o.path && properties == o.properties; }
    bool operator!=(const Instance& o) const { return !(*this == o); }
};

}  // namespace cmpihost

#endif

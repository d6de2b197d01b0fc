// EnumerationObject: CMPIEnumeration over values (object paths or
// instances) the broker answers an up-call with.
#ifndef CMPIHOST_SRC_ENUMERATIONOBJECT_H
#define CMPIHOST_SRC_ENUMERATIONOBJECT_H

#include <atomic>
#include <cstddef>
#include <vector>

#include "Object.h"
#include "cmpihost/Value.h"

namespace cmpihost::detail {

class EnumerationObject final : public Object {
public:
    EnumerationObject(Broker& broker, CMPIType elementType, std::vector<Value> items);
    const char* typeName() const override { return "CMPIEnumeration"; }

    CMPIEnumeration* handle() { return &m_face; }
    CMPIType elementType() const { return m_type; }
    const std::vector<Value>& items() const { return m_items; }
    // The next item's index, advancing; items().size() once exhausted.
    std::size_t take();
    bool hasMore() const { return m_next.load() < m_items.size(); }
    static bool ownsTable(const void* ft);

private:
    CMPIEnumeration m_face;
    CMPIType m_type;
    std::vector<Value> m_items;
    std::atomic<std::size_t> m_next{0};
};

}  // namespace cmpihost::detail

#endif

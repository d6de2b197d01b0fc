// ArrayObject: CMPIArray - a fixed number of elements of one type, each of
// which may be null. Elements are deep copies.
#ifndef CMPIHOST_SRC_ARRAYOBJECT_H
#define CMPIHOST_SRC_ARRAYOBJECT_H

#include <vector>

#include "Object.h"
#include "cmpihost/Value.h"

namespace cmpihost::detail {

class ArrayObject final : public Object {
public:
    ArrayObject(Broker& broker, CMPIType elementType, std::vector<Value> elements);
    const char* typeName() const override { return "CMPIArray"; }
    std::string describe() const override { return toValue().toString(); }

    CMPIArray* handle() { return &m_face; }
    CMPIType elementType() const { return m_type; }
    std::vector<Value>& elements() { return m_elements; }
    Value toValue() const { return Value::array(m_type, m_elements); }
    static bool ownsTable(const void* ft);

private:
    CMPIArray m_face;
    CMPIType m_type;
    std::vector<Value> m_elements;
};

}  // namespace cmpihost::detail

#endif

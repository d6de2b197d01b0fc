// DateTimeObject: CMPIDateTime.
#ifndef CMPIHOST_SRC_DATETIMEOBJECT_H
#define CMPIHOST_SRC_DATETIMEOBJECT_H

#include "Object.h"
#include "cmpihost/DateTime.h"

namespace cmpihost::detail {

class DateTimeObject final : public Object {
public:
    DateTimeObject(Broker& broker, DateTime value);
    const char* typeName() const override { return "CMPIDateTime"; }
    std::string describe() const override { return m_value.text(); }

    CMPIDateTime* handle() { return &m_face; }
    const DateTime& value() const { return m_value; }
    static bool ownsTable(const void* ft);

private:
    CMPIDateTime m_face;
    DateTime m_value;
};

}  // namespace cmpihost::detail

#endif

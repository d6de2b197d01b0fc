// ErrorObject: CMPIError (CMPI 2.0 extended error), one getter and setter
// per CIM_Error property.
#ifndef CMPIHOST_SRC_ERROROBJECT_H
#define CMPIHOST_SRC_ERROROBJECT_H

#include "Object.h"
#include "cmpihost/ErrorInfo.h"

namespace cmpihost::detail {

class ErrorObject final : public Object {
public:
    ErrorObject(Broker& broker, ErrorInfo info);
    const char* typeName() const override { return "CMPIError"; }
    std::string describe() const override { return m_info.message; }

    CMPIError* handle() { return &m_face; }
    ErrorInfo& info() { return m_info; }
    static bool ownsTable(const void* ft);

private:
    CMPIError m_face;
    ErrorInfo m_info;
};

}  // namespace cmpihost::detail

#endif

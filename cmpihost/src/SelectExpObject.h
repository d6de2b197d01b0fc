// SelectExpObject: CMPISelectExp - an indication filter's query. The host
// does not evaluate queries: evaluate and the condition accessors answer
// CMPI_RC_ERR_NOT_SUPPORTED; getString gives the query back.
#ifndef CMPIHOST_SRC_SELECTEXPOBJECT_H
#define CMPIHOST_SRC_SELECTEXPOBJECT_H

#include <string>

#include "Object.h"

namespace cmpihost::detail {

class SelectExpObject final : public Object {
public:
    SelectExpObject(Broker& broker, std::string query, std::string language);
    const char* typeName() const override { return "CMPISelectExp"; }
    std::string describe() const override { return m_query; }

    CMPISelectExp* handle() { return &m_face; }
    const std::string& query() const { return m_query; }
    const std::string& language() const { return m_language; }
    static bool ownsTable(const void* ft);

private:
    CMPISelectExp m_face;
    std::string m_query;
    std::string m_language;
};

}  // namespace cmpihost::detail

#endif

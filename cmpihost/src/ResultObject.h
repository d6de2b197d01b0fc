// ResultObject: CMPIResult of one request. Whatever the provider returns is
// converted to host values at once, into the request's Response.
#ifndef CMPIHOST_SRC_RESULTOBJECT_H
#define CMPIHOST_SRC_RESULTOBJECT_H

#include <mutex>

#include "Object.h"
#include "cmpihost/Response.h"

namespace cmpihost::detail {

class ResultObject final : public Object {
public:
    ResultObject(Broker& broker, Response& response);
    const char* typeName() const override { return "CMPIResult"; }

    CMPIResult* handle() { return &m_face; }
    static bool ownsTable(const void* ft);

    void addData(Value v);
    void addInstance(Instance i);
    void addPath(ObjectPath p);
    void addError(ErrorInfo e);
    void done();

private:
    void noteReturn();

    CMPIResult m_face;
    std::mutex m_mutex;
    Response& m_response;
};

}  // namespace cmpihost::detail

#endif

// PathObject: CMPIObjectPath. Keys come back in the CMPI key types unless
// the host keeps key types (HostConfig::keepKeyTypes).
#ifndef CMPIHOST_SRC_PATHOBJECT_H
#define CMPIHOST_SRC_PATHOBJECT_H

#include "Object.h"
#include "cmpihost/ObjectPath.h"

namespace cmpihost::detail {

class PathObject final : public Object {
public:
    PathObject(Broker& broker, ObjectPath path);
    const char* typeName() const override { return "CMPIObjectPath"; }
    std::string describe() const override { return m_path.toString(); }

    CMPIObjectPath* handle() { return &m_face; }
    ObjectPath& path() { return m_path; }
    static bool ownsTable(const void* ft);

private:
    CMPIObjectPath m_face;
    ObjectPath m_path;
};

}  // namespace cmpihost::detail

#endif

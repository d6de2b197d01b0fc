// InstanceObject: CMPIInstance - an object path and ordered properties.
// Without a schema the path's keys are the ones given to newInstance or
// setObjectPath; setting a property of the same name as a key updates that
// key too. setPropertyFilter drops and from then on ignores properties
// outside the list (keys are always kept).
#ifndef CMPIHOST_SRC_INSTANCEOBJECT_H
#define CMPIHOST_SRC_INSTANCEOBJECT_H

#include <optional>
#include <string>
#include <vector>

#include "Object.h"
#include "cmpihost/Instance.h"

namespace cmpihost::detail {

class InstanceObject final : public Object {
public:
    InstanceObject(Broker& broker, Instance instance);
    const char* typeName() const override { return "CMPIInstance"; }
    std::string describe() const override;

    CMPIInstance* handle() { return &m_face; }
    Instance& instance() { return m_instance; }
    static bool ownsTable(const void* ft);

    // setProperty: false when the filter drops the name.
    bool set(const std::string& name, Value value);
    void setFilter(std::optional<std::vector<std::string>> names);

private:
    bool passes(const std::string& name) const;

    CMPIInstance m_face;
    Instance m_instance;
    std::optional<std::vector<std::string>> m_filter;
};

}  // namespace cmpihost::detail

#endif

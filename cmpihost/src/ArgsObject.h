// ArgsObject: CMPIArgs - named method arguments in the order added.
#ifndef CMPIHOST_SRC_ARGSOBJECT_H
#define CMPIHOST_SRC_ARGSOBJECT_H

#include "Object.h"
#include "cmpihost/Value.h"

namespace cmpihost::detail {

class ArgsObject final : public Object {
public:
    ArgsObject(Broker& broker, NamedValues args);
    const char* typeName() const override { return "CMPIArgs"; }

    CMPIArgs* handle() { return &m_face; }
    NamedValues& args() { return m_args; }
    static bool ownsTable(const void* ft);

private:
    CMPIArgs m_face;
    NamedValues m_args;
};

}  // namespace cmpihost::detail

#endif

// Direct use of the broker: running code as a request, and converting
// between host values and the broker's CMPI objects.
#include <stdexcept>

#include "ArgsObject.h"
#include "Dispatch.h"
#include "InstanceObject.h"
#include "PathObject.h"
#include "ValueCodec.h"

namespace cmpihost {

using namespace detail;

void Host::runInRequest(const std::function<void(const CMPIBroker*, const CMPIContext*)>& body,
                        const CallOptions& o) {
    Request request(*m_broker, o, "");
    body(m_broker->handle(), request.context());
}

CMPIObjectPath* Host::makePath(const ObjectPath& path) {
    return m_broker->make<PathObject>(path)->handle();
}

CMPIInstance* Host::makeInstance(const Instance& instance) {
    return m_broker->make<InstanceObject>(instance)->handle();
}

CMPIArgs* Host::makeArgs(const NamedValues& args) {
    return m_broker->make<ArgsObject>(args)->handle();
}

Value Host::readData(const CMPIData& data) {
    if (data.state & CMPI_nullValue) {
        return Value::null(canonicalType(data.type));
    }
    if (data.type == CMPI_chars) {
        return data.value.chars ? Value::string(data.value.chars) : Value::null(CMPI_string);
    }
    Value out;
    if (decodeValue(&data.value, data.type, out) != CMPI_RC_OK) {
        throw std::invalid_argument("not a value the host can read: " + typeName(data.type));
    }
    return out;
}

ObjectPath Host::readPath(const CMPIObjectPath* path) {
    PathObject* p = objectOf<PathObject>(path);
    if (p == nullptr) {
        throw std::invalid_argument("not an object path of the host");
    }
    return p->path();
}

Instance Host::readInstance(const CMPIInstance* instance) {
    InstanceObject* i = objectOf<InstanceObject>(instance);
    if (i == nullptr) {
        throw std::invalid_argument("not an instance of the host");
    }
    return i->instance();
}

NamedValues Host::readArgs(const CMPIArgs* args) {
    ArgsObject* a = objectOf<ArgsObject>(args);
    if (a == nullptr) {
        throw std::invalid_argument("not an argument list of the host");
    }
    return a->args();
}

}  // namespace cmpihost

#include "ArgsObject.h"

#include "Broker.h"
#include "Status.h"
#include "StringObject.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

ArgsObject* self(const CMPIArgs* as, CMPIStatus* rc) {
    ArgsObject* o = objectOf<ArgsObject>(as);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIArgs* as) { return Object::release(as); }

CMPIArgs* clone(const CMPIArgs* as, CMPIStatus* rc) {
    ArgsObject* o = self(as, rc);
    return o ? o->broker().makeHostOwned<ArgsObject>(o->args())->handle() : nullptr;
}

CMPIStatus addArg(const CMPIArgs* as, const char* name, const CMPIValue* value,
                  const CMPIType type) {
    ArgsObject* o = self(as, nullptr);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (name == nullptr || *name == '\0') {
        return status(CMPI_RC_ERR_INVALID_PARAMETER);
    }
    Value v;
    const CMPIrc rc = decodeValue(value, type, v);
    if (rc == CMPI_RC_OK) {
        setNamed(o->args(), name, std::move(v));
    }
    return status(rc);
}

CMPIData getArg(const CMPIArgs* as, const char* name, CMPIStatus* rc) {
    ArgsObject* o = self(as, rc);
    if (o == nullptr) {
        return nullData();
    }
    const Value* v = name ? findNamed(o->args(), name) : nullptr;
    return v ? encodeValue(o->broker(), *v) : failedData(rc, CMPI_RC_ERR_NOT_FOUND);
}

CMPIData getArgAt(const CMPIArgs* as, CMPICount index, CMPIString** name, CMPIStatus* rc) {
    ArgsObject* o = self(as, rc);
    if (o == nullptr) {
        return nullData();
    }
    if (index >= o->args().size()) {
        return failedData(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    }
    if (name != nullptr) {
        *name = newString(o->broker(), o->args()[index].name);
    }
    return encodeValue(o->broker(), o->args()[index].value);
}

CMPICount getArgCount(const CMPIArgs* as, CMPIStatus* rc) {
    ArgsObject* o = self(as, rc);
    return o ? static_cast<CMPICount>(o->args().size()) : 0;
}

CMPIArgsFT g_table = {CMPICurrentVersion, release, clone, addArg, getArg, getArgAt, getArgCount};

}  // namespace

ArgsObject::ArgsObject(Broker& broker, NamedValues args)
    : Object(broker), m_face{static_cast<Object*>(this), &g_table}, m_args(std::move(args)) {}

bool ArgsObject::ownsTable(const void* ft) { return ft == &g_table; }

}  // namespace cmpihost::detail

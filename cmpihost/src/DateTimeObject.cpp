#include "DateTimeObject.h"

#include "Broker.h"
#include "Status.h"
#include "StringObject.h"

namespace cmpihost::detail {

namespace {

DateTimeObject* self(const CMPIDateTime* dt, CMPIStatus* rc) {
    DateTimeObject* o = objectOf<DateTimeObject>(dt);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIDateTime* dt) { return Object::release(dt); }

CMPIDateTime* clone(const CMPIDateTime* dt, CMPIStatus* rc) {
    DateTimeObject* o = self(dt, rc);
    return o ? o->broker().makeHostOwned<DateTimeObject>(o->value())->handle() : nullptr;
}

CMPIUint64 getBinaryFormat(const CMPIDateTime* dt, CMPIStatus* rc) {
    DateTimeObject* o = self(dt, rc);
    return o ? o->value().binary() : 0;
}

CMPIString* getStringFormat(const CMPIDateTime* dt, CMPIStatus* rc) {
    DateTimeObject* o = self(dt, rc);
    return o ? newString(o->broker(), o->value().text()) : nullptr;
}

CMPIBoolean isInterval(const CMPIDateTime* dt, CMPIStatus* rc) {
    DateTimeObject* o = self(dt, rc);
    return o && o->value().isInterval() ? 1 : 0;
}

CMPIDateTimeFT g_table = {CMPICurrentVersion, release,         clone,
                          getBinaryFormat,    getStringFormat, isInterval};

}  // namespace

DateTimeObject::DateTimeObject(Broker& broker, DateTime value)
    : Object(broker), m_face{static_cast<Object*>(this), &g_table}, m_value(std::move(value)) {}

bool DateTimeObject::ownsTable(const void* ft) { return ft == &g_table; }

}  // namespace cmpihost::detail

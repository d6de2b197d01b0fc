#include "SelectExpObject.h"

#include "Broker.h"
#include "Status.h"
#include "StringObject.h"

namespace cmpihost::detail {

namespace {

SelectExpObject* self(const CMPISelectExp* se, CMPIStatus* rc) {
    SelectExpObject* o = objectOf<SelectExpObject>(se);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPISelectExp* se) { return Object::release(se); }

CMPISelectExp* clone(const CMPISelectExp* se, CMPIStatus* rc) {
    SelectExpObject* o = self(se, rc);
    return o ? o->broker().makeHostOwned<SelectExpObject>(o->query(), o->language())->handle()
             : nullptr;
}

CMPIBoolean evaluate(const CMPISelectExp*, const CMPIInstance*, CMPIStatus* rc) {
    setStatus(rc, CMPI_RC_ERR_NOT_SUPPORTED);
    return 0;
}

CMPIString* getString(const CMPISelectExp* se, CMPIStatus* rc) {
    SelectExpObject* o = self(se, rc);
    return o ? newString(o->broker(), o->query()) : nullptr;
}

CMPISelectCond* getCondition(const CMPISelectExp*, CMPIStatus* rc) {
    setStatus(rc, CMPI_RC_ERR_NOT_SUPPORTED);
    return nullptr;
}

CMPIBoolean evaluateUsingAccessor(const CMPISelectExp*, CMPIAccessor*, void*, CMPIStatus* rc) {
    setStatus(rc, CMPI_RC_ERR_NOT_SUPPORTED);
    return 0;
}

CMPISelectExpFT g_table = {CMPICurrentVersion, release,      clone,       evaluate,
                           getString,          getCondition, getCondition, evaluateUsingAccessor};

}  // namespace

SelectExpObject::SelectExpObject(Broker& broker, std::string query, std::string language)
    : Object(broker),
      m_face{static_cast<Object*>(this), &g_table},
      m_query(std::move(query)),
      m_language(std::move(language)) {}

bool SelectExpObject::ownsTable(const void* ft) { return ft == &g_table; }

}  // namespace cmpihost::detail

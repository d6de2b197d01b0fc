#include "EnumerationObject.h"

#include "ArrayObject.h"
#include "Broker.h"
#include "Status.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

EnumerationObject* self(const CMPIEnumeration* en, CMPIStatus* rc) {
    EnumerationObject* o = objectOf<EnumerationObject>(en);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIEnumeration* en) { return Object::release(en); }

CMPIEnumeration* clone(const CMPIEnumeration* en, CMPIStatus* rc) {
    EnumerationObject* o = self(en, rc);
    return o ? o->broker().makeHostOwned<EnumerationObject>(o->elementType(), o->items())->handle()
             : nullptr;
}

CMPIData getNext(const CMPIEnumeration* en, CMPIStatus* rc) {
    EnumerationObject* o = self(en, rc);
    if (o == nullptr) {
        return nullData();
    }
    const std::size_t index = o->take();
    if (index >= o->items().size()) {
        return failedData(rc, CMPI_RC_NO_MORE_ELEMENTS);
    }
    return encodeValue(o->broker(), o->items()[index]);
}

CMPIBoolean hasNext(const CMPIEnumeration* en, CMPIStatus* rc) {
    EnumerationObject* o = self(en, rc);
    return o && o->hasMore() ? 1 : 0;
}

CMPIArray* toArray(const CMPIEnumeration* en, CMPIStatus* rc) {
    EnumerationObject* o = self(en, rc);
    return o ? o->broker().make<ArrayObject>(o->elementType(), o->items())->handle() : nullptr;
}

CMPIEnumerationFT g_table = {CMPICurrentVersion, release, clone, getNext, hasNext, toArray};

}  // namespace

EnumerationObject::EnumerationObject(Broker& broker, CMPIType elementType, std::vector<Value> items)
    : Object(broker),
      m_face{static_cast<Object*>(this), &g_table},
      m_type(elementType),
      m_items(std::move(items)) {}

std::size_t EnumerationObject::take() {
    std::size_t index = m_next.load();
    while (index < m_items.size() && !m_next.compare_exchange_weak(index, index + 1)) {
    }
    return index;
}

bool EnumerationObject::ownsTable(const void* ft) { return ft == &g_table; }

}  // namespace cmpihost::detail

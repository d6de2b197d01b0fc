#include "ArrayObject.h"

#include "Broker.h"
#include "Status.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

ArrayObject* self(const CMPIArray* a, CMPIStatus* rc) {
    ArrayObject* o = objectOf<ArrayObject>(a);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIArray* a) { return Object::release(a); }

CMPIArray* clone(const CMPIArray* a, CMPIStatus* rc) {
    ArrayObject* o = self(a, rc);
    return o ? o->broker().makeHostOwned<ArrayObject>(o->elementType(), o->elements())->handle()
             : nullptr;
}

CMPICount getSize(const CMPIArray* a, CMPIStatus* rc) {
    ArrayObject* o = self(a, rc);
    return o ? static_cast<CMPICount>(o->elements().size()) : 0;
}

CMPIType getSimpleType(const CMPIArray* a, CMPIStatus* rc) {
    ArrayObject* o = self(a, rc);
    return o ? o->elementType() : static_cast<CMPIType>(CMPI_null);
}

CMPIData getElementAt(const CMPIArray* a, CMPICount index, CMPIStatus* rc) {
    ArrayObject* o = self(a, rc);
    if (o == nullptr) {
        return nullData();
    }
    if (index >= o->elements().size()) {
        return failedData(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    }
    return encodeValue(o->broker(), o->elements()[index]);
}

CMPIStatus setElementAt(CMPIArray* a, CMPICount index, const CMPIValue* value, CMPIType type) {
    ArrayObject* o = objectOf<ArrayObject>(a);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (index >= o->elements().size()) {
        return status(CMPI_RC_ERR_NO_SUCH_PROPERTY);
    }
    if (canonicalType(type) != o->elementType()) {
        return status(CMPI_RC_ERR_TYPE_MISMATCH);
    }
    Value element;
    const CMPIrc rc = decodeValue(value, type, element);
    if (rc == CMPI_RC_OK) {
        o->elements()[index] = std::move(element);
    }
    return status(rc);
}

CMPIArrayFT g_table = {CMPICurrentVersion, release,      clone,       getSize,
                       getSimpleType,      getElementAt, setElementAt};

}  // namespace

ArrayObject::ArrayObject(Broker& broker, CMPIType elementType, std::vector<Value> elements)
    : Object(broker),
      m_face{static_cast<Object*>(this), &g_table},
      m_type(elementType),
      m_elements(std::move(elements)) {}

bool ArrayObject::ownsTable(const void* ft) { return ft == &g_table; }

}  // namespace cmpihost::detail

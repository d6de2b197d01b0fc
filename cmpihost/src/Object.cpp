#include "Object.h"

#include <string>

#include "Arena.h"
#include "Broker.h"
#include "Status.h"

namespace cmpihost::detail {

Object::Object(Broker& broker) : m_broker(broker) { m_broker.objectCreated(); }

Object::~Object() { m_broker.objectDestroyed(); }

std::string Object::describe() const { return typeName(); }

Object* Object::behind(const void* handle) {
    if (handle == nullptr) {
        return nullptr;
    }
    const auto* raw = static_cast<const RawHandle*>(handle);
    if (raw->hdl == nullptr || !isHostTable(raw->ft)) {
        return nullptr;
    }
    return static_cast<Object*>(raw->hdl);
}

CMPIStatus Object::release(void* handle) {
    Object* object = behind(handle);
    if (object == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (object->pinned()) {
        return status(CMPI_RC_OK);
    }
    if (object->arena() == nullptr || !object->arena()->destroy(object)) {
        delete object;
    }
    return status(CMPI_RC_OK);
}

}  // namespace cmpihost::detail

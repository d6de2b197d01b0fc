#include "StringObject.h"

#include "Broker.h"
#include "Status.h"

namespace cmpihost::detail {

namespace {

CMPIStatus release(CMPIString* s) { return Object::release(s); }

CMPIString* clone(const CMPIString* s, CMPIStatus* rc) {
    StringObject* self = objectOf<StringObject>(s);
    if (self == nullptr) {
        setStatus(rc, CMPI_RC_ERR_INVALID_HANDLE);
        return nullptr;
    }
    setStatus(rc, CMPI_RC_OK);
    return self->broker().makeHostOwned<StringObject>(self->text())->handle();
}

const char* getCharPtr(const CMPIString* s, CMPIStatus* rc) {
    StringObject* self = objectOf<StringObject>(s);
    if (self == nullptr) {
        setStatus(rc, CMPI_RC_ERR_INVALID_HANDLE);
        return nullptr;
    }
    setStatus(rc, CMPI_RC_OK);
    return self->text() ? self->text()->c_str() : nullptr;
}

CMPIStringFT g_table = {CMPICurrentVersion, release, clone, getCharPtr};

}  // namespace

StringObject::StringObject(Broker& broker, std::optional<std::string> text)
    : Object(broker), m_face{static_cast<Object*>(this), &g_table}, m_text(std::move(text)) {}

bool StringObject::ownsTable(const void* ft) { return ft == &g_table; }

CMPIString* newString(Broker& broker, std::optional<std::string> text) {
    return broker.make<StringObject>(std::move(text))->handle();
}

std::optional<std::string> stringText(const CMPIString* s) {
    StringObject* self = objectOf<StringObject>(s);
    return self != nullptr ? self->text() : std::nullopt;
}

}  // namespace cmpihost::detail

#include "ContextObject.h"

#include "Broker.h"
#include "Status.h"
#include "StringObject.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

ContextObject* self(const CMPIContext* ctx, CMPIStatus* rc) {
    ContextObject* o = objectOf<ContextObject>(ctx);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIContext* ctx) { return Object::release(ctx); }

CMPIContext* clone(const CMPIContext* ctx, CMPIStatus* rc) {
    ContextObject* o = self(ctx, rc);
    return o ? o->broker().makeHostOwned<ContextObject>(o->entries())->handle() : nullptr;
}

CMPIData entryData(Broker& broker, const ContextObject::Entry& e) {
    if (!e.nullChars) {
        return encodeValue(broker, e.value);
    }
    CMPIData d{};
    d.type = CMPI_string;
    d.state = CMPI_goodValue;
    d.value.string = newString(broker, std::nullopt);
    return d;
}

CMPIData getEntry(const CMPIContext* ctx, const char* name, CMPIStatus* rc) {
    ContextObject* o = self(ctx, rc);
    if (o == nullptr) {
        return nullData();
    }
    ContextObject::Entry e;
    if (name == nullptr || !o->find(name, e)) {
        return failedData(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    }
    return entryData(o->broker(), e);
}

CMPIData getEntryAt(const CMPIContext* ctx, CMPICount index, CMPIString** name, CMPIStatus* rc) {
    ContextObject* o = self(ctx, rc);
    if (o == nullptr) {
        return nullData();
    }
    ContextObject::Entry e;
    if (!o->at(index, e)) {
        return failedData(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    }
    if (name != nullptr) {
        *name = newString(o->broker(), e.name);
    }
    return entryData(o->broker(), e);
}

CMPICount getEntryCount(const CMPIContext* ctx, CMPIStatus* rc) {
    ContextObject* o = self(ctx, rc);
    return o ? static_cast<CMPICount>(o->count()) : 0;
}

CMPIStatus addEntry(const CMPIContext* ctx, const char* name, const CMPIValue* value,
                    const CMPIType type) {
    ContextObject* o = self(ctx, nullptr);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (name == nullptr || *name == '\0') {
        return status(CMPI_RC_ERR_INVALID_PARAMETER);
    }
    ContextObject::Entry e{name, Value(), false};
    const CMPIrc rc = decodeValue(value, type, e.value);
    if (rc == CMPI_RC_OK) {
        o->put(std::move(e));
    }
    return status(rc);
}

CMPIContextFT g_sfcb = {CMPICurrentVersion, release,       clone,   getEntry,
                        getEntryAt,         getEntryCount, addEntry};
// OpenPegasus 2.14 cannot clone a context.
CMPIContextFT g_pegasus = {CMPICurrentVersion, release,       nullptr, getEntry,
                           getEntryAt,         getEntryCount, addEntry};

}  // namespace

ContextObject::ContextObject(Broker& broker, std::vector<Entry> entries)
    : Object(broker), m_face{static_cast<Object*>(this), broker.flavor() == Flavor::Sfcb14 ? &g_sfcb : &g_pegasus},
      m_entries(std::move(entries)) {}

std::vector<ContextObject::Entry> ContextObject::entries() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries;
}

void ContextObject::put(Entry entry) {
    std::lock_guard<std::mutex> lock(m_mutex);
    for (Entry& e : m_entries) {
        if (e.name == entry.name) {
            e = std::move(entry);
            return;
        }
    }
    m_entries.push_back(std::move(entry));
}

bool ContextObject::find(const std::string& name, Entry& out) const {
    std::lock_guard<std::mutex> lock(m_mutex);
    for (const Entry& e : m_entries) {
        if (e.name == name) {
            out = e;
            return true;
        }
    }
    return false;
}

bool ContextObject::at(std::size_t index, Entry& out) const {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (index >= m_entries.size()) {
        return false;
    }
    out = m_entries[index];
    return true;
}

std::size_t ContextObject::count() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries.size();
}

bool ContextObject::ownsTable(const void* ft) { return ft == &g_sfcb || ft == &g_pegasus; }

}  // namespace cmpihost::detail

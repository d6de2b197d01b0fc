#include "InstanceObject.h"

#include <algorithm>

#include "Broker.h"
#include "NameCompare.h"
#include "PathObject.h"
#include "Status.h"
#include "StringObject.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

InstanceObject* self(const CMPIInstance* inst, CMPIStatus* rc) {
    InstanceObject* o = objectOf<InstanceObject>(inst);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIInstance* inst) { return Object::release(inst); }

CMPIInstance* clone(const CMPIInstance* inst, CMPIStatus* rc) {
    InstanceObject* o = self(inst, rc);
    return o ? o->broker().makeHostOwned<InstanceObject>(o->instance())->handle() : nullptr;
}

CMPIData getProperty(const CMPIInstance* inst, const char* name, CMPIStatus* rc) {
    InstanceObject* o = self(inst, rc);
    if (o == nullptr) {
        return nullData();
    }
    const Value* v = name ? o->instance().property(name) : nullptr;
    return v ? encodeValue(o->broker(), *v) : failedData(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

CMPIData getPropertyAt(const CMPIInstance* inst, CMPICount index, CMPIString** name,
                       CMPIStatus* rc) {
    InstanceObject* o = self(inst, rc);
    if (o == nullptr) {
        return nullData();
    }
    if (index >= o->instance().properties.size()) {
        return failedData(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    }
    const NamedValue& p = o->instance().properties[index];
    if (name != nullptr) {
        *name = newString(o->broker(), p.name);
    }
    return encodeValue(o->broker(), p.value);
}

CMPICount getPropertyCount(const CMPIInstance* inst, CMPIStatus* rc) {
    InstanceObject* o = self(inst, rc);
    return o ? static_cast<CMPICount>(o->instance().properties.size()) : 0;
}

CMPIStatus setProperty(const CMPIInstance* inst, const char* name, const CMPIValue* value,
                       CMPIType type) {
    InstanceObject* o = self(inst, nullptr);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (name == nullptr || *name == '\0') {
        return status(CMPI_RC_ERR_INVALID_PARAMETER);
    }
    Value v;
    const CMPIrc rc = decodeValue(value, type, v);
    if (rc == CMPI_RC_OK) {
        o->set(name, std::move(v));
    }
    return status(rc);
}

CMPIStatus setPropertyWithOrigin(const CMPIInstance* inst, const char* name,
                                 const CMPIValue* value, const CMPIType type, const char*) {
    return setProperty(inst, name, value, type);
}

CMPIObjectPath* getObjectPath(const CMPIInstance* inst, CMPIStatus* rc) {
    InstanceObject* o = self(inst, rc);
    return o ? o->broker().make<PathObject>(o->instance().path)->handle() : nullptr;
}

std::vector<std::string> names(const char** list) {
    std::vector<std::string> out;
    for (; list != nullptr && *list != nullptr; ++list) {
        out.emplace_back(*list);
    }
    return out;
}

CMPIStatus setPropertyFilter(CMPIInstance* inst, const char** propertyList, const char** keys) {
    InstanceObject* o = self(inst, nullptr);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (propertyList == nullptr) {
        o->setFilter(std::nullopt);
        return status(CMPI_RC_OK);
    }
    std::vector<std::string> allowed = names(propertyList);
    for (std::string& key : names(keys)) {
        allowed.push_back(std::move(key));
    }
    o->setFilter(std::move(allowed));
    return status(CMPI_RC_OK);
}

CMPIStatus setObjectPath(CMPIInstance* inst, const CMPIObjectPath* op) {
    InstanceObject* o = self(inst, nullptr);
    PathObject* path = objectOf<PathObject>(op);
    if (o == nullptr || path == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->instance().path = path->path();
    return status(CMPI_RC_OK);
}

CMPIInstanceFT g_full = {CMPICurrentVersion, release,       clone,
                         getProperty,        getPropertyAt, getPropertyCount,
                         setProperty,        getObjectPath, setPropertyFilter,
                         setObjectPath,      setPropertyWithOrigin};
// sfcb 1.4 leaves the 2.0 slot empty.
CMPIInstanceFT g_sfcb = {CMPICurrentVersion, release,       clone,
                         getProperty,        getPropertyAt, getPropertyCount,
                         setProperty,        getObjectPath, setPropertyFilter,
                         setObjectPath,      nullptr};

}  // namespace

InstanceObject::InstanceObject(Broker& broker, Instance instance)
    : Object(broker),
      m_face{static_cast<Object*>(this), broker.flavor() == Flavor::Sfcb14 ? &g_sfcb : &g_full},
      m_instance(std::move(instance)) {}

bool InstanceObject::ownsTable(const void* ft) { return ft == &g_full || ft == &g_sfcb; }

std::string InstanceObject::describe() const {
    std::string text = "instance of " + m_instance.path.toString() + " {";
    for (const NamedValue& p : m_instance.properties) {
        text += " " + p.name + "=" + p.value.toString() + ";";
    }
    return text + " }";
}

bool InstanceObject::passes(const std::string& name) const {
    if (!m_filter || m_instance.path.key(name) != nullptr) {
        return true;
    }
    return std::any_of(m_filter->begin(), m_filter->end(),
                       [&](const std::string& allowed) { return equalNames(allowed, name); });
}

bool InstanceObject::set(const std::string& name, Value value) {
    if (!passes(name)) {
        return false;
    }
    for (NamedValue& key : m_instance.path.keys) {
        if (equalNames(key.name, name)) {
            key.value = value;
        }
    }
    setNamed(m_instance.properties, name, std::move(value));
    return true;
}

void InstanceObject::setFilter(std::optional<std::vector<std::string>> names) {
    m_filter = std::move(names);
    NamedValues& props = m_instance.properties;
    props.erase(std::remove_if(props.begin(), props.end(),
                               [&](const NamedValue& p) { return !passes(p.name); }),
                props.end());
}

}  // namespace cmpihost::detail

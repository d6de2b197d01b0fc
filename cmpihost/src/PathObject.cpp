#include "PathObject.h"

#include "Broker.h"
#include "Status.h"
#include "StringObject.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

PathObject* self(const CMPIObjectPath* op, CMPIStatus* rc) {
    PathObject* o = objectOf<PathObject>(op);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIObjectPath* op) { return Object::release(op); }

CMPIObjectPath* clone(const CMPIObjectPath* op, CMPIStatus* rc) {
    PathObject* o = self(op, rc);
    return o ? o->broker().makeHostOwned<PathObject>(o->path())->handle() : nullptr;
}

// The three text fields share their shape; NULL text empties a field.
CMPIStatus setField(CMPIObjectPath* op, std::string ObjectPath::*field, const char* text) {
    PathObject* o = self(op, nullptr);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->path().*field = text != nullptr ? text : "";
    return status(CMPI_RC_OK);
}

CMPIString* getField(const CMPIObjectPath* op, std::string ObjectPath::*field, CMPIStatus* rc) {
    PathObject* o = self(op, rc);
    return o ? newString(o->broker(), o->path().*field) : nullptr;
}

CMPIStatus setNameSpace(CMPIObjectPath* op, const char* ns) {
    return setField(op, &ObjectPath::nameSpace, ns);
}
CMPIString* getNameSpace(const CMPIObjectPath* op, CMPIStatus* rc) {
    return getField(op, &ObjectPath::nameSpace, rc);
}
CMPIStatus setHostname(CMPIObjectPath* op, const char* hn) {
    return setField(op, &ObjectPath::host, hn);
}
CMPIString* getHostname(const CMPIObjectPath* op, CMPIStatus* rc) {
    return getField(op, &ObjectPath::host, rc);
}
CMPIStatus setClassName(CMPIObjectPath* op, const char* cn) {
    return setField(op, &ObjectPath::className, cn);
}
CMPIString* getClassName(const CMPIObjectPath* op, CMPIStatus* rc) {
    return getField(op, &ObjectPath::className, rc);
}

CMPIStatus addKey(CMPIObjectPath* op, const char* name, const CMPIValue* value, CMPIType type) {
    PathObject* o = self(op, nullptr);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (name == nullptr || *name == '\0') {
        return status(CMPI_RC_ERR_INVALID_PARAMETER);
    }
    Value v;
    const CMPIrc rc = decodeValue(value, type, v);
    if (rc == CMPI_RC_OK) {
        o->path().addKey(name, std::move(v));
    }
    return status(rc);
}

CMPIData keyData(PathObject& o, const Value& v) {
    CMPIData d = encodeValue(o.broker(), o.broker().keepKeyTypes() ? v : asKeyType(v));
    d.state = static_cast<CMPIValueState>(d.state | CMPI_keyValue);
    return d;
}

CMPIData getKey(const CMPIObjectPath* op, const char* name, CMPIStatus* rc) {
    PathObject* o = self(op, rc);
    if (o == nullptr) {
        return nullData();
    }
    const Value* v = name ? o->path().key(name) : nullptr;
    return v ? keyData(*o, *v) : failedData(rc, CMPI_RC_ERR_NOT_FOUND);
}

CMPIData getKeyAt(const CMPIObjectPath* op, CMPICount index, CMPIString** name, CMPIStatus* rc) {
    PathObject* o = self(op, rc);
    if (o == nullptr) {
        return nullData();
    }
    if (index >= o->path().keys.size()) {
        return failedData(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    }
    const NamedValue& key = o->path().keys[index];
    if (name != nullptr) {
        *name = newString(o->broker(), key.name);
    }
    return keyData(*o, key.value);
}

CMPICount getKeyCount(const CMPIObjectPath* op, CMPIStatus* rc) {
    PathObject* o = self(op, rc);
    return o ? static_cast<CMPICount>(o->path().keys.size()) : 0;
}

CMPIStatus setNameSpaceFromObjectPath(CMPIObjectPath* op, const CMPIObjectPath* src) {
    PathObject* o = self(op, nullptr);
    PathObject* from = self(src, nullptr);
    if (o == nullptr || from == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->path().nameSpace = from->path().nameSpace;
    return status(CMPI_RC_OK);
}

CMPIStatus setHostAndNameSpaceFromObjectPath(CMPIObjectPath* op, const CMPIObjectPath* src) {
    CMPIStatus st = setNameSpaceFromObjectPath(op, src);
    if (st.rc == CMPI_RC_OK) {
        self(op, nullptr)->path().host = self(src, nullptr)->path().host;
    }
    return st;
}

// No schema here: every qualifier question is unsupported.
CMPIData getClassQualifier(const CMPIObjectPath*, const char*, CMPIStatus* rc) {
    return failedData(rc, CMPI_RC_ERR_NOT_SUPPORTED);
}
CMPIData getPropertyQualifier(const CMPIObjectPath*, const char*, const char*, CMPIStatus* rc) {
    return failedData(rc, CMPI_RC_ERR_NOT_SUPPORTED);
}
CMPIData getMethodQualifier(const CMPIObjectPath*, const char*, const char*, CMPIStatus* rc) {
    return failedData(rc, CMPI_RC_ERR_NOT_SUPPORTED);
}
CMPIData getParameterQualifier(const CMPIObjectPath*, const char*, const char*, const char*,
                               CMPIStatus* rc) {
    return failedData(rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

CMPIString* toString(const CMPIObjectPath* op, CMPIStatus* rc) {
    PathObject* o = self(op, rc);
    return o ? newString(o->broker(), o->path().toString()) : nullptr;
}

#define VEX_HOST_PATH_FT(classQ, propertyQ, methodQ, parameterQ)                              \
    {CMPICurrentVersion, release, clone, setNameSpace, getNameSpace, setHostname, getHostname, \
     setClassName, getClassName, addKey, getKey, getKeyAt, getKeyCount,                      \
     setNameSpaceFromObjectPath, setHostAndNameSpaceFromObjectPath, classQ, propertyQ,       \
     methodQ, parameterQ, toString}

CMPIObjectPathFT g_sfcb = VEX_HOST_PATH_FT(getClassQualifier, getPropertyQualifier,
                                           getMethodQualifier, getParameterQualifier);
// OpenPegasus 2.14 has no qualifier getters on object paths.
CMPIObjectPathFT g_pegasus = VEX_HOST_PATH_FT(nullptr, nullptr, nullptr, nullptr);

#undef VEX_HOST_PATH_FT

}  // namespace

PathObject::PathObject(Broker& broker, ObjectPath path)
    : Object(broker),
      m_face{static_cast<Object*>(this), broker.flavor() == Flavor::Sfcb14 ? &g_sfcb : &g_pegasus},
      m_path(std::move(path)) {}

bool PathObject::ownsTable(const void* ft) { return ft == &g_sfcb || ft == &g_pegasus; }

}  // namespace cmpihost::detail

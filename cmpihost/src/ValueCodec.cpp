#include "ValueCodec.h"

#include "ArrayObject.h"
#include "Broker.h"
#include "DateTimeObject.h"
#include "InstanceObject.h"
#include "PathObject.h"
#include "Status.h"
#include "StringObject.h"
#include "cmpihost/Instance.h"
#include "cmpihost/ObjectPath.h"

namespace cmpihost::detail {

CMPIType canonicalType(CMPIType type) {
    const CMPIType element = static_cast<CMPIType>(type & ~CMPI_ARRAY);
    return element == CMPI_chars ? static_cast<CMPIType>((type & CMPI_ARRAY) | CMPI_string) : type;
}

bool isValueType(CMPIType t) {
    switch (t) {
    case CMPI_boolean: case CMPI_char16: case CMPI_real32: case CMPI_real64:
    case CMPI_uint8: case CMPI_uint16: case CMPI_uint32: case CMPI_uint64:
    case CMPI_sint8: case CMPI_sint16: case CMPI_sint32: case CMPI_sint64:
    case CMPI_string: case CMPI_dateTime: case CMPI_ref: case CMPI_instance:
        return true;
    default:
        return false;
    }
}

namespace {

Value decodeNumber(const CMPIValue& v, CMPIType type) {
    switch (type) {
    case CMPI_boolean: return Value::boolean(v.boolean != 0);
    case CMPI_char16: return Value::char16(v.char16);
    case CMPI_real32: return Value::real32(v.real32);
    case CMPI_real64: return Value::real64(v.real64);
    case CMPI_uint8: return Value::uint8(v.uint8);
    case CMPI_uint16: return Value::uint16(v.uint16);
    case CMPI_uint32: return Value::uint32(v.uint32);
    case CMPI_uint64: return Value::uint64(v.uint64);
    case CMPI_sint8: return Value::sint8(v.sint8);
    case CMPI_sint16: return Value::sint16(v.sint16);
    case CMPI_sint32: return Value::sint32(v.sint32);
    default: return Value::sint64(v.sint64);
    }
}

// Copies the object a CMPI_string / dateTime / ref / instance value points
// at; a NULL pointer is a null value.
CMPIrc decodeObject(const CMPIValue& v, CMPIType type, Value& out) {
    const void* handle = v.string;  // every member here is a pointer at offset 0
    if (handle == nullptr) {
        out = Value::null(type);
        return CMPI_RC_OK;
    }
    if (type == CMPI_string) {
        auto* s = objectOf<StringObject>(v.string);
        out = s == nullptr ? Value() : s->text() ? Value::string(*s->text()) : Value::null(type);
        return s ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE;
    }
    if (type == CMPI_dateTime) {
        auto* d = objectOf<DateTimeObject>(v.dateTime);
        out = d ? Value::dateTime(d->value()) : Value();
        return d ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE;
    }
    if (type == CMPI_ref) {
        auto* p = objectOf<PathObject>(v.ref);
        out = p ? Value::ref(p->path()) : Value();
        return p ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE;
    }
    auto* i = objectOf<InstanceObject>(v.inst);
    out = i ? Value::instance(i->instance()) : Value();
    return i ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE;
}

CMPIrc decodeArray(const CMPIValue* value, CMPIType type, Value& out) {
    const CMPIType element = static_cast<CMPIType>(type & ~CMPI_ARRAY);
    if (!isValueType(element)) {
        return CMPI_RC_ERR_INVALID_DATA_TYPE;
    }
    if (value == nullptr || value->array == nullptr) {
        out = Value::null(type);
        return CMPI_RC_OK;
    }
    auto* a = objectOf<ArrayObject>(value->array);
    if (a == nullptr) {
        return CMPI_RC_ERR_INVALID_HANDLE;
    }
    if (a->elementType() != element) {
        return CMPI_RC_ERR_TYPE_MISMATCH;
    }
    out = a->toValue();
    return CMPI_RC_OK;
}

}  // namespace

CMPIrc decodeValue(const CMPIValue* value, CMPIType type, Value& out) {
    if (type == CMPI_null) {
        out = Value();
        return CMPI_RC_OK;
    }
    if (type == CMPI_chars) {
        const char* chars = reinterpret_cast<const char*>(value);
        out = chars ? Value::string(chars) : Value::null(CMPI_string);
        return CMPI_RC_OK;
    }
    type = canonicalType(type);
    if (type & CMPI_ARRAY) {
        return decodeArray(value, type, out);
    }
    if (!isValueType(type)) {
        return CMPI_RC_ERR_INVALID_DATA_TYPE;
    }
    if (value == nullptr) {
        out = Value::null(type);
        return CMPI_RC_OK;
    }
    if (type & CMPI_ENC) {
        return decodeObject(*value, type, out);
    }
    out = decodeNumber(*value, type);
    return CMPI_RC_OK;
}

namespace {

void encodeNumber(const Value& v, CMPIValue& out) {
    switch (v.type()) {
    case CMPI_boolean: out.boolean = v.asBool() ? 1 : 0; break;
    case CMPI_char16: out.char16 = static_cast<CMPIChar16>(v.asUnsigned()); break;
    case CMPI_real32: out.real32 = static_cast<CMPIReal32>(v.asReal()); break;
    case CMPI_real64: out.real64 = v.asReal(); break;
    case CMPI_uint8: out.uint8 = static_cast<CMPIUint8>(v.asUnsigned()); break;
    case CMPI_uint16: out.uint16 = static_cast<CMPIUint16>(v.asUnsigned()); break;
    case CMPI_uint32: out.uint32 = static_cast<CMPIUint32>(v.asUnsigned()); break;
    case CMPI_uint64: out.uint64 = v.asUnsigned(); break;
    case CMPI_sint8: out.sint8 = static_cast<CMPISint8>(v.asSigned()); break;
    case CMPI_sint16: out.sint16 = static_cast<CMPISint16>(v.asSigned()); break;
    case CMPI_sint32: out.sint32 = static_cast<CMPISint32>(v.asSigned()); break;
    default: out.sint64 = v.asSigned(); break;
    }
}

}  // namespace

CMPIData encodeValue(Broker& broker, const Value& v) {
    if (v.isNull()) {
        return nullData(v.type());
    }
    CMPIData d{};
    d.type = v.type();
    d.state = CMPI_goodValue;
    if (v.isArray()) {
        d.value.array = broker.make<ArrayObject>(v.elementType(), v.elements())->handle();
        return d;
    }
    switch (v.type()) {
    case CMPI_string: d.value.string = newString(broker, v.asString()); break;
    case CMPI_dateTime: d.value.dateTime = broker.make<DateTimeObject>(v.asDateTime())->handle(); break;
    case CMPI_ref: d.value.ref = broker.make<PathObject>(v.asRef())->handle(); break;
    case CMPI_instance: d.value.inst = broker.make<InstanceObject>(v.asInstance())->handle(); break;
    default: encodeNumber(v, d.value); break;
    }
    return d;
}

namespace {

CMPIType keyTypeOf(CMPIType type) {
    if (type == CMPI_char16 || type == CMPI_dateTime || type == CMPI_string) {
        return CMPI_keyString;
    }
    return (type & CMPI_INTEGER) && !(type & CMPI_ENC) ? CMPI_keyInteger : type;
}

}  // namespace

Value asKeyType(const Value& v) {
    const CMPIType keyType = keyTypeOf(v.type());
    if (v.isArray() || keyType == v.type()) {
        return v;
    }
    if (v.isNull()) {
        return Value::null(keyType);
    }
    switch (v.type()) {
    case CMPI_char16: return Value::string(std::string(1, static_cast<char>(v.asUnsigned())));
    case CMPI_dateTime: return Value::string(v.asDateTime().text());
    default: break;
    }
    return (v.type() & CMPI_SINT) == CMPI_SINT ? Value::sint64(v.asSigned())
                                               : Value::sint64(static_cast<CMPISint64>(v.asUnsigned()));
}

}  // namespace cmpihost::detail

#include "cmpihost/Value.h"

#include <cstdio>

#include "NameCompare.h"
#include "cmpihost/Instance.h"
#include "cmpihost/ObjectPath.h"

namespace cmpihost {

Value Value::null(CMPIType type) { return Value(type, std::monostate{}); }
Value Value::boolean(bool v) { return Value(CMPI_boolean, v); }
Value Value::char16(CMPIChar16 v) { return Value(CMPI_char16, std::uint64_t{v}); }
Value Value::uint8(CMPIUint8 v) { return Value(CMPI_uint8, std::uint64_t{v}); }
Value Value::uint16(CMPIUint16 v) { return Value(CMPI_uint16, std::uint64_t{v}); }
Value Value::uint32(CMPIUint32 v) { return Value(CMPI_uint32, std::uint64_t{v}); }
Value Value::uint64(CMPIUint64 v) { return Value(CMPI_uint64, std::uint64_t{v}); }
Value Value::sint8(CMPISint8 v) { return Value(CMPI_sint8, std::int64_t{v}); }
Value Value::sint16(CMPISint16 v) { return Value(CMPI_sint16, std::int64_t{v}); }
Value Value::sint32(CMPISint32 v) { return Value(CMPI_sint32, std::int64_t{v}); }
Value Value::sint64(CMPISint64 v) { return Value(CMPI_sint64, std::int64_t{v}); }
Value Value::real32(CMPIReal32 v) { return Value(CMPI_real32, double{v}); }
Value Value::real64(CMPIReal64 v) { return Value(CMPI_real64, v); }
Value Value::string(std::string v) { return Value(CMPI_string, std::move(v)); }
Value Value::dateTime(DateTime v) { return Value(CMPI_dateTime, std::move(v)); }

Value Value::ref(ObjectPath v) {
    return Value(CMPI_ref, std::make_shared<const ObjectPath>(std::move(v)));
}

Value Value::instance(Instance v) {
    return Value(CMPI_instance, std::make_shared<const Instance>(std::move(v)));
}

Value Value::array(CMPIType elementType, Array elements) {
    return Value(static_cast<CMPIType>(elementType | CMPI_ARRAY), std::move(elements));
}

const ObjectPath& Value::asRef() const {
    return *std::get<std::shared_ptr<const ObjectPath>>(m_data);
}

const Instance& Value::asInstance() const {
    return *std::get<std::shared_ptr<const Instance>>(m_data);
}

bool Value::operator==(const Value& other) const {
    if (m_type != other.m_type || m_data.index() != other.m_data.index()) {
        return false;
    }
    if (auto p = std::get_if<std::shared_ptr<const ObjectPath>>(&m_data)) {
        return **p == other.asRef();
    }
    if (auto i = std::get_if<std::shared_ptr<const Instance>>(&m_data)) {
        return **i == other.asInstance();
    }
    return m_data == other.m_data;
}

namespace {

std::string scalarText(const Value& v) {
    char buf[64];
    switch (v.elementType()) {
    case CMPI_boolean:
        return v.asBool() ? "true" : "false";
    case CMPI_real32:
    case CMPI_real64:
        std::snprintf(buf, sizeof buf, "%.17g", v.asReal());
        return buf;
    case CMPI_string:
        return "\"" + v.asString() + "\"";
    case CMPI_dateTime:
        return v.asDateTime().text();
    case CMPI_ref:
        return v.asRef().toString();
    case CMPI_instance:
        return "instance of " + v.asInstance().className();
    default:
        break;
    }
    if ((v.elementType() & CMPI_SINT) == CMPI_SINT) {
        std::snprintf(buf, sizeof buf, "%lld", static_cast<long long>(v.asSigned()));
    } else {
        std::snprintf(buf, sizeof buf, "%llu", static_cast<unsigned long long>(v.asUnsigned()));
    }
    return buf;
}

}  // namespace

std::string Value::toString() const {
    std::string text = typeName(m_type) + ":";
    if (isNull()) {
        return text + "null";
    }
    if (!isArray()) {
        return text + scalarText(*this);
    }
    text += "{";
    const Array& items = elements();
    for (std::size_t i = 0; i < items.size(); ++i) {
        text += (i ? "," : "") + (items[i].isNull() ? std::string("null") : scalarText(items[i]));
    }
    return text + "}";
}

const Value* findNamed(const NamedValues& values, const std::string& name) {
    for (const NamedValue& nv : values) {
        if (detail::equalNames(nv.name, name)) {
            return &nv.value;
        }
    }
    return nullptr;
}

void setNamed(NamedValues& values, const std::string& name, Value value) {
    for (NamedValue& nv : values) {
        if (detail::equalNames(nv.name, name)) {
            nv.value = std::move(value);
            return;
        }
    }
    values.push_back(NamedValue{name, std::move(value)});
}

std::string typeName(CMPIType type) {
    static const struct {
        CMPIType type;
        const char* name;
    } names[] = {
        {CMPI_null, "null"},         {CMPI_boolean, "boolean"},   {CMPI_char16, "char16"},
        {CMPI_real32, "real32"},     {CMPI_real64, "real64"},     {CMPI_uint8, "uint8"},
        {CMPI_uint16, "uint16"},     {CMPI_uint32, "uint32"},     {CMPI_uint64, "uint64"},
        {CMPI_sint8, "sint8"},       {CMPI_sint16, "sint16"},     {CMPI_sint32, "sint32"},
        {CMPI_sint64, "sint64"},     {CMPI_instance, "instance"}, {CMPI_ref, "ref"},
        {CMPI_args, "args"},         {CMPI_class, "class"},       {CMPI_filter, "filter"},
        {CMPI_enumeration, "enumeration"}, {CMPI_string, "string"}, {CMPI_chars, "chars"},
        {CMPI_dateTime, "dateTime"}, {CMPI_ptr, "ptr"},           {CMPI_charsptr, "charsptr"},
    };
    const CMPIType element = static_cast<CMPIType>(type & ~CMPI_ARRAY);
    const char* suffix = (type & CMPI_ARRAY) ? "[]" : "";
    for (const auto& n : names) {
        if (n.type == element) {
            return std::string(n.name) + suffix;
        }
    }
    char buf[32];
    std::snprintf(buf, sizeof buf, "type0x%04x", static_cast<unsigned>(type));
    return buf;
}

}  // namespace cmpihost

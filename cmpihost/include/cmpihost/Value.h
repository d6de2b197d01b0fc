// Value: one CMPI value on the host side - its CMPI type code (with the
// CMPI_ARRAY bit for arrays), whether it is null, and a deep copy of the
// data. Strings are std::string, references and embedded instances are
// shared immutable copies, arrays hold their elements as Values (each
// element can be null on its own). Nothing here refers to a CMPI handle.
#ifndef CMPIHOST_VALUE_H
#define CMPIHOST_VALUE_H

#include <cmpidt.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "cmpihost/DateTime.h"

namespace cmpihost {

struct ObjectPath;
struct Instance;

class Value {
public:
    using Array = std::vector<Value>;

    // CMPI_null, null.
    Value() = default;

    static Value null(CMPIType type);
    static Value boolean(bool v);
    static Value char16(CMPIChar16 v);
    static Value uint8(CMPIUint8 v);
    static Value uint16(CMPIUint16 v);
    static Value uint32(CMPIUint32 v);
    static Value uint64(CMPIUint64 v);
    static Value sint8(CMPISint8 v);
    static Value sint16(CMPISint16 v);
    static Value sint32(CMPISint32 v);
    static Value sint64(CMPISint64 v);
    static Value real32(CMPIReal32 v);
    static Value real64(CMPIReal64 v);
    static Value string(std::string v);
    static Value dateTime(DateTime v);
    static Value ref(ObjectPath v);
    static Value instance(Instance v);
    // elementType without the CMPI_ARRAY bit; every element must have it.
    static Value array(CMPIType elementType, Array elements);

    CMPIType type() const { return m_type; }
    CMPIType elementType() const { return static_cast<CMPIType>(m_type & ~CMPI_ARRAY); }
    bool isArray() const { return (m_type & CMPI_ARRAY) != 0; }
    bool isNull() const { return std::holds_alternative<std::monostate>(m_data); }

    // Accessors throw std::bad_variant_access when the value holds
    // something else (or is null).
    bool asBool() const { return std::get<bool>(m_data); }
    std::uint64_t asUnsigned() const { return std::get<std::uint64_t>(m_data); }
    std::int64_t asSigned() const { return std::get<std::int64_t>(m_data); }
    double asReal() const { return std::get<double>(m_data); }
    const std::string& asString() const { return std::get<std::string>(m_data); }
    const DateTime& asDateTime() const { return std::get<DateTime>(m_data); }
    const ObjectPath& asRef() const;
    const Instance& asInstance() const;
    const Array& elements() const { return std::get<Array>(m_data); }

    bool operator==(const Value& other) const;
    bool operator!=(const Value& other) const { return !(*this == other); }

    // Readable form for test messages, e.g. "uint16:7" or "string[]:{a,b}".
    std::string toString() const;

private:
    using Data = std::variant<std::monostate, bool, std::uint64_t, std::int64_t, double,
                              std::string, DateTime, std::shared_ptr<const ObjectPath>,
                              std::shared_ptr<const Instance>, Array>;
    // Builds the alternative in place (no variant is moved around).
    template <class T>
    Value(CMPIType type, T&& v)
        : m_type(type), m_data(std::in_place_type<std::decay_t<T>>, std::forward<T>(v)) {}

    CMPIType m_type = CMPI_null;
    Data m_data;
};

// A named value: a property, a key binding, a method argument.
struct NamedValue {
    std::string name;
    Value value;

    bool operator==(const NamedValue& o) const { return name == o.name && value == o.value; }
    bool operator!=(const NamedValue& o) const { return !(*this == o); }
};

using NamedValues = std::vector<NamedValue>;

// Case-insensitive lookup (CIM names); null when absent.
const Value* findNamed(const NamedValues& values, const std::string& name);
// Replaces the value of an existing name (case-insensitive) or appends.
void setNamed(NamedValues& values, const std::string& name, Value value);

// Readable name of a CMPI type code, "uint16", "string[]", ...
std::string typeName(CMPIType type);

}  // namespace cmpihost

#endif

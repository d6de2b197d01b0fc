// Property tables: how the controller data becomes CIM properties.
//
// Every family of properties is one table of rows: the property name as
// stored in the cache, its CIM type, its key flags and a getter that reads
// the value from the library object behind a mapping context. A getter
// answers a RawValue, the value as the library has it; the row's CIM type
// decides the type of the property it becomes (a uint32 of the library can
// be stored as uint16, an enumeration as its number). A getter that cannot
// read a value answers an empty RawValue and the property is left out.
#ifndef VEX_CONTROLLER_PROPERTYTABLE_H
#define VEX_CONTROLLER_PROPERTYTABLE_H

#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "framework/CIMProperty.h"
#include "framework/DateAndTime.h"
#include "framework/PrimitiveDataType.h"

namespace vex::cim::fwf::fsamap {

using RawValue = std::variant<std::monostate, bool, long long, unsigned long long, std::string,
                              std::vector<unsigned long long>, std::vector<std::string>,
                              DateAndTime>;

// The flags of a row: KEY marks a key of the class whose instance the cache
// entry itself is (the empty-prefix view and the cache's instance identity);
// VIEW_KEY marks a key of the class served under the property's prefix.
enum PropertyFlags : unsigned char { PLAIN = 0, KEY = 1, VIEW_KEY = 2, KEY_AND_VIEW_KEY = 3 };

template <typename Context>
struct PropertyRow {
    const char* name;
    Primitive_DataType type;
    unsigned char flags;
    RawValue (*get)(const Context&);
};

inline RawValue raw(bool value) { return value; }
inline RawValue raw(const std::string& value) { return value; }
inline RawValue raw(const char* value) { return std::string(value); }
inline RawValue raw(const DateAndTime& value) { return value; }
inline RawValue raw(const std::vector<std::string>& value) { return value; }

template <typename T, std::enable_if_t<std::is_integral_v<T>, int> = 0>
RawValue raw(T value) {
    if constexpr (std::is_signed_v<T>) {
        return static_cast<long long>(value);
    } else {
        return static_cast<unsigned long long>(value);
    }
}

template <typename E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
RawValue raw(E value) {
    return raw(static_cast<std::underlying_type_t<E>>(value));
}

template <typename T, std::enable_if_t<std::is_integral_v<T>, int> = 0>
RawValue raw(const std::vector<T>& values) {
    return std::vector<unsigned long long>(values.begin(), values.end());
}

// A getter that reads one member of the library's data record behind a
// context: fieldOf<Context, &AdapterData::physicalSlot>. The context names
// its records through dataOf(context, const Record*) overloads.
template <typename Member>
struct MemberTraits;
template <typename Class, typename Value>
struct MemberTraits<Value Class::*> {
    using Owner = Class;
};

template <typename Context, auto Member>
RawValue fieldOf(const Context& context) {
    using Owner = typename MemberTraits<decltype(Member)>::Owner;
    return raw(dataOf(context, static_cast<const Owner*>(nullptr)).*Member);
}

// The property of a row for one value; false when the value is empty or
// cannot take the row's type (the property is then left out). Array types
// take a vector value or a single element.
bool makeProperty(const char* name, Primitive_DataType type, unsigned char flags,
                  const RawValue& value, CIMProperty& out);

// An array property of the row's (array) type with one element per value,
// in order; an empty value becomes the element type's default, so parallel
// arrays stay aligned.
CIMProperty makeColumn(const char* name, Primitive_DataType type, unsigned char flags,
                       const std::vector<RawValue>& elements);

}  // namespace vex::cim::fwf::fsamap

#endif

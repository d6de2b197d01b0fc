#include "controller/PropertyTable.h"

#include "framework/CIMValue.h"

namespace vex::cim::fwf::fsamap {

namespace {

// One element of the value as T; false when the value cannot be one.
template <typename T>
bool elementAs(const RawValue& value, T& out) {
    if constexpr (std::is_same_v<T, std::string>) {
        if (const auto* text = std::get_if<std::string>(&value)) {
            out = *text;
            return true;
        }
        if (const auto* moment = std::get_if<DateAndTime>(&value)) {
            out = moment->toString();
            return true;
        }
        return false;
    } else {
        if (const auto* flag = std::get_if<bool>(&value)) {
            out = static_cast<T>(*flag);
            return true;
        }
        if (const auto* number = std::get_if<long long>(&value)) {
            out = static_cast<T>(*number);
            return true;
        }
        if (const auto* number = std::get_if<unsigned long long>(&value)) {
            out = static_cast<T>(*number);
            return true;
        }
        return false;
    }
}

// The elements of an array value: a vector value's members, or the value itself.
std::vector<RawValue> elementsOf(const RawValue& value) {
    std::vector<RawValue> elements;
    if (const auto* numbers = std::get_if<std::vector<unsigned long long>>(&value)) {
        elements.assign(numbers->begin(), numbers->end());
    } else if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
        elements.assign(texts->begin(), texts->end());
    } else {
        elements.push_back(value);
    }
    return elements;
}

template <typename T>
bool scalarProperty(const char* name, Primitive_DataType type, unsigned char flags,
                    const RawValue& value, CIMProperty& out) {
    T element{};
    if (!elementAs(value, element)) {
        return false;
    }
    out = CIMProperty(name, CIMValue<T>(element), (flags & KEY) != 0, type,
                      (flags & VIEW_KEY) != 0);
    return true;
}

template <typename T>
CIMProperty arrayProperty(const char* name, Primitive_DataType type, unsigned char flags,
                          const std::vector<RawValue>& elements) {
    std::vector<T> values;
    values.reserve(elements.size());
    for (const RawValue& element : elements) {
        T value{};
        elementAs(element, value);
        values.push_back(value);
    }
    return CIMProperty(name, CIMValue<T>(std::move(values), false, false), (flags & KEY) != 0,
                       type, (flags & VIEW_KEY) != 0);
}

// Calls f with a value of the C++ element type of a CIM type tag (array
// tags give their element type); false for tags no table uses.
template <typename F>
bool withElementType(Primitive_DataType type, F&& f) {
    switch (static_cast<Primitive_DataType>(type & ~1u)) {
    case CIM_BOOLEAN: f(bool{}); return true;
    case CIM_SINT8: f(static_cast<signed char>(0)); return true;
    case CIM_UINT8: f(static_cast<unsigned char>(0)); return true;
    case CIM_SINT16: f(short{}); return true;
    case CIM_UINT16: f(static_cast<unsigned short>(0)); return true;
    case CIM_SINT32: f(int{}); return true;
    case CIM_UINT32: f(0u); return true;
    case CIM_SINT64: f(0ll); return true;
    case CIM_UINT64: f(0ull); return true;
    case CIM_STRING:
    case CIM_DATETIME: f(std::string()); return true;
    default: return false;
    }
}

}  // namespace

bool makeProperty(const char* name, Primitive_DataType type, unsigned char flags,
                  const RawValue& value, CIMProperty& out) {
    if (std::holds_alternative<std::monostate>(value)) {
        return false;
    }
    bool made = false;
    withElementType(type, [&](auto element) {
        using T = decltype(element);
        if (isArrayType(type)) {
            out = arrayProperty<T>(name, type, flags, elementsOf(value));
            made = true;
        } else {
            made = scalarProperty<T>(name, type, flags, value, out);
        }
    });
    return made;
}

CIMProperty makeColumn(const char* name, Primitive_DataType type, unsigned char flags,
                       const std::vector<RawValue>& elements) {
    CIMProperty column;
    withElementType(type, [&](auto element) {
        column = arrayProperty<decltype(element)>(name, type, flags, elements);
    });
    return column;
}

}  // namespace vex::cim::fwf::fsamap

// Compact storage of the value slots of a CIMProperty.
//
// A property has one slot per element type, but in practice only the slot of
// its type tag is ever filled (setPropValue can fill another one). Keeping
// fourteen CIMValue objects in every property would cost about 450 bytes per
// property, so a property keeps only the slots that were filled:
//
//   - the first filled slot lives inline (40 bytes with its flags);
//   - any further slot goes to a small heap vector that almost never exists.
//
// On x86-64 a property is 88 bytes: name 32, tag and flags 8, slot 40,
// pointer to further slots 8.
//
// A slot holding exactly one element of a non-compound type keeps it inline
// (One<T>), so a scalar string or number costs no extra heap block. Arrays,
// and every reference or embedded instance, use a std::vector (booleans one
// byte each, see BoolArray).
//
// A slot that was never filled reads as an empty value; a filled slot with no
// elements (an empty array) stays filled so that its flags survive.
#ifndef VEX_FRAMEWORK_PROPERTYSLOTS_H
#define VEX_FRAMEWORK_PROPERTYSLOTS_H

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "framework/CIMValue.h"
#include "framework/PrimitiveDataType.h"

namespace vex::cim::fwf {

class CIMObjectPath;
class CIMInstance;

namespace detail {

template <typename T, typename... Ts>
inline constexpr bool kIsOneOf = (std::is_same_v<T, Ts> || ...);

// The element types that have a slot in a property.
template <typename T>
inline constexpr bool kIsSlotType =
    kIsOneOf<T, bool, signed char, unsigned char, short, unsigned short, int, unsigned int,
             long long, unsigned long long, float, double, std::string, CIMObjectPath,
             CIMInstance>;

// Element types whose single element is kept without a heap buffer.
template <typename T>
inline constexpr bool kKeepsOneInline =
    kIsSlotType<T> && !kIsOneOf<T, CIMObjectPath, CIMInstance>;

template <typename T>
struct One {
    T value;
};

// Booleans of an array slot, one byte each: std::vector<bool> would make
// every slot 8 bytes larger.
struct BoolArray {
    std::vector<unsigned char> values;
};

// The container of an array slot of T.
template <typename T>
using ArrayOf = std::conditional_t<std::is_same_v<T, bool>, BoolArray, std::vector<T>>;

using SlotData = std::variant<std::monostate,
    One<bool>, BoolArray,
    One<signed char>, std::vector<signed char>,
    One<unsigned char>, std::vector<unsigned char>,
    One<short>, std::vector<short>,
    One<unsigned short>, std::vector<unsigned short>,
    One<int>, std::vector<int>,
    One<unsigned int>, std::vector<unsigned int>,
    One<long long>, std::vector<long long>,
    One<unsigned long long>, std::vector<unsigned long long>,
    One<float>, std::vector<float>,
    One<double>, std::vector<double>,
    One<std::string>, std::vector<std::string>,
    std::vector<CIMObjectPath>,
    std::vector<CIMInstance>>;

// One filled slot: its elements and the two flags of its value. Deriving from
// the variant lets the flags sit in its tail padding (40 bytes, not 48).
struct Slot : SlotData {
    bool firstFlag = false;
    bool secondFlag = false;

    SlotData& data() { return *this; }
    const SlotData& data() const { return *this; }
};

// Uniform access to the two array containers.
inline std::size_t arraySize(const BoolArray& array) { return array.values.size(); }
template <typename T>
std::size_t arraySize(const std::vector<T>& array) { return array.size(); }

inline bool arrayAt(const BoolArray& array, std::size_t i) { return array.values[i] != 0; }
template <typename T>
const T& arrayAt(const std::vector<T>& array, std::size_t i) { return array[i]; }

inline std::vector<bool> arrayElements(const BoolArray& array) {
    return std::vector<bool>(array.values.begin(), array.values.end());
}
template <typename T>
std::vector<T> arrayElements(const std::vector<T>& array) { return array; }

template <typename T>
ArrayOf<T> toArray(std::vector<T>&& elements) {
    if constexpr (std::is_same_v<T, bool>) {
        return BoolArray{std::vector<unsigned char>(elements.begin(), elements.end())};
    } else {
        return std::move(elements);
    }
}

// True when the slot data holds elements of type T (possibly none).
template <typename T>
bool holds(const SlotData& data) {
    if constexpr (kKeepsOneInline<T>) {
        if (std::holds_alternative<One<T>>(data)) {
            return true;
        }
    }
    return std::holds_alternative<ArrayOf<T>>(data);
}

template <typename T>
std::size_t elementCount(const SlotData& data) {
    if constexpr (kKeepsOneInline<T>) {
        if (std::holds_alternative<One<T>>(data)) {
            return 1;
        }
    }
    const auto* many = std::get_if<ArrayOf<T>>(&data);
    return many ? arraySize(*many) : 0;
}

// Element i of a slot known to hold T with more than i elements.
template <typename T>
decltype(auto) elementAt(const SlotData& data, std::size_t i) {
    using Result = std::conditional_t<std::is_same_v<T, bool>, bool, const T&>;
    if constexpr (kKeepsOneInline<T>) {
        if (const auto* one = std::get_if<One<T>>(&data)) {
            return static_cast<Result>(one->value);
        }
    }
    return static_cast<Result>(arrayAt(std::get<ArrayOf<T>>(data), i));
}

template <typename T>
std::vector<T> elementsOf(const SlotData& data) {
    if constexpr (kKeepsOneInline<T>) {
        if (const auto* one = std::get_if<One<T>>(&data)) {
            return std::vector<T>(1, one->value);
        }
    }
    const auto* many = std::get_if<ArrayOf<T>>(&data);
    return many ? arrayElements(*many) : std::vector<T>();
}

template <typename T>
void storeElements(SlotData& data, std::vector<T>&& elements) {
    if constexpr (kKeepsOneInline<T>) {
        if (elements.size() == 1) {
            data.template emplace<One<T>>(One<T>{T(std::move(elements.front()))});
            return;
        }
    }
    data.template emplace<ArrayOf<T>>(toArray<T>(std::move(elements)));
}

// Element comparison; references and embedded instances compare by meaning.
template <typename T>
bool elementEquals(const T& a, const T& b) {
    return a == b;
}
bool elementEquals(const CIMObjectPath& a, const CIMObjectPath& b);
bool elementEquals(const CIMInstance& a, const CIMInstance& b);

template <typename T>
std::size_t elementCount(const Slot* slot) {
    return slot ? elementCount<T>(slot->data()) : 0;
}

// True when both slots (either may be missing) hold equal T sequences.
template <typename T>
bool sameElements(const Slot* a, const Slot* b) {
    const std::size_t count = elementCount<T>(a);
    if (count != elementCount<T>(b)) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (!elementEquals(elementAt<T>(a->data(), i), elementAt<T>(b->data(), i))) {
            return false;
        }
    }
    return true;
}

// The filled slots of one property.
class SlotSet {
public:
    SlotSet();
    SlotSet(const SlotSet& other);
    SlotSet(SlotSet&& other) noexcept;
    SlotSet& operator=(const SlotSet& other);
    SlotSet& operator=(SlotSet&& other) noexcept;
    ~SlotSet();

    // The slot of element type T, or null when it was never filled.
    template <typename T>
    const Slot* find() const {
        if (holds<T>(m_first.data())) {
            return &m_first;
        }
        if (m_more) {
            for (const Slot& slot : *m_more) {
                if (holds<T>(slot.data())) {
                    return &slot;
                }
            }
        }
        return nullptr;
    }

    // The slot of element type T, made empty (no elements, flags clear) when
    // it did not exist yet. The caller fills in its elements.
    template <typename T>
    Slot& obtain() {
        if (const Slot* found = find<T>()) {
            return const_cast<Slot&>(*found);
        }
        return freshSlot();
    }

private:
    Slot& freshSlot();

    Slot m_first;
    std::unique_ptr<std::vector<Slot>> m_more;  // further filled slots, rarely any
};

// Calls f(T*) with a null pointer of the element type that carries values
// of the given tag; returns false (without calling f) for a tag without a slot.
template <typename F>
bool withElementType(Primitive_DataType type, F&& f) {
    switch (type >> 1) {
    case CIM_BOOLEAN >> 1: f(static_cast<bool*>(nullptr)); return true;
    case CIM_DATETIME >> 1: f(static_cast<std::string*>(nullptr)); return true;
    case CIM_REAL32 >> 1: f(static_cast<float*>(nullptr)); return true;
    case CIM_REAL64 >> 1: f(static_cast<double*>(nullptr)); return true;
    case CIM_SINT16 >> 1: f(static_cast<short*>(nullptr)); return true;
    case CIM_SINT32 >> 1: f(static_cast<int*>(nullptr)); return true;
    case CIM_SINT64 >> 1: f(static_cast<long long*>(nullptr)); return true;
    case CIM_SINT8 >> 1: f(static_cast<signed char*>(nullptr)); return true;
    case CIM_STRING >> 1: f(static_cast<std::string*>(nullptr)); return true;
    case CIM_UINT16 >> 1: f(static_cast<unsigned short*>(nullptr)); return true;
    case CIM_UINT32 >> 1: f(static_cast<unsigned int*>(nullptr)); return true;
    case CIM_UINT64 >> 1: f(static_cast<unsigned long long*>(nullptr)); return true;
    case CIM_UINT8 >> 1: f(static_cast<unsigned char*>(nullptr)); return true;
    case CIM_REFERENCE >> 1: f(static_cast<CIMObjectPath*>(nullptr)); return true;
    case CIM_INSTANCE >> 1: f(static_cast<CIMInstance*>(nullptr)); return true;
    default: return false;  // char16 and anything past the table
    }
}

}  // namespace detail
}  // namespace vex::cim::fwf

#endif

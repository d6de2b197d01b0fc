#include "providers/storage/ArrayElements.h"

#include <set>
#include <string>

#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf {

namespace {

bool isArray(Primitive_DataType type) { return (static_cast<int>(type) & 1) != 0; }

Primitive_DataType scalarOf(Primitive_DataType arrayType) {
    return static_cast<Primitive_DataType>(static_cast<int>(arrayType) - 1);
}

template <typename T>
struct Element {
    using type = T;
};

// Calls visit(Element<T>{}) with the element type T of an array type; `none`
// for a type without elements (char16, scalars).
template <typename Result, typename Visit>
Result visitElementType(Primitive_DataType arrayType, Result none, Visit&& visit) {
    switch (arrayType) {
    case CIM_BOOLEAN_ARRAY: return visit(Element<bool>{});
    case CIM_DATETIME_ARRAY:
    case CIM_STRING_ARRAY: return visit(Element<std::string>{});
    case CIM_REAL32_ARRAY: return visit(Element<float>{});
    case CIM_REAL64_ARRAY: return visit(Element<double>{});
    case CIM_SINT8_ARRAY: return visit(Element<signed char>{});
    case CIM_SINT16_ARRAY: return visit(Element<short>{});
    case CIM_SINT32_ARRAY: return visit(Element<int>{});
    case CIM_SINT64_ARRAY: return visit(Element<long long>{});
    case CIM_UINT8_ARRAY: return visit(Element<unsigned char>{});
    case CIM_UINT16_ARRAY: return visit(Element<unsigned short>{});
    case CIM_UINT32_ARRAY: return visit(Element<unsigned int>{});
    case CIM_UINT64_ARRAY: return visit(Element<unsigned long long>{});
    case CIM_REFERENCE_ARRAY: return visit(Element<CIMObjectPath>{});
    case CIM_INSTANCE_ARRAY: return visit(Element<CIMInstance>{});
    default: return none;
    }
}

std::size_t arraySize(const CIMProperty& array) {
    return visitElementType<std::size_t>(array.getType(), 0, [&array](auto element) {
        return array.getValueAs<typename decltype(element)::type>().size();
    });
}

// Elements of the instance's first array key; 0 when no key is an array.
std::size_t elementCount(const CIMInstance& instance) {
    for (const CIMProperty& key : instance.getKeyPropertyList()) {
        if (isArray(key.getType())) {
            return arraySize(key);
        }
    }
    return 0;
}

std::set<std::string> keyNames(const CIMInstance& instance) {
    std::set<std::string> names;
    for (const CIMProperty& key : instance.getKeyPropertyList()) {
        names.insert(key.getName());
    }
    return names;
}

}  // namespace

std::optional<CIMProperty> arrayElement(const CIMProperty& array, std::size_t index) {
    using Answer = std::optional<CIMProperty>;
    return visitElementType<Answer>(array.getType(), std::nullopt, [&](auto element) -> Answer {
        using T = typename decltype(element)::type;
        const CIMValue<T> values = array.getValueAs<T>();
        if (index >= values.size()) {
            return std::nullopt;
        }
        const T value = values.getValues()[index];
        return CIMProperty(array.getName(), CIMValue<T>(value), array.isKey(), scalarOf(array.getType()),
                           array.isViewKey());
    });
}

std::vector<CIMInstance> splitByElement(const CIMInstance& instance) {
    const std::size_t count = elementCount(instance);
    if (count == 0) {
        return {instance};
    }
    const std::set<std::string> keys = keyNames(instance);
    const CIMObjectPath address(instance.getHostName(), instance.getNameSpace(), instance.getClassName(), {});
    const std::vector<CIMProperty> properties = instance.getPropertyList();
    std::vector<CIMInstance> elements(count);
    for (std::size_t i = 0; i < count; ++i) {
        elements[i].setPath(address);
        for (const CIMProperty& property : properties) {
            std::optional<CIMProperty> value = isArray(property.getType()) ? arrayElement(property, i) : property;
            if (!value) {
                continue;
            }
            if (keys.count(property.getName()) != 0) {
                elements[i].addCimKeyBinding(std::move(*value));
            } else {
                elements[i].addProperty(std::move(*value));
            }
        }
    }
    return elements;
}

}  // namespace vex::cim::fwf

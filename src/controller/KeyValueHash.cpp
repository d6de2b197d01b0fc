#include "controller/KeyValueHash.h"

#include <functional>
#include <string>
#include <type_traits>

#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf::cache {

namespace {

template <typename T>
inline constexpr bool kHashedByValue =
    !std::is_same_v<T, CIMObjectPath> && !std::is_same_v<T, CIMInstance>;

template <typename T>
std::size_t hashElements(const CIMProperty& property, std::size_t seed) {
    if constexpr (kHashedByValue<T>) {
        const CIMValue<T> value = property.getValueAs<T>();
        for (const T& element : value.getValues()) {
            seed = combineHash(seed, std::hash<T>()(element));
        }
    }
    return seed;
}

}  // namespace

std::size_t hashKeyValue(const CIMProperty& property) {
    std::size_t seed = std::hash<std::string>()(property.getName());
    seed = combineHash(seed, property.getType());
    detail::withElementType(property.getType(), [&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        seed = hashElements<T>(property, seed);
    });
    return seed;
}

}  // namespace vex::cim::fwf::cache

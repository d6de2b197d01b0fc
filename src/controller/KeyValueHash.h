// Hashing of key properties, consistent with CIMProperty::equals: two
// properties that are equal hash alike. Used to find repeated instances in
// one pass instead of comparing every pair.
#ifndef VEX_CONTROLLER_KEYVALUEHASH_H
#define VEX_CONTROLLER_KEYVALUEHASH_H

#include <cstddef>

#include "framework/CIMProperty.h"

namespace vex::cim::fwf::cache {

// Name, type tag and the elements of the slot the tag selects. References
// and embedded instances compare by meaning (host ignored, case folded), so
// their elements are left out; the exact comparison that follows a hash hit
// tells them apart.
std::size_t hashKeyValue(const CIMProperty& property);

// Stands for a property the instance does not have.
inline constexpr std::size_t kMissingPropertyHash = 0x6d697373696e67ULL;

inline std::size_t combineHash(std::size_t seed, std::size_t value) {
    return seed ^ (value + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2));
}

}  // namespace vex::cim::fwf::cache

#endif

// The type tag of a CIM property. Scalar CIM types take even numbers, in the
// alphabetical order of their CIM names with reference and embedded instance
// last; the array of the same element type takes the next odd number.
#ifndef VEX_FRAMEWORK_PRIMITIVEDATATYPE_H
#define VEX_FRAMEWORK_PRIMITIVEDATATYPE_H

#include <cstdint>

namespace vex::cim::fwf {

enum Primitive_DataType : std::uint32_t {
    CIM_BOOLEAN = 0,
    CIM_BOOLEAN_ARRAY = 1,
    CIM_CHAR16 = 2,          // no slot: never produced
    CIM_CHAR16_ARRAY = 3,
    CIM_DATETIME = 4,        // carried as a string in CIM datetime form
    CIM_DATETIME_ARRAY = 5,
    CIM_REAL32 = 6,
    CIM_REAL32_ARRAY = 7,
    CIM_REAL64 = 8,
    CIM_REAL64_ARRAY = 9,
    CIM_SINT16 = 10,
    CIM_SINT16_ARRAY = 11,
    CIM_SINT32 = 12,
    CIM_SINT32_ARRAY = 13,
    CIM_SINT64 = 14,
    CIM_SINT64_ARRAY = 15,
    CIM_SINT8 = 16,
    CIM_SINT8_ARRAY = 17,
    CIM_STRING = 18,
    CIM_STRING_ARRAY = 19,
    CIM_UINT16 = 20,
    CIM_UINT16_ARRAY = 21,
    CIM_UINT32 = 22,
    CIM_UINT32_ARRAY = 23,
    CIM_UINT64 = 24,
    CIM_UINT64_ARRAY = 25,
    CIM_UINT8 = 26,
    CIM_UINT8_ARRAY = 27,
    CIM_REFERENCE = 28,
    CIM_REFERENCE_ARRAY = 29,
    CIM_INSTANCE = 30,
    CIM_INSTANCE_ARRAY = 31
};

// True for the odd (array) tags.
inline bool isArrayType(Primitive_DataType type) { return (type & 1u) != 0; }

}  // namespace vex::cim::fwf

#endif

// Instances stored as parallel arrays: the controller instance keeps its SAS
// phys and SAS ports as array properties, element i of every array belonging
// to phy (or port) i. These functions take such an instance apart into one
// instance per element.
#ifndef VEX_PROVIDERS_STORAGE_ARRAYELEMENTS_H
#define VEX_PROVIDERS_STORAGE_ARRAYELEMENTS_H

#include <cstddef>
#include <optional>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

// Element `index` of an array property as a scalar property of the same
// name and flags; nullopt when the array is shorter or the type has no
// elements to take.
std::optional<CIMProperty> arrayElement(const CIMProperty& array, std::size_t index);

// One instance per element of the instance's key arrays, in element order,
// each with the instance's address: array properties contribute their
// element (or nothing when they are shorter), scalar properties are copied,
// keys stay keys. An instance without array keys is returned as it is.
std::vector<CIMInstance> splitByElement(const CIMInstance& instance);

}  // namespace vex::cim::fwf

#endif

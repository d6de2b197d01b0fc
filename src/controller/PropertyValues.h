// Values of properties that arrive from clients (ModifyInstance changes,
// keys) or come back from the cache, read whatever CIM type they carry.
#ifndef VEX_CONTROLLER_PROPERTYVALUES_H
#define VEX_CONTROLLER_PROPERTYVALUES_H

#include <optional>
#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::fsamap {

// The first element as an unsigned number: booleans as 0/1, integers of any
// width and decimal strings; empty for anything else and for negatives.
std::optional<unsigned long long> numberOf(const CIMProperty& property);
// A boolean, or a number (non-zero is true).
std::optional<bool> flagOf(const CIMProperty& property);
std::optional<std::string> textOf(const CIMProperty& property);

// The first property of that name, or null.
const CIMProperty* findProperty(const std::vector<CIMProperty>& properties, const std::string& name);

}  // namespace vex::cim::fwf::fsamap

#endif

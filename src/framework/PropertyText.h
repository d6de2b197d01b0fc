// Readable text of a property for log lines.
#ifndef VEX_FRAMEWORK_PROPERTYTEXT_H
#define VEX_FRAMEWORK_PROPERTYTEXT_H

#include <string>

#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

// "Name(18)=\"text\"", "Sizes(25)={1,2}", "Ref(28)=//host/ns:Class.Key=\"k\"",
// "Item(30)=<instance VEX_StorageExtent>". The value is read from the slot of
// the property's type; an empty scalar shows nothing after "=", an array
// shows its elements in braces, a tag without a slot shows "?".
std::string describeProperty(const CIMProperty& property);

}  // namespace vex::cim::fwf

#endif

// Short-hands for the properties plug-ins build and read most often.
#ifndef VEX_FRAMEWORK_PROPERTYBUILDERS_H
#define VEX_FRAMEWORK_PROPERTYBUILDERS_H

#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

inline CIMProperty stringProperty(const std::string& name, const std::string& value,
                                  bool isKey = false) {
    return CIMProperty(name, CIMValue<std::string>(value), isKey, CIM_STRING, false);
}

inline CIMProperty stringArrayProperty(const std::string& name, std::vector<std::string> values) {
    return CIMProperty(name, CIMValue<std::string>(std::move(values), false, false), false,
                       CIM_STRING_ARRAY, false);
}

inline CIMProperty uint16Property(const std::string& name, unsigned short value) {
    return CIMProperty(name, CIMValue<unsigned short>(value), false, CIM_UINT16, false);
}

inline CIMProperty uint16ArrayProperty(const std::string& name,
                                       std::vector<unsigned short> values) {
    return CIMProperty(name, CIMValue<unsigned short>(std::move(values), false, false), false,
                       CIM_UINT16_ARRAY, false);
}

inline CIMProperty booleanProperty(const std::string& name, bool value) {
    return CIMProperty(name, CIMValue<bool>(value), false, CIM_BOOLEAN, false);
}

// The first string of the named property of an instance; empty when the
// instance has no such property or it holds no string.
inline std::string stringValueOf(const CIMInstance& instance, const std::string& name) {
    const CIMProperty* property = instance.getPropertyByName(name);
    if (property == nullptr) {
        return std::string();
    }
    const CIMValue<std::string> value = property->getStringValue();
    return value.isEmpty() ? std::string() : value.getValues()[0];
}

}  // namespace vex::cim::fwf

#endif

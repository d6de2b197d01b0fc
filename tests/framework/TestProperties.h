// Short-hands for building the properties the framework tests use.
#ifndef VEX_TESTS_FRAMEWORK_TESTPROPERTIES_H
#define VEX_TESTS_FRAMEWORK_TESTPROPERTIES_H

#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::test {

inline CIMProperty stringKey(const std::string& name, const std::string& value) {
    return CIMProperty(name, CIMValue<std::string>(value, false, false), true, CIM_STRING, false);
}

inline CIMProperty stringProp(const std::string& name, const std::string& value) {
    return CIMProperty(name, CIMValue<std::string>(value, false, false), false, CIM_STRING, false);
}

inline CIMProperty uint16Prop(const std::string& name, unsigned short value, bool isKey = false) {
    return CIMProperty(name, CIMValue<unsigned short>(value, false, false), isKey, CIM_UINT16,
                       false);
}

inline CIMProperty refKey(const std::string& name, const CIMObjectPath& path) {
    return CIMProperty(name, CIMValue<CIMObjectPath>(path, false, false), true, CIM_REFERENCE,
                       false);
}

// A volume path as the storage plug-ins build it.
inline CIMObjectPath volumePath(const std::string& host, const std::string& deviceId) {
    return CIMObjectPath(host, "root/tkz/vex/smi_15", "VEX_StorageVolume",
                         {stringKey("CreationClassName", "VEX_StorageVolume"),
                          stringKey("DeviceID", deviceId)});
}

}  // namespace vex::cim::fwf::test

#endif

// Building the instances of the storage model classes: where they go, their
// keys and their typed properties.
#ifndef VEX_PROVIDERS_STORAGE_MODEL_MODELINSTANCES_H
#define VEX_PROVIDERS_STORAGE_MODEL_MODELINSTANCES_H

#include <cstdint>
#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf::storage {

// Collects the instances of one class, each addressed with the request's
// host and namespace and the class name.
class ModelSink {
public:
    ModelSink(const CIMObjectPath& request, const char* className, std::vector<CIMInstance>& out)
        : m_request(request), m_className(className), m_out(out) {}

    // A new, empty instance of the class.
    CIMInstance& add();
    const char* className() const { return m_className; }

private:
    const CIMObjectPath& m_request;
    const char* m_className;
    std::vector<CIMInstance>& m_out;
};

void keyProperty(CIMInstance& instance, const std::string& name, const std::string& value);
// SystemCreationClassName, SystemName, CreationClassName, DeviceID.
void deviceKeys(CIMInstance& instance, const std::string& system, const std::string& className,
                const std::string& deviceId);
void put(CIMInstance& instance, const std::string& name, const std::string& value);
void put(CIMInstance& instance, const std::string& name, const std::vector<std::string>& values);
void putBool(CIMInstance& instance, const std::string& name, bool value);
void putU16(CIMInstance& instance, const std::string& name, unsigned short value);
void putU16s(CIMInstance& instance, const std::string& name, std::vector<unsigned short> values);
void putU64(CIMInstance& instance, const std::string& name, std::uint64_t value);

// The properties of `record` whose names begin with `prefix`, prefix removed,
// `keyName` (after removal) flagged as the key.
void copyPrefixed(const CIMInstance& record, const std::string& prefix, const std::string& keyName,
                  CIMInstance& out);
// Every property of `record` but `except`.
void copyAllBut(const CIMInstance& record, const std::string& except, CIMInstance& out);

// The join-key text of a string value, as a property holding it gives it.
std::string stringKey(const std::string& value);

}  // namespace vex::cim::fwf::storage

#endif

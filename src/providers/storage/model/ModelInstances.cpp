#include "providers/storage/model/ModelInstances.h"

#include "framework/AssociationRow.h"
#include "framework/PropertyBuilders.h"

namespace vex::cim::fwf::storage {

CIMInstance& ModelSink::add() {
    m_out.emplace_back();
    m_out.back().setPath(CIMObjectPath(m_request.getHostName(), m_request.getNameSpace(), m_className, {}));
    return m_out.back();
}

void keyProperty(CIMInstance& instance, const std::string& name, const std::string& value) {
    instance.addCimKeyBinding(stringProperty(name, value, true));
}

void deviceKeys(CIMInstance& instance, const std::string& system, const std::string& className,
                const std::string& deviceId) {
    keyProperty(instance, "SystemCreationClassName", "VEX_ControllerComputerSystem");
    keyProperty(instance, "SystemName", system);
    keyProperty(instance, "CreationClassName", className);
    keyProperty(instance, "DeviceID", deviceId);
}

void put(CIMInstance& instance, const std::string& name, const std::string& value) {
    instance.addProperty(stringProperty(name, value));
}

void put(CIMInstance& instance, const std::string& name, const std::vector<std::string>& values) {
    instance.addProperty(stringArrayProperty(name, values));
}

void putBool(CIMInstance& instance, const std::string& name, bool value) {
    instance.addProperty(booleanProperty(name, value));
}

void putU16(CIMInstance& instance, const std::string& name, unsigned short value) {
    instance.addProperty(uint16Property(name, value));
}

void putU16s(CIMInstance& instance, const std::string& name, std::vector<unsigned short> values) {
    instance.addProperty(uint16ArrayProperty(name, std::move(values)));
}

void putU64(CIMInstance& instance, const std::string& name, std::uint64_t value) {
    instance.addProperty(
        CIMProperty(name, CIMValue<unsigned long long>(value), false, CIM_UINT64, false));
}

void copyPrefixed(const CIMInstance& record, const std::string& prefix, const std::string& keyName,
                  CIMInstance& out) {
    for (CIMProperty& property : record.getPropertyList()) {
        if (property.getName().compare(0, prefix.size(), prefix) != 0) {
            continue;
        }
        property.setName(property.getName().substr(prefix.size()));
        property.setViewKey(false);
        property.setKey(property.getName() == keyName);
        if (property.isKey()) {
            out.addCimKeyBinding(std::move(property));
        } else {
            out.addProperty(std::move(property));
        }
    }
}

void copyAllBut(const CIMInstance& record, const std::string& except, CIMInstance& out) {
    for (CIMProperty& property : record.getPropertyList()) {
        if (property.getName() != except) {
            property.setKey(false);
            property.setViewKey(false);
            out.addProperty(std::move(property));
        }
    }
}

std::string stringKey(const std::string& value) {
    CIMInstance holder;
    holder.addProperty(stringProperty("k", value));
    return keyText(holder, "k");
}

}  // namespace vex::cim::fwf::storage

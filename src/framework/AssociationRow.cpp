#include "framework/AssociationRow.h"

#include "framework/CommonFunctions.h"
#include "framework/PropertyText.h"

namespace vex::cim::fwf {

namespace {

constexpr char kKeySeparator = '\x1f';

}  // namespace

std::string keyText(const CIMInstance& instance, const std::string& propertyName) {
    const CIMProperty* property = instance.getPropertyByName(propertyName);
    if (property == nullptr) {
        return std::string();
    }
    if (property->getType() == CIM_STRING || property->getType() == CIM_DATETIME) {
        const CIMValue<std::string> value = property->getStringValue();
        return value.isEmpty() ? std::string() : value.getValues()[0];
    }
    // "Name(24)=value": the value's text is what follows the first '='.
    const std::string described = describeProperty(*property);
    const std::size_t equals = described.find('=');
    return equals == std::string::npos ? std::string() : described.substr(equals + 1);
}

void joinKeysOf(const EndKey& key, const CIMInstance& instance, std::vector<std::string>& out) {
    if (key.compute != nullptr) {
        key.compute(instance, out);
        return;
    }
    if (key.properties == nullptr || *key.properties == '\0') {
        out.emplace_back();  // no key properties: the one empty key
        return;
    }
    std::string joined;
    const std::string names = key.properties;
    const unsigned int count = CommonFunctions::getStringCount(names);
    for (unsigned int i = 0; i < count; ++i) {
        const std::string name = CommonFunctions::getStringAt(names, i);
        if (instance.getPropertyByName(name) == nullptr) {
            return;  // lacks a key property: linked to nothing
        }
        if (i > 0) {
            joined += kKeySeparator;
        }
        joined += keyText(instance, name);
    }
    out.push_back(std::move(joined));
}

}  // namespace vex::cim::fwf

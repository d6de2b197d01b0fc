#include "controller/FsaCIMInstanceWrapper.h"

namespace vex::cim::fwf {

void fsaCIMInstanceWrapper::add(CIMProperty property) {
    if (property.isKey()) {
        addCimKeyBinding(std::move(property));
    } else {
        addProperty(std::move(property));
    }
}

void fsaCIMInstanceWrapper::fsaAddProp(const std::string& name, const DateAndTime& value,
                                       bool key, bool viewKey) {
    add(CIMProperty(name, CIMValue<std::string>(value.toString()), key, CIM_DATETIME, viewKey));
}

void fsaCIMInstanceWrapper::fsaAddProp(const std::string& name,
                                       const fsaCIMInstanceWrapper& value, bool key,
                                       bool viewKey) {
    const CIMInstance& embedded = value;
    add(CIMProperty(name, CIMValue<CIMInstance>(embedded), key, CIM_INSTANCE, viewKey));
}

}  // namespace vex::cim::fwf

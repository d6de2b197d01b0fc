#include "providers/storage/ServiceAssociations.h"

#include "framework/PropertyBuilders.h"

namespace vex::cim::fwf {

// Both ends of the rows that use it compute their keys here, so the key is
// the bare controller number.
void controllerOfInstance(const CIMInstance& instance, std::vector<std::string>& keys) {
    for (const char* name : {"SystemName", "InstanceID", "Name"}) {
        const std::string text = stringValueOf(instance, name);
        const std::size_t separator = text.rfind('_');
        if (separator == std::string::npos || separator + 1 == text.size()) {
            continue;
        }
        const std::string number = text.substr(separator + 1);
        if (number.find_first_not_of("0123456789") == std::string::npos) {
            keys.push_back(number);
            return;
        }
    }
}

}  // namespace vex::cim::fwf

#include "controller/ViewProjection.h"

namespace vex::cim::fwf::cache {

namespace {

bool hasPrefix(const std::string& name, const std::string& prefix) {
    return name.compare(0, prefix.size(), prefix) == 0;
}

}  // namespace

bool buildViewInstance(const CachedInstance& stored, const std::string& prefix, bool viewKeysOnly,
                       CIMInstance& built) {
    bool seen = false;
    built.reserveProperties(stored.properties().size());
    for (const CIMProperty& property : stored.properties()) {
        if (!hasPrefix(property.getName(), prefix)) {
            continue;
        }
        seen = true;
        if (viewKeysOnly && !property.isViewKey()) {
            continue;
        }
        // Each property is copied once, under its name without the prefix.
        CIMProperty renamed(property, property.getName().substr(prefix.size()));
        if (renamed.isViewKey()) {
            built.addCimKeyBinding(std::move(renamed));
        } else {
            built.addProperty(std::move(renamed));
        }
    }
    return seen;
}

CIMInstance buildKeysInstance(const CachedInstance& stored) {
    CIMInstance built;
    for (const CIMProperty& property : stored.properties()) {
        if (property.isKey()) {
            built.addCimKeyBinding(property);
        }
    }
    return built;
}

}  // namespace vex::cim::fwf::cache

#include "controller/SettingGroups.h"

#include "controller/PropertyValues.h"

namespace vex::cim::fwf::fsamap {

namespace {

template <typename T>
std::optional<T> logMissing(const char* name, std::optional<T> value) {
    if (!value) {
        TkzLogMsg(TKZ_LOG_ERROR, "! Failed to get '%s' from cache; Op aborted.", name);
    }
    return value;
}

}  // namespace

const CIMProperty* SettingValues::changed(const char* name) const { return findProperty(m_changes, name); }

const CIMProperty* SettingValues::find(const char* name) const {
    if (const CIMProperty* change = changed(name)) {
        return change;
    }
    return m_stored != nullptr ? m_stored->getPropertyByName(name) : nullptr;
}

std::optional<unsigned long long> SettingValues::number(const char* name) const {
    const CIMProperty* property = find(name);
    return logMissing(name, property != nullptr ? numberOf(*property) : std::nullopt);
}

std::optional<bool> SettingValues::flag(const char* name) const {
    const CIMProperty* property = find(name);
    return logMissing(name, property != nullptr ? flagOf(*property) : std::nullopt);
}

std::optional<std::string> SettingValues::text(const char* name) const {
    const CIMProperty* property = find(name);
    return logMissing(name, property != nullptr ? textOf(*property) : std::nullopt);
}

}  // namespace vex::cim::fwf::fsamap

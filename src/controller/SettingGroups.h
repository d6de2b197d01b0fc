// ModifyInstance on a controller or a logical drive: each group of
// properties that the controller sets in one call is a row of a table (the
// property names, the wrapper's name, the function that reads the values and
// calls the wrapper). A value the client did not send is taken from the
// cached instance, so a group can be set when only one of its members changed.
#ifndef VEX_CONTROLLER_SETTINGGROUPS_H
#define VEX_CONTROLLER_SETTINGGROUPS_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <storlib/Ret.h>

#include "controller/FsaifReturn.h"
#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf::fsamap {

// The changed properties and the instance as the cache holds it.
class SettingValues {
public:
    SettingValues(const std::vector<CIMProperty>& changes, const CIMInstance* stored)
        : m_changes(changes), m_stored(stored) {}

    const CIMProperty* changed(const char* name) const;
    // The changed value, else the cached one. When neither can be read,
    // logs "! Failed to get '%s' from cache; Op aborted." and answers empty.
    std::optional<unsigned long long> number(const char* name) const;
    std::optional<bool> flag(const char* name) const;
    std::optional<std::string> text(const char* name) const;

private:
    const CIMProperty* find(const char* name) const;

    const std::vector<CIMProperty>& m_changes;
    const CIMInstance* m_stored;
};

// What a group's function answers besides a wrapper's code: a value could
// not be read (the whole request stops), or the values were refused before
// any wrapper was called.
constexpr unsigned int kSettingAborted = FSAIF_CACHE_OBJECT_NOT_FOUND;
constexpr unsigned int kSettingRefused = FSAIF_INVALID_PARAM;

template <typename Target>
struct SettingGroup {
    const char* names[4];  // the group's properties; unused slots null
    const char* wrapper;
    unsigned int (*apply)(const Target& target, const SettingValues& values, storlib::Ret& ret);
};

// Applies every group with a changed member, in table order, and logs the
// wrapper's name followed by "succeeded" or "failed". The result is the
// first failure, or 0.
template <typename Target, std::size_t N>
unsigned int applySettingGroups(const SettingGroup<Target> (&groups)[N], const Target& target,
                                const SettingValues& values) {
    unsigned int result = FSAIF_SUCCESS;
    for (const SettingGroup<Target>& group : groups) {
        bool touched = false;
        for (const char* name : group.names) {
            touched = touched || (name != nullptr && values.changed(name) != nullptr);
        }
        if (!touched) {
            continue;
        }
        storlib::Ret ret;
        const unsigned int code = group.apply(target, values, ret);
        if (code == kSettingAborted) {
            return code;
        }
        if (code != kSettingRefused) {
            TkzLogMsg(code == FSAIF_SUCCESS ? TKZ_LOG_INFO : TKZ_LOG_ERROR, "%s %s", group.wrapper,
                      code == FSAIF_SUCCESS ? "succeeded" : "failed");
        }
        if (code != FSAIF_SUCCESS && result == FSAIF_SUCCESS) {
            result = code;
        }
    }
    return result;
}

}  // namespace vex::cim::fwf::fsamap

#endif

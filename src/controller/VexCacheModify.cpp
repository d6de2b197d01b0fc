// modifyObjectInstance: patching property values of stored instances.
#include "controller/CacheKeyMatch.h"
#include "controller/CacheTrace.h"
#include "controller/RepositoryLock.h"
#include "controller/VexCacheManager.h"

#include <algorithm>

namespace vex::cim::fwf {

using cache::CachedInstance;
using cache::CacheTrace;
using cache::RepositoryLock;

namespace {

// The instance with each changed value set, converted to the stored
// property's own type. complete is false when the instance lacks a property
// of changes: the changes before that one are kept, the rest not made.
CachedInstance applyChanges(const CachedInstance& stored, const std::vector<CIMProperty>& changes,
                            bool& complete) {
    std::vector<std::pair<std::size_t, CIMProperty>> changed;
    complete = true;
    for (const CIMProperty& change : changes) {
        const std::size_t index = stored.indexOf(change.getName());
        if (index == CachedInstance::npos) {
            complete = false;
            break;
        }
        // A property changed twice takes both changes in turn.
        auto earlier = std::find_if(changed.begin(), changed.end(),
                                    [&](const auto& each) { return each.first == index; });
        if (earlier == changed.end()) {
            changed.emplace_back(index, stored.properties()[index]);
            earlier = changed.end() - 1;
        }
        earlier->second.setPropValue(earlier->second.getType(), change);
    }
    return changed.empty() ? stored : stored.withChanges(std::move(changed));
}

}  // namespace

// Every matching instance is changed, but the answer follows the last
// instance of the list alone: callers read VEX_CM_ENTRY_NOT_EXISTS as "not
// found" although earlier matches were already updated. Kept on purpose.
// Stored instances never change in place: a changed one is replaced by a new
// instance, in a list of this repository's own.
unsigned int VexCacheManager::modifyObjectInstance(_eVEXObjectType type,
                                                   const std::vector<CIMProperty>& keys,
                                                   const std::vector<CIMProperty>& changes) {
    CacheTrace trace("ENTER::modifyObjectInstance", "EXIT::modifyObjectInstance");
    const bool updater = callerIsUpdater();
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    Contents& contents = writableContents(updater);
    const auto found = contents.find(type);
    if (found == contents.end()) {
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_DEVTYPE_NOT_EXIST--Device Type:: %d",
                  static_cast<int>(type));
        return lock.releaseWith(VEX_CM_DEVTYPE_NOT_EXIST);
    }
    Instances& list = writable(found->second);
    bool lastMatched = true;  // an empty list answers success
    for (CachedInstance& stored : list) {
        lastMatched = cache::matchesKeys(keys, stored);
        if (!lastMatched) {
            continue;
        }
        bool complete = true;
        stored = applyChanges(stored, changes, complete);
        if (!complete) {
            TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS mod prop not found");
            return lock.releaseWith(VEX_CM_ENTRY_NOT_EXISTS);
        }
    }
    if (!lastMatched) {
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS Key don't matched");
        return lock.releaseWith(VEX_CM_ENTRY_NOT_EXISTS);
    }
    return lock.releaseWith(VEX_CM_SUCCESS);
}

}  // namespace vex::cim::fwf

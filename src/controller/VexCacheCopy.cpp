// copyNewCachetoOldCache: making the repository not marked latest an exact
// copy of the latest one, at the end of every cache rebuild.
//
// The copy used to flush the target and refill it with one addObjInstance
// per instance. That had two faults: each add compared the instance with
// every one already copied (quadratic: ~2 million key comparisons for 2048
// drives), and the target - the repository readers were being served from -
// stood empty or half filled while a request could read it. Now the new
// contents are built aside, under the source's read lock only, with the
// repeated instances dropped through a hash of their key values
// (DistinctInstances, same first-wins result as the adds had), and are then
// put in place under the target's write lock in one step. A reader sees the
// complete old contents or the complete new ones, never a mixture. No
// operation holds the locks of both repositories at once.
//
// What the adds did is kept: a type whose list is empty is not copied (no
// add ever ran for it), and each dropped repeat logs the line a refused add
// wrote. The copy traces its own ENTER/EXIT lines, no longer one pair per
// instance.
#include "controller/CacheTrace.h"
#include "controller/DistinctInstances.h"
#include "controller/RepositoryLock.h"
#include "controller/VexCacheManager.h"

namespace vex::cim::fwf {

using cache::CachedInstance;
using cache::CacheTrace;
using cache::RepositoryLock;

namespace {

std::vector<CachedInstance> distinctList(_eVEXObjectType type,
                                         const std::vector<CachedInstance>& list) {
    cache::DistinctInstances distinct(list.size());
    for (const CachedInstance& instance : list) {
        if (!distinct.offer(instance)) {
            TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_ALREADY_EXIST--Device Type:: %d",
                      static_cast<int>(type));
        }
    }
    return distinct.take();
}

}  // namespace

bool VexCacheManager::distinctCopy(Contents& copy) const {
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Read);
    if (!lock.held()) {
        return false;
    }
    for (const auto& [type, list] : m_objects) {
        if (!list.empty()) {
            copy.emplace_hint(copy.end(), type, distinctList(type, list));
        }
    }
    lock.release();  // the copy is complete either way
    return true;
}

void VexCacheManager::install(Contents& contents) {
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (lock.held()) {
        m_objects.swap(contents);
        lock.release();
    }
}

void VexCacheManager::copyNewCachetoOldCache() {
    CacheTrace trace("ENTER::copyNewCachetoOldCache", "EXIT::copyNewCachetoOldCache");
    VexCacheManager* from = nullptr;
    VexCacheManager* to = nullptr;
    if (sVexCacheRepoNewIsLatest.load()) {
        from = sVexCacheRepoNew.load();
        to = sVexCacheRepoOld.load();
    } else if (sVexCacheRepoOldIsLatest.load()) {
        from = sVexCacheRepoOld.load();
        to = sVexCacheRepoNew.load();
    }
    if (from == nullptr || to == nullptr || from == to) {
        return;
    }
    Contents contents;
    if (from->distinctCopy(contents)) {
        to->install(contents);  // contents now holds the replaced ones, freed here unlocked
    }
}

}  // namespace vex::cim::fwf

// copyNewCachetoOldCache: making the repository not marked latest an exact
// copy of the latest one, at the end of every cache rebuild.
//
// The copy used to flush the target and refill it with one addObjInstance
// per instance. That had two faults: each add compared the instance with
// every one already copied (quadratic: ~2 million key comparisons for 2048
// drives), and the target - the repository readers were being served from -
// stood empty or half filled while a request could read it. Now the source's
// latest generation (what the update thread staged in it) is checked for
// repeated instances through a hash of their key values (DistinctInstances,
// same first-wins result as the adds had), the target is given the result
// in one step under its write lock, and then the source publishes what it
// staged. A list without repeats is not copied at
// all: both repositories share it until one of them writes to it. A reader
// sees the complete old contents or the complete new ones, never a mixture.
// No operation holds the locks of both repositories at once.
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
    Contents latest;
    {
        RepositoryLock lock(m_lock, RepositoryLock::Mode::Read);
        if (!lock.held()) {
            return false;
        }
        latest = m_staged ? *m_staged : m_published;
        shareAll(latest);
        lock.release();  // the copy is complete either way
    }
    for (const auto& [type, list] : latest) {
        if (list->items.empty()) {
            continue;
        }
        Instances distinct = distinctList(type, list->items);
        copy.emplace_hint(copy.end(), type,
                          distinct.size() == list->items.size()
                              ? list
                              : std::make_shared<InstanceList>(std::move(distinct)));
    }
    return true;
}

void VexCacheManager::install(Contents& contents) {
    std::optional<Contents> staged;  // freed outside the lock
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (lock.held()) {
        m_published.swap(contents);
        staged.swap(m_staged);
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
    // The target first: readers of the target (the served repository) get
    // the new generation before anyone sees it in the source, so a reader
    // never meets an older generation after a newer one.
    Contents contents;
    if (from->distinctCopy(contents)) {
        to->install(contents);  // contents now holds the replaced ones, freed here unlocked
    }
    from->publishStaged();
}

}  // namespace vex::cim::fwf

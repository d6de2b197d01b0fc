// The two repositories, the flags that say which one a caller gets, and
// their creation and clean-up.
#include "controller/CacheTrace.h"
#include "controller/CallerThread.h"
#include "controller/VexCacheManager.h"

#include <new>

namespace vex::cim::fwf {

using cache::CacheTrace;

std::atomic<VexCacheManager*> VexCacheManager::sVexCacheRepoNew{nullptr};
std::atomic<VexCacheManager*> VexCacheManager::sVexCacheRepoOld{nullptr};
std::atomic<bool> VexCacheManager::sVexCacheRepoNewIsLatest{true};
std::atomic<bool> VexCacheManager::sVexCacheRepoOldIsLatest{false};
std::atomic<bool> VexCacheManager::flagSwapped{false};
std::atomic<unsigned long long> VexCacheManager::threadId{cache::kNoThread};
// Defined before vexCleanup, whose destructor deletes it.
TKZ_MUTEX VexCacheManager::sCreateMutex = TkzMutexInit();
VexCacheManagerCleanUp VexCacheManager::vexCleanup(nullptr, nullptr);

VexCacheManagerCleanUp::VexCacheManagerCleanUp(VexCacheManager* first, VexCacheManager* second)
    : m_first(first), m_second(second) {}

VexCacheManagerCleanUp::~VexCacheManagerCleanUp() {
    TkzLogUninit();
    TkzMutexDelete(&VexCacheManager::sCreateMutex);
    VexCacheManager::sVexCacheRepoNew.store(nullptr);
    VexCacheManager::sVexCacheRepoOld.store(nullptr);
    delete m_first;
    delete m_second;
}

void VexCacheManagerCleanUp::SetInstance(VexCacheManager* first, VexCacheManager* second) {
    if (m_first == nullptr) {
        m_first = first;
    }
    if (m_second == nullptr) {
        m_second = second;
    }
}

// Called when a pointer was seen null: creates the pair under the
// creation mutex unless another thread got there first. Both are published
// while the mutex is held, so whoever takes it next sees both.
void VexCacheManager::createRepositories() {
    const bool locked = TkzMutexLock(sCreateMutex) == 0;
    if (locked && sVexCacheRepoNew.load() == nullptr && sVexCacheRepoOld.load() == nullptr) {
        VexCacheManager* first = new (std::nothrow) VexCacheManager;
        VexCacheManager* second = new (std::nothrow) VexCacheManager;
        if (first != nullptr && second != nullptr) {
            vexCleanup.SetInstance(first, second);
            sVexCacheRepoNew.store(first);
            sVexCacheRepoOld.store(second);
            TkzLogInit("VexCache");
        } else {
            delete first;
            delete second;
        }
    }
    TkzMutexUnlock(sCreateMutex);  // also when the lock call failed
}

// With flagSwapped false, readers (current) get the first repository and
// the shadow is the second; flagSwapped true exchanges the roles. Handing out
// the shadow marks it as the latest one.
VexCacheManager* VexCacheManager::chooseRepository(bool current) {
    const bool selector = current;
    const bool second = flagSwapped.load() == selector;
    VexCacheManager* chosen = second ? sVexCacheRepoOld.load() : sVexCacheRepoNew.load();
    if (!current) {
        sVexCacheRepoNewIsLatest.store(!second);
        sVexCacheRepoOldIsLatest.store(second);
    }
    return chosen;
}

VexCacheManager* VexCacheManager::getInstance(bool current) {
    CacheTrace trace("ENTER::getInstance", "EXIT::getInstance");
    // Either pointer null sends the caller to the creation mutex: a thread
    // that sees the pair half published waits there until both are set.
    if (sVexCacheRepoNew.load() == nullptr || sVexCacheRepoOld.load() == nullptr) {
        createRepositories();
    }
    // The update thread always works on the shadow repository.
    if (cache::callerThreadId() == threadId.load()) {
        current = false;
    }
    return chooseRepository(current);
}

void VexCacheManager::initCacheUpdate() {
    CacheTrace trace("ENTER::initCacheUpdate", "EXIT::initCacheUpdate");
    threadId.store(cache::callerThreadId());
}

// What the update thread staged and did not yet hand over through
// copyNewCachetoOldCache becomes, as a whole, what everyone sees.
void VexCacheManager::exitCacheUpdate() {
    CacheTrace trace("ENTER::exitCacheUpdate", "EXIT::exitCacheUpdate");
    threadId.store(cache::kNoThread);
    for (VexCacheManager* repository : {sVexCacheRepoNew.load(), sVexCacheRepoOld.load()}) {
        if (repository != nullptr) {
            repository->publishStaged();
        }
    }
}

void VexCacheManager::reverseCacheSwapFlag() {
    CacheTrace trace("ENTER::reverseCacheSwapFlag", "EXIT::reverseCacheSwapFlag");
    flagSwapped.store(!flagSwapped.load());
}

void VexCacheManager::setSVexCacheRepoNewIsLatest(bool isLatest) {
    sVexCacheRepoNewIsLatest.store(isLatest);
}

void VexCacheManager::setSVexCacheRepoOldIsLatest(bool isLatest) {
    sVexCacheRepoOldIsLatest.store(isLatest);
}

}  // namespace vex::cim::fwf

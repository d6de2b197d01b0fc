// VexFSAInterface::initialize: reads every controller and rebuilds the cache.
#include <vector>

#include <storlib/StorLib.h>

#include "controller/FsaCIMInstanceWrapper.h"
#include "controller/FsaCacheBuild.h"
#include "controller/FsaTrace.h"

namespace vex::cim::fwf {

namespace {

// The types a full rebuild erases, in this order; the settings (15 to 17)
// survive every rebuild.
constexpr _eVEXObjectType kRebuiltTypes[] = {
    VEX_OBJ_PHYSICAL_DRIVE, VEX_OBJ_STORAGE_VOLUME, VEX_OBJ_CONTROLLER, VEX_OBJ_RESERVED_3,
    VEX_OBJ_CONCRETE_POOL,  VEX_OBJ_RESERVED_6,     VEX_OBJ_ENCLOSURE,  VEX_OBJ_SES_ELEMENT,
    VEX_OBJ_RESERVED_9,     VEX_OBJ_RESERVED_10,    VEX_OBJ_RESERVED_11, VEX_OBJ_RESERVED_13,
    VEX_OBJ_SSP_POOL};

// Unlocks the StorLib guard when the build leaves, also by an exception.
class GuardRelease {
public:
    explicit GuardRelease(TKZ_MUTEX guard) : m_guard(guard) {}
    GuardRelease(const GuardRelease&) = delete;
    GuardRelease& operator=(const GuardRelease&) = delete;
    ~GuardRelease() { release(); }
    void release() {
        if (m_guard != nullptr) {
            TkzMutexUnlock(m_guard);
            m_guard = nullptr;
        }
    }

private:
    TKZ_MUTEX m_guard;
};

VexCacheManager* currentCache() {
    try {
        return VexCacheManager::getInstance(true);
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "Exception..Failed to get Cache Handles");
        return nullptr;
    }
}

void copyToOtherRepository() {
    try {
        VexCacheManager::copyNewCachetoOldCache();
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "Exception..Copy old cache to new failed");
    }
}

}  // namespace

unsigned int VexFSAInterface::initialize(bool shareMonitorLibrary, bool syncAfter, bool rebuild,
                                         bool partial) {
    fsaMethodTrace trace("VexFSAInterface::initialize");
    TkzMutexLock(storlibGuard);
    VexCacheManager* cache = currentCache();
    if (cache == nullptr) {
        // The guard is deliberately left locked on this path.
        return FSAIF_CACHE_ACCESS_FAILED;
    }
    GuardRelease guard(storlibGuard);
    FSAIF_PutSignature();
    emptyCacheForBuild(*cache, rebuild, partial);
    if (shareMonitorLibrary) {
        acquireLibrary();
    }
    readControllers(*cache, rebuild, partial);
    copyToOtherRepository();
    VexCacheManager::reverseCacheSwapFlag();
    guard.release();
    return finishInitialize(syncAfter);
}

void VexFSAInterface::emptyCacheForBuild(VexCacheManager& cache, bool rebuild, bool partial) {
    const std::vector<CIMProperty> wholeType;
    if (!rebuild) {
        cache.flushCache();
        return;
    }
    if (!partial) {
        for (_eVEXObjectType type : kRebuiltTypes) {
            cache.deleteObjectInstance(type, wholeType);
        }
        std::vector<CIMInstance> none;
        cache.swapObjectInstance(VEX_OBJ_PHYSICAL_DRIVE, none);
    }
    cache.deleteObjectInstance(VEX_OBJ_JOB, wholeType);
}

void VexFSAInterface::readControllers(VexCacheManager& cache, bool rebuild, bool partial) {
    storlib::StorLib* library = requireLibraryHandle(getStorLib());
    unsigned long count = 0;
    library->getControllerCount(count);
    m_controllerCount = count;
    CacheBuild build{cache, library->getSystemConfig(), InstanceBatch()};
    for (unsigned long index = 0; index < count; ++index) {
        fsaCIMInstanceWrapper instance;
        updateAdapterinfo(static_cast<int>(index), instance, rebuild, partial, build);
        if (partial) {
            continue;
        }
        if (index == 0) {
            std::vector<CIMInstance> first(1, instance);
            cache.swapObjectInstance(VEX_OBJ_CONTROLLER, first);
        } else {
            cache.addObjInstance(VEX_OBJ_CONTROLLER, instance);
        }
    }
    build.batch.storeInto(cache);
}

unsigned int VexFSAInterface::finishInitialize(bool syncAfter) {
    if (syncAfter) {
        if (currentCache() == nullptr) {
            TkzLogMsg(TKZ_LOG_ERROR, "Failed to acquire Cache Manager Handle!");
            return FSAIF_CACHE_ACCESS_FAILED;
        }
        copyToOtherRepository();
    }
    if (m_controllerCount.load() == 0) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAIF] No Controllers Found!");
        return FSAIF_NO_CONTROLLER;
    }
    if (notInitialized.exchange(false)) {
        TkzLogMsg(TKZ_LOG_DEBUG, "VexFSAInterface::initialize() - Setting the Not Initialized to FALSE");
    }
    return FSAIF_SUCCESS;
}

}  // namespace vex::cim::fwf

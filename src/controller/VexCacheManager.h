// VexCacheManager: the object cache that every served CIM instance is
// answered from.
//
// Two repositories live for the whole process. Request threads read the
// served one; the cache-update thread rebuilds the other (the shadow), makes
// the served one an exact copy of it and then swaps the roles by flipping one
// flag. Instances are grouped by object type; inside a type they keep the
// order in which they were added. Two instances are the same instance when
// every key-flagged property of the one is present, under the same name and
// with an equal value, in the other; non-key properties never take part.
//
// A view class's properties are stored inside the instance of their base
// type under the view's prefix immediately followed by the property name
// ("CS" + "Name" -> "CSName"); readers ask for a view by that prefix.
//
// Every member operation answers with a VEX_CM_... code. Readers always
// receive copies: nothing outside the cache ever holds a reference into it.
//
// Storage: instances are kept as handles to immutable records whose values
// live once in a shared pool (CachedInstance.h, cache/PropertyPool.h), and
// a type's list is shared between the repositories, the update thread's
// staged generation and readers until one of them writes to it. A reader
// copies out of its share of a list after the lock is released, and always
// reads one complete generation: the update thread's writes become visible
// to others only as a whole.
#ifndef VEX_CONTROLLER_VEXCACHEMANAGER_H
#define VEX_CONTROLLER_VEXCACHEMANAGER_H

#include <atomic>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controller/CachedInstance.h"
#include "controller/VexCacheResult.h"
#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"
#include "framework/VexObjectType.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

class VexCacheManager;

// Deletes both repositories when the library is unloaded.
class VexCacheManagerCleanUp {
public:
    VexCacheManagerCleanUp(VexCacheManager* first, VexCacheManager* second);
    VexCacheManagerCleanUp(const VexCacheManagerCleanUp&) = delete;
    VexCacheManagerCleanUp& operator=(const VexCacheManagerCleanUp&) = delete;
    // Shuts the log down, deletes the creation mutex and both repositories.
    ~VexCacheManagerCleanUp();

    // Takes each pointer only where none is held yet.
    void SetInstance(VexCacheManager* first, VexCacheManager* second);

private:
    VexCacheManager* m_first;
    VexCacheManager* m_second;
};

class VexCacheManager {
public:
    VexCacheManager();
    VexCacheManager(const VexCacheManager&) = delete;
    VexCacheManager& operator=(const VexCacheManager&) = delete;
    virtual ~VexCacheManager();

    // The repository to use. current true: the served one, except on the
    // registered update thread, which always gets the shadow. current false
    // (or the update thread) gets the shadow and marks it as the latest one,
    // which decides the direction of the next copyNewCachetoOldCache.
    // Creates both repositories on first use; null only if that failed.
    static VexCacheManager* getInstance(bool current);

    // Stores a copy of inst under type unless an instance with the same key
    // values is stored (VEX_CM_ENTRY_ALREADY_EXIST).
    unsigned int addObjInstance(_eVEXObjectType type, const CIMInstance& inst);

    // Exchanges the stored list of type with list; the caller receives the
    // previous contents. A type without entry gets a copy of list and list
    // is left as it was.
    unsigned int swapObjectInstance(_eVEXObjectType type, std::vector<CIMInstance>& list);

    // Overwrites, in every instance matching all keys (empty keys match
    // all), the value of each property named in changes, converted to the
    // stored property's type. The result is decided by the last instance of
    // the list alone: VEX_CM_ENTRY_NOT_EXISTS when it did not match, even
    // though earlier matching instances were changed. A property of changes
    // missing from a matching instance stops at once with
    // VEX_CM_ENTRY_NOT_EXISTS, keeping the changes already made.
    unsigned int modifyObjectInstance(_eVEXObjectType type, const std::vector<CIMProperty>& keys,
                                      const std::vector<CIMProperty>& changes);

    // Empty keys erase the whole type; otherwise the first instance matching
    // all keys is erased, and the type with it once its list is empty.
    unsigned int deleteObjectInstance(_eVEXObjectType type, const std::vector<CIMProperty>& keys);

    // Copies matching instances into out. viewClass empty (the base class):
    // with keys, appends every instance matching all keys; without keys and
    // keysOnly false, REPLACES out with the whole list; without keys and
    // keysOnly true, appends one instance per stored one holding only its
    // key-flagged properties. viewClass set: appends, per stored instance,
    // the instance made of its properties whose names begin with viewClass,
    // renamed without it (with keysOnly and no keys: only those carrying the
    // view-key flag); keys are then matched under viewClass + key name.
    unsigned int getRepositoryObject(_eVEXObjectType type, const std::string& viewClass,
                                     const std::vector<CIMProperty>& keys, bool keysOnly,
                                     std::vector<CIMInstance>& out) const;

    // Erases every type of this repository.
    unsigned int flushCache();

    // Makes the repository not marked latest an exact copy of the latest one
    // (nothing when neither is marked). Which repository it is called on
    // does not matter.
    static void copyNewCachetoOldCache();

    // Register and unregister the calling thread as the cache-update thread.
    static void initCacheUpdate();
    static void exitCacheUpdate();
    // Exchanges the roles of the two repositories for readers.
    static void reverseCacheSwapFlag();
    static void setSVexCacheRepoNewIsLatest(bool isLatest);
    static void setSVexCacheRepoOldIsLatest(bool isLatest);

    // As swapObjectInstance, for instances already in the cache's own form
    // (a cache build collects them so); list receives the previous contents.
    unsigned int swapCachedInstances(_eVEXObjectType type,
                                     std::vector<cache::CachedInstance>& list);

private:
    friend class VexCacheManagerCleanUp;
    friend struct VexCacheManagerTestAccess;  // tests reset the process-wide state

    // A type's instances. A list is shared - by both repositories after a
    // copy, with a staged generation, with readers still copying out of it -
    // and once it has been handed out so it is never changed again: a write
    // to it first makes a list of this repository's own (writable). The
    // mark is set under the repository lock (read or write) and read under
    // the write lock, so the lock orders the two.
    using Instances = std::vector<cache::CachedInstance>;
    struct InstanceList {
        Instances items;
        mutable std::atomic<bool> shared{false};

        explicit InstanceList(Instances list) : items(std::move(list)) {}
        void share() const { shared.store(true, std::memory_order_relaxed); }
    };
    using SharedList = std::shared_ptr<InstanceList>;
    using Contents = std::map<_eVEXObjectType, SharedList>;

    static void createRepositories();
    static VexCacheManager* chooseRepository(bool current);
    static bool callerIsUpdater();
    static Instances& writable(SharedList& list);
    static void shareAll(const Contents& contents);
    // Puts list in place of type's list and hands back the previous one
    // (exchanged true); a type without entry gets list itself.
    unsigned int exchange(_eVEXObjectType type, SharedList& list, bool& exchanged);

    // What the caller works on, under the repository lock. Every thread but
    // the update thread sees the published generation. The update thread's
    // writes go to a staged generation of its own, made from the published
    // one on its first write, so a reader that still holds this repository
    // (from before a role swap) never sees a rebuild half done; the staged
    // generation is published as a whole by copyNewCachetoOldCache or
    // exitCacheUpdate.
    Contents& writableContents(bool updater);
    const Contents& readableContents(bool updater) const;
    // Makes the staged generation, if any, the published one.
    void publishStaged();
    // The latest generation (staged, else published), with the repeats of
    // each list dropped as repeated addObjInstance calls would; false if the
    // lock failed.
    bool distinctCopy(Contents& copy) const;
    // Makes contents this repository's published generation, dropping any
    // staged one; contents receives the replaced ones.
    void install(Contents& contents);

    Contents m_published;
    std::optional<Contents> m_staged;
    TKZ_RWLOCK m_lock;

    // Written by the update thread (and the first getInstance), read by every
    // thread without a lock: atomics, so those reads are well defined.
    static std::atomic<VexCacheManager*> sVexCacheRepoNew;  // the first repository
    static std::atomic<VexCacheManager*> sVexCacheRepoOld;  // the second repository
    static std::atomic<bool> sVexCacheRepoNewIsLatest;
    static std::atomic<bool> sVexCacheRepoOldIsLatest;
    static std::atomic<bool> flagSwapped;
    static std::atomic<unsigned long long> threadId;  // the update thread; all ones: none
    static TKZ_MUTEX sCreateMutex;
    static VexCacheManagerCleanUp vexCleanup;
};

}  // namespace vex::cim::fwf

#endif

// VexFSAInterface: the single door between the provider and the controller
// library StorLib.
//
// It owns the library handle, serialises every call into the library with
// one mutex (the StorLib guard), builds the object cache from what the
// library reports, runs the extrinsic-method routines by name, applies
// ModifyInstance requests to the controllers and hands plug-in registrations
// for change events to the event machinery.
//
// One instance per process, created on first getInstance and deleted at
// unload by the static clean-up object, which also creates and deletes the
// two class mutexes.
#ifndef VEX_CONTROLLER_VEXFSAINTERFACE_H
#define VEX_CONTROLLER_VEXFSAINTERFACE_H

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "controller/FsaifReturn.h"
#include "framework/CIMInstance.h"
#include "framework/CIMMethodParam.h"
#include "framework/CIMObjectPath.h"
#include "framework/CIMProperty.h"
#include "framework/EventObserver.h"
#include "framework/VexObjectType.h"
#include "platform/Tkz.h"

namespace storlib {
class StorLib;
}

namespace vex::cim::fwf {

// An extrinsic-method routine: target object path, input and output
// arguments; answers an _FSAIF_Return code.
using FsaRoutineFunction = unsigned int (*)(const CIMObjectPath& path, const CIMMethodParam& in,
                                            CIMMethodParam& out);

struct routineInfo {
    FsaRoutineFunction function = nullptr;
    bool refresh = false;  // ask for a cache refresh after the routine succeeded
};

// Refresh bits of a poll event.
enum : unsigned int {
    FSA_POLL_CONFIG_CHANGE = 1,  // full re-initialisation
    FSA_POLL_REFRESH = 16        // any other change
};

// How the controller interface reaches the event machinery. Installed once at
// provider start, before any request arrives; every member may stay empty, in
// which case nothing is locked, posted or registered.
struct FsaEventLink {
    // The event-processor mutex, taken before the StorLib guard; null: none.
    std::function<TKZ_MUTEX()> eventMutex;
    // Posts a zeroed poll event carrying these event-type bits (invokeCallBack);
    // called with the event-processor mutex held.
    std::function<void(unsigned int eventTypeBits)> postPollEvent;
    // The plug-in registry of change observers (pushPluginVec).
    std::function<void(_eVEXObjectType type, EventObserver* observer)> pushPluginVec;
    // Stops the event listener and the event process threads.
    std::function<void()> terminateEventThreads;
};

class VexFSAInterface;
class VexCacheManager;
class fsaCIMInstanceWrapper;

// Created at library load: creates the creation mutex and the StorLib guard;
// at unload deletes the interface, then the guard, then the creation mutex.
class VexFSAInterfaceCleanUp {
public:
    VexFSAInterfaceCleanUp();
    VexFSAInterfaceCleanUp(const VexFSAInterfaceCleanUp&) = delete;
    VexFSAInterfaceCleanUp& operator=(const VexFSAInterfaceCleanUp&) = delete;
    ~VexFSAInterfaceCleanUp();

    void SetInstance(VexFSAInterface* instance);

private:
    VexFSAInterface* m_instance = nullptr;
};

class VexFSAInterface {
public:
    // The interface, created on first call; null only when the creation
    // mutex could not be locked before the first creation.
    static VexFSAInterface* getInstance();

    VexFSAInterface(const VexFSAInterface&) = delete;
    VexFSAInterface& operator=(const VexFSAInterface&) = delete;
    virtual ~VexFSAInterface();

    // Reads every controller and (re)builds the object cache.
    //  shareMonitorLibrary: take (or open) the library handle first;
    //  syncAfter: copy the repositories once more at the end;
    //  rebuild: erase the rebuilt types instead of flushing everything
    //           (the settings types 15 to 17 survive);
    //  partial: with rebuild, refresh only the jobs of every controller.
    // 0, 9 (no controller) or 12 (no cache; the StorLib guard then stays
    // locked). Throws 21 when the library handle is missing.
    unsigned int initialize(bool shareMonitorLibrary, bool syncAfter, bool rebuild, bool partial);

    // Runs one routine of the routine table under the event mutex and the
    // StorLib guard; 1 for a name that is not in the table.
    unsigned int execute(const CIMObjectPath& path, const std::string& routine,
                         const CIMMethodParam& in, CIMMethodParam& out);

    // A ModifyInstance request: type 1 (controller) and 4 (concrete pool)
    // go to the controller and post a refresh; 0 and 2 answer 0 and do
    // nothing; every other type answers 4. Does not take the StorLib guard.
    // Changed properties carry their names as stored in the cache (with
    // the class prefix: "CSCopyBack", "SPElementName").
    unsigned int modifyInstance(_eVEXObjectType type, const std::vector<CIMProperty>& keys,
                                const std::vector<CIMProperty>& changes);

    // Hands a change observer of one object type to the event machinery; 0.
    unsigned int registerForNotification(_eVEXObjectType type, EventObserver* observer);

    // True while the controller interface is not initialised (events are
    // then fetched and dropped).
    static bool isNotInitialized() { return notInitialized.load(); }

    // Controllers found by the last initialize.
    unsigned long controllerCount() const { return m_controllerCount.load(); }

    // The StorLib guard, for code outside this class that calls StorLib.
    static TKZ_MUTEX getStorlibGuard() { return storlibGuard; }

    // All routine names in ascending byte order; 0.
    unsigned int FSAGetSupportedRoutines(std::vector<std::string>& names) const;

    // Stops the event threads and drops the library handle; 0.
    unsigned int terminate();

    // The library handle; null before the first initialize that takes it
    // and after terminate. Callers hold the StorLib guard while they use it.
    storlib::StorLib* getStorLib() const { return m_storLib.load(); }

    // Installs the link to the event machinery (see FsaEventLink).
    void setEventLink(FsaEventLink link);

    // The event-processor side of execute and modifyInstance.
    void lockEventMutex() const;
    void unlockEventMutex() const;
    void postRefreshEvent() const;  // bit 16, under the held event mutex

private:
    friend class VexFSAInterfaceCleanUp;

    VexFSAInterface();

    struct CacheBuild;  // the repository being built and the snapshot it is read from

    void initializeRoutineList();
    // Where the library handle comes from (see FsaLibraryAccess.cpp).
    void acquireLibrary();
    static void emptyCacheForBuild(VexCacheManager& cache, bool rebuild, bool partial);
    void readControllers(VexCacheManager& cache, bool rebuild, bool partial);
    unsigned int finishInitialize(bool syncAfter);
    void updateAdapterinfo(int index, fsaCIMInstanceWrapper& instance, bool rebuild, bool partial,
                           CacheBuild& build);

    std::atomic<storlib::StorLib*> m_storLib{nullptr};
    std::unique_ptr<storlib::StorLib> m_ownLibrary;  // opened here while no monitor shares one
    std::atomic<unsigned long> m_controllerCount{0};
    std::map<std::string, routineInfo> m_routines;
    FsaEventLink m_eventLink;

    static std::atomic<VexFSAInterface*> pVexFSAInterface;
    static TKZ_MUTEX s_CreateMutex;
    static TKZ_MUTEX storlibGuard;
    static std::atomic<bool> notInitialized;
    static VexFSAInterfaceCleanUp _cleanup;
};

// The number of adapters of the library handle into count; 0, or 3 after an
// exception (21 is thrown and caught when the handle is missing).
unsigned int fsaifGetControllerCount(int& count);

// Writes the build number and build time to the log.
void FSAIF_PutSignature();

}  // namespace vex::cim::fwf

#endif

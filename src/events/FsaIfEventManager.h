// FsaIfEventManager: turns changes into cache refreshes and monitor events
// into VEX_EventIndication indications.
//
// The listener thread drains the RAID event monitor's queue once a second,
// sends each event to the object manager and asks for one refresh per batch;
// the process thread takes that request from the one-slot queue and rebuilds
// the cache. Request threads that change controllers post their refresh the
// same way. Lock order: event-processor mutex, callback mutex, queue lock.
#ifndef VEX_EVENTS_FSAIFEVENTMANAGER_H
#define VEX_EVENTS_FSAIFEVENTMANAGER_H

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <ctime>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "events/uPollEvent.h"
#include "framework/CIMInstance.h"
#include "platform/Tkz.h"

namespace vex::monitor {
class NRMEvent;
}

namespace vex::cim::fwf {

using FsaEventCallback = void (*)(const uPollEvent&);

void defaultEventListenerCbk(const uPollEvent& event);

// The VEX_EventIndication instance of one monitor event.
CIMInstance eventIndicationOf(const monitor::NRMEvent& event, const std::string& xmlConfig,
                              const std::string& smartStats);
// "%.2d/%.2d/%d %.2d:%.2d:%.2d" (month, day, year, hour, minute, second) in
// local time; the current time when `time` cannot be converted.
std::string formatTimeStampDup(std::time_t time);

class FsaIfEventManager {
public:
    static FsaIfEventManager* getInstance();
    virtual ~FsaIfEventManager();
    FsaIfEventManager(const FsaIfEventManager&) = delete;
    FsaIfEventManager& operator=(const FsaIfEventManager&) = delete;

    // Set once the process thread must end; never cleared.
    static std::atomic<bool> flagTermThread;

    bool initEventListener();
    bool initEventProcessThread();
    bool initCompletedJobRemoverThread();
    bool terminateEventListener();
    bool terminateEventProcessThread();
    bool terminateJobRemoverThread();

    void setCallBack(FsaEventCallback callback);
    void resetCallBack();
    bool isCallBackValid();
    // Calls the callback (if any), then queues the event and wakes the
    // process thread. Callers hold the event-processor mutex.
    bool invokeCallBack(const uPollEvent& event);

    // Queues a copy only while the queue is empty.
    void pushEvent(const uPollEvent& event);
    // 0 and the front record removed into out; -1 when empty.
    int popEvent(uPollEvent& out);
    int peekEvent(uPollEvent& out);

    TKZ_EVENT getEventObject() const { return m_eventObject; }
    void setEventObject();
    TKZ_MUTEX getEventProcessorMutex() const { return m_eventProcessorMutex; }

    bool insertAdapterHandle(std::uint32_t id, void* handle);

    void fsaProcessEvent(const uPollEvent& event);
    bool eventUpdateCache(bool configChange);
    bool updateSMISsettingsInCache();
    void fsaExpandedContainerEvent(const uPollEvent& event);
    void fsaExpandedScsiEvent(const uPollEvent& event);
    void fsaExpandedFirmwareEvent(const uPollEvent& event);

    // The poll loop that the listener replaced; nothing starts it.
    void pollForEvent();
    bool forceCacheUpdate(uPollEvent& event, int interval);

    // Comparison of the cache before and after a rebuild, reported to the
    // registered plug-ins (see FsaIfPluginManagr). compareWholeCache runs
    // only the job comparison; compareAllObjects runs every one.
    void compareWholeCache();
    void compareAllObjects();
    void compareAdapters();
    void compareVdisks();
    void comparePdisks();
    void compareEnclosureObjects();
    void compareSESObjects();
    void compareLrcObjects();
    // Remembers the cache as it is now as the "before" of the next comparison.
    void updateWholeOldCache();

    // Runs the listener's work on one batch of monitor events (what the
    // listener thread does after fetching them).
    void deliverMonitorEvents(const std::vector<monitor::NRMEvent>& events, const std::string& xmlConfig,
                              const std::string& smartStats);

private:
    FsaIfEventManager();
    static void* fsaEventListenerThread(void*);
    static void* fsaEventProcessThread(void*);
    static void* fsaCompletedJobRemoverThread(void*);
    // Sleeps up to the given seconds; false when the listener must end.
    bool listenerSleep(unsigned int seconds);
    void listenerLoop();
    void processLoop();

    std::map<std::uint32_t, void*> m_adapterHandles;
    std::deque<uPollEvent> m_eventQueue;
    TKZ_RWLOCK m_queueLock = nullptr;
    TKZ_MUTEX m_eventProcessorMutex = nullptr;
    TKZ_MUTEX m_callbackMutex = nullptr;
    FsaEventCallback m_callback = nullptr;
    TKZ_THREAD m_listenerThread = nullptr;
    TKZ_THREAD m_processThread = nullptr;
    bool m_processJoined = false;  // the process thread's stale handle is not joined twice
    TKZ_THREAD m_jobRemoverThread = nullptr;
    TKZ_EVENT m_eventObject = nullptr;
    std::atomic<std::time_t> m_lastUpdateTime{0};

    std::mutex m_sleepMutex;  // wakes the listener early at termination
    std::condition_variable m_sleepWake;
    std::atomic<bool> m_listenerStop{false};

    std::mutex m_compareMutex;  // the "before" instances of the comparisons
    std::map<int, std::vector<CIMInstance>> m_oldCache;

    static std::atomic<FsaIfEventManager*> s_instance;
    static TKZ_MUTEX s_CreateMutex;
    friend class FsaIfEventManagerCleanUp;
};

}  // namespace vex::cim::fwf

#endif

// The event manager: singleton, one-slot queue, callback and its threads.
#include "events/FsaIfEventManager.h"

#include <exception>

#include "events/CompletedJobRemover.h"

#include "monitor/VEXRaidEventMonitor.h"

namespace vex::cim::fwf {

std::atomic<bool> FsaIfEventManager::flagTermThread{false};
std::atomic<FsaIfEventManager*> FsaIfEventManager::s_instance{nullptr};
TKZ_MUTEX FsaIfEventManager::s_CreateMutex = TkzMutexInit();

// Deletes the manager at unload, then its creation mutex.
class FsaIfEventManagerCleanUp {
public:
    ~FsaIfEventManagerCleanUp() {
        delete FsaIfEventManager::s_instance.exchange(nullptr);
        TkzMutexDelete(&FsaIfEventManager::s_CreateMutex);
    }
};

namespace {
FsaIfEventManagerCleanUp g_cleanUp;
}  // namespace

void defaultEventListenerCbk(const uPollEvent& event) {
    TkzLogMsg(TKZ_LOG_INFO, "[EventManager]Event AdapterID:%d-EventType:%X", static_cast<int>(event.AdapterID),
              event.EventType);
}

FsaIfEventManager* FsaIfEventManager::getInstance() {
    FsaIfEventManager* existing = s_instance.load();
    if (existing != nullptr) {
        return existing;
    }
    if (TkzMutexLock(s_CreateMutex) != 0) {
        return s_instance.load();
    }
    if (s_instance.load() == nullptr) {
        try {
            s_instance = new FsaIfEventManager();
        } catch (...) {
            s_instance = nullptr;
        }
    }
    TkzMutexUnlock(s_CreateMutex);
    return s_instance.load();
}

FsaIfEventManager::FsaIfEventManager()
    : m_queueLock(TkzReadWriteLockInit()), m_eventProcessorMutex(TkzMutexInit()),
      m_callbackMutex(TkzMutexInit()), m_eventObject(TkzCreateEvent()) {
    if (m_queueLock != nullptr && m_callbackMutex != nullptr) {
        m_callback = &defaultEventListenerCbk;
    }
    if (m_eventProcessorMutex == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAIF] Failed to create Event processor Mutex");
    }
}

// Threads the provider's terminate already stopped are not stopped (nor
// logged about) again: at exit the log may no longer be there.
FsaIfEventManager::~FsaIfEventManager() {
    if (m_listenerThread != nullptr) {
        terminateEventListener();
    } else if (monitor::VEXRaidEventMonitor* raidMonitor = monitor::VEXRaidEventMonitor::getInstance()) {
        raidMonitor->stop();
    }
    if (m_processThread != nullptr && !m_processJoined) {
        terminateEventProcessThread();
    }
    TkzDestroyEvent(&m_eventObject);
    TkzMutexDelete(&m_callbackMutex);
    TkzMutexDelete(&m_eventProcessorMutex);
    TkzReadWriteLockDestroy(&m_queueLock);
}

// ---- threads ------------------------------------------------------------------

bool FsaIfEventManager::initEventListener() {
    if (m_listenerThread != nullptr) {
        return true;
    }
    m_listenerStop = false;
    m_listenerThread = TkzThreadCreate(&fsaEventListenerThread, nullptr);
    if (m_listenerThread == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAIF]Failed to create the Event listener thread!");
        return false;
    }
    return true;
}

bool FsaIfEventManager::initEventProcessThread() {
    if (m_processThread != nullptr) {
        return true;
    }
    m_processThread = TkzThreadCreate(&fsaEventProcessThread, nullptr);
    if (m_processThread == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAIF]Failed to create the Event Process thread!");
        return false;
    }
    return true;
}

bool FsaIfEventManager::initCompletedJobRemoverThread() {
    if (m_jobRemoverThread != nullptr) {
        return true;
    }
    m_jobRemoverThread = TkzThreadCreate(&fsaCompletedJobRemoverThread, nullptr);
    if (m_jobRemoverThread == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAIF]Failed to create the Completed Job Remover thread!");
        return false;
    }
    return true;
}

bool FsaIfEventManager::terminateEventListener() {
    TkzLogMsg(TKZ_LOG_DEBUG, "terminateEventListener - Stopping Fsa Raid Monitor");
    if (monitor::VEXRaidEventMonitor* raidMonitor = monitor::VEXRaidEventMonitor::getInstance()) {
        raidMonitor->stop();
    }
    resetCallBack();
    {
        std::lock_guard<std::mutex> lock(m_sleepMutex);
        m_listenerStop = true;
    }
    m_sleepWake.notify_all();
    if (m_listenerThread != nullptr) {
        if (TkzCancelThreadSyncIO(m_listenerThread) != 0) {
            TkzLogMsg(TKZ_LOG_ERROR, "CancelSynchronousIo Failed for listner thread");
        }
        TkzWaitForThreadTerminate(m_listenerThread);
    }
    m_listenerThread = nullptr;
    return true;
}

// The listener's handle is cleared here, not the process thread's own: that
// one keeps its value, so the process thread is not started again.
bool FsaIfEventManager::terminateEventProcessThread() {
    flagTermThread = true;
    setEventObject();
    if (m_processThread != nullptr && !m_processJoined) {
        TkzWaitForThreadTerminate(m_processThread);
        m_processJoined = true;
    }
    m_listenerThread = nullptr;
    return true;
}

bool FsaIfEventManager::terminateJobRemoverThread() {
    if (m_jobRemoverThread != nullptr) {
        TkzWaitForThreadTerminate(m_jobRemoverThread);
    }
    m_jobRemoverThread = nullptr;
    return true;
}

// Every 20 seconds until the threads are told to end: drops the completed-job
// records that have aged (see CompletedJobRemover.h). Nothing starts it.
void* FsaIfEventManager::fsaCompletedJobRemoverThread(void*) {
    while (!flagTermThread.load()) {
        TkzSleep(20);
        if (flagTermThread.load()) {
            break;
        }
        try {
            removeExpiredCompletedJobs();
        } catch (const std::exception& e) {
            TkzLogMsg(TKZ_LOG_ERROR, "fsaCompletedJobRemoverThread :: %s", e.what());
        }
    }
    return nullptr;
}

// ---- callback and queue -------------------------------------------------------------

void FsaIfEventManager::setCallBack(FsaEventCallback callback) {
    TkzMutexLock(m_callbackMutex);
    m_callback = callback;
    TkzMutexUnlock(m_callbackMutex);
}

void FsaIfEventManager::resetCallBack() { setCallBack(nullptr); }

bool FsaIfEventManager::isCallBackValid() {
    TkzMutexLock(m_callbackMutex);
    const bool valid = m_callback != nullptr;
    TkzMutexUnlock(m_callbackMutex);
    return valid;
}

bool FsaIfEventManager::invokeCallBack(const uPollEvent& event) {
    TkzMutexLock(m_callbackMutex);
    const bool called = m_callback != nullptr;
    if (called) {
        m_callback(event);
    }
    pushEvent(event);
    setEventObject();
    TkzMutexUnlock(m_callbackMutex);
    return called;
}

void FsaIfEventManager::pushEvent(const uPollEvent& event) {
    TkzReadWriteLock_WriteLock(m_queueLock);
    if (m_eventQueue.empty()) {
        m_eventQueue.push_back(event);
    }
    TkzReadWriteLock_WriteUnLock(m_queueLock);
}

// The read side, as the only consumer takes it; the write side of pushEvent
// still excludes it.
int FsaIfEventManager::popEvent(uPollEvent& out) {
    TkzReadWriteLock_ReadLock(m_queueLock);
    int result = -1;
    if (!m_eventQueue.empty()) {
        out = m_eventQueue.front();
        m_eventQueue.pop_front();
        result = 0;
    }
    TkzReadWriteLock_ReadUnLock(m_queueLock);
    return result;
}

int FsaIfEventManager::peekEvent(uPollEvent& out) {
    TkzReadWriteLock_ReadLock(m_queueLock);
    int result = -1;
    if (!m_eventQueue.empty()) {
        out = m_eventQueue.front();
        result = 0;
    }
    TkzReadWriteLock_ReadUnLock(m_queueLock);
    return result;
}

void FsaIfEventManager::setEventObject() {
    if (m_eventObject == nullptr || TkzSetEvent(m_eventObject) != 0) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to set event object");
    }
}

bool FsaIfEventManager::insertAdapterHandle(std::uint32_t id, void* handle) {
    if (!m_adapterHandles.emplace(id, handle).second) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAET]Handle already there in map for adapter%d", static_cast<int>(id));
        return false;
    }
    return true;
}

}  // namespace vex::cim::fwf

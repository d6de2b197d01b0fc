// CMPIBrokerExtFT: POSIX threads, keys, mutexes and conditions for
// providers that use the broker's operating-system services.
#include <pthread.h>
#include <time.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include "BrokerTables.h"

namespace cmpihost::detail {

namespace {

static_assert(sizeof(pthread_t) <= sizeof(void*), "thread ids travel as pointers");

char* resolveFileName(const char* filename) {
    if (filename == nullptr) {
        return nullptr;
    }
    const std::size_t size = std::strlen(filename) + 7;
    char* name = static_cast<char*>(std::malloc(size));
    if (name != nullptr) {
        std::snprintf(name, size, "lib%s.so", filename);
    }
    return name;
}

CMPI_THREAD_TYPE newThread(CMPI_THREAD_RETURN(CMPI_THREAD_CDECL* start)(void*), void* parm,
                           int detached) {
    pthread_t thread;
    if (pthread_create(&thread, nullptr, start, parm) != 0) {
        return nullptr;
    }
    if (detached) {
        pthread_detach(thread);
    }
    return reinterpret_cast<CMPI_THREAD_TYPE>(thread);
}

int joinThread(CMPI_THREAD_TYPE thread, CMPI_THREAD_RETURN* retval) {
    return pthread_join(reinterpret_cast<pthread_t>(thread), retval);
}

int exitThread(CMPI_THREAD_RETURN returnCode) { pthread_exit(returnCode); }

int cancelThread(CMPI_THREAD_TYPE thread) {
    return pthread_cancel(reinterpret_cast<pthread_t>(thread));
}

int threadSleep(CMPIUint32 msec) {
    timespec ts{static_cast<time_t>(msec / 1000), static_cast<long>(msec % 1000) * 1000000L};
    return nanosleep(&ts, nullptr);
}

std::mutex g_onceMutex;

int threadOnce(int* once, void (*init)(void)) {
    if (once == nullptr || init == nullptr) {
        return -1;
    }
    if (__atomic_load_n(once, __ATOMIC_ACQUIRE) != 0) {
        return 0;
    }
    std::lock_guard<std::mutex> lock(g_onceMutex);
    if (__atomic_load_n(once, __ATOMIC_ACQUIRE) == 0) {
        init();
        __atomic_store_n(once, 1, __ATOMIC_RELEASE);
    }
    return 0;
}

int createThreadKey(CMPI_THREAD_KEY_TYPE* key, void (*cleanup)(void*)) {
    pthread_key_t k;
    const int rc = pthread_key_create(&k, cleanup);
    if (rc == 0) {
        *key = k;
    }
    return rc;
}

int destroyThreadKey(CMPI_THREAD_KEY_TYPE key) { return pthread_key_delete(key); }
void* getThreadSpecific(CMPI_THREAD_KEY_TYPE key) { return pthread_getspecific(key); }
int setThreadSpecific(CMPI_THREAD_KEY_TYPE key, void* value) {
    return pthread_setspecific(key, value);
}

CMPI_MUTEX_TYPE newMutex(int) {
    auto* m = new pthread_mutex_t;
    pthread_mutexattr_t attr;
    pthread_mutexattr_init(&attr);
    pthread_mutexattr_settype(&attr, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(m, &attr);
    pthread_mutexattr_destroy(&attr);
    return m;
}

void destroyMutex(CMPI_MUTEX_TYPE mutex) {
    auto* m = static_cast<pthread_mutex_t*>(mutex);
    pthread_mutex_destroy(m);
    delete m;
}

void lockMutex(CMPI_MUTEX_TYPE mutex) { pthread_mutex_lock(static_cast<pthread_mutex_t*>(mutex)); }
void unlockMutex(CMPI_MUTEX_TYPE mutex) {
    pthread_mutex_unlock(static_cast<pthread_mutex_t*>(mutex));
}

CMPI_COND_TYPE newCondition(int) {
    auto* c = new pthread_cond_t;
    pthread_cond_init(c, nullptr);
    return c;
}

void destroyCondition(CMPI_COND_TYPE cond) {
    auto* c = static_cast<pthread_cond_t*>(cond);
    pthread_cond_destroy(c);
    delete c;
}

int condWait(CMPI_COND_TYPE cond, CMPI_MUTEX_TYPE mutex) {
    return pthread_cond_wait(static_cast<pthread_cond_t*>(cond),
                             static_cast<pthread_mutex_t*>(mutex));
}

int timedCondWait(CMPI_COND_TYPE cond, CMPI_MUTEX_TYPE mutex, struct timespec* wait) {
    return pthread_cond_timedwait(static_cast<pthread_cond_t*>(cond),
                                  static_cast<pthread_mutex_t*>(mutex), wait);
}

int signalCondition(CMPI_COND_TYPE cond) {
    return pthread_cond_signal(static_cast<pthread_cond_t*>(cond));
}

CMPIBrokerExtFT g_table = {CMPICurrentVersion, resolveFileName,  newThread,        joinThread,
                           exitThread,         cancelThread,     threadSleep,      threadOnce,
                           createThreadKey,    destroyThreadKey, getThreadSpecific,
                           setThreadSpecific,  newMutex,         destroyMutex,     lockMutex,
                           unlockMutex,        newCondition,     destroyCondition, condWait,
                           timedCondWait,      signalCondition};

// OpenPegasus 2.14 leaves the condition-variable helpers NULL.
CMPIBrokerExtFT g_pegasus = {CMPICurrentVersion, resolveFileName,  newThread,        joinThread,
                             exitThread,         cancelThread,     threadSleep,      threadOnce,
                             createThreadKey,    destroyThreadKey, getThreadSpecific, setThreadSpecific,
                             newMutex,           destroyMutex,     lockMutex,        unlockMutex,
                             newCondition,       destroyCondition, condWait,
                             nullptr,            nullptr};

}  // namespace

CMPIBrokerExtFT* brokerThreads(Flavor flavor) {
    return flavor == Flavor::Sfcb14 ? &g_table : &g_pegasus;
}

}  // namespace cmpihost::detail

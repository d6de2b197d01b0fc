/* Recursive mutexes: a thread that holds one may lock it again. */
#include <pthread.h>

#include <new>

#include "platform/Tkz.h"

namespace {

pthread_mutex_t *asMutex(TKZ_MUTEX handle) { return static_cast<pthread_mutex_t *>(handle); }

bool initRecursive(pthread_mutex_t *mutex) {
    pthread_mutexattr_t attr;
    if (pthread_mutexattr_init(&attr) != 0) {
        return false;
    }
    bool ok = pthread_mutexattr_settype(&attr, PTHREAD_MUTEX_RECURSIVE) == 0 &&
              pthread_mutex_init(mutex, &attr) == 0;
    pthread_mutexattr_destroy(&attr);
    return ok;
}

}  // namespace

extern "C" TKZ_MUTEX TkzMutexInit(void) {
    pthread_mutex_t *mutex = new (std::nothrow) pthread_mutex_t;
    if (mutex == nullptr) {
        return nullptr;
    }
    if (!initRecursive(mutex)) {
        delete mutex;
        return nullptr;
    }
    return mutex;
}

extern "C" int TkzMutexLock(TKZ_MUTEX mutex) {
    if (mutex == nullptr) {
        return 1;
    }
    return pthread_mutex_lock(asMutex(mutex)) == 0 ? 0 : 1;
}

extern "C" int TkzMutexUnlock(TKZ_MUTEX mutex) {
    if (mutex == nullptr) {
        return 1;
    }
    return pthread_mutex_unlock(asMutex(mutex)) == 0 ? 0 : 1;
}

// A mutex that is still locked is left alone (status 1), not freed.
extern "C" int TkzMutexDelete(TKZ_MUTEX *mutex) {
    if (mutex == nullptr || *mutex == nullptr) {
        return 1;
    }
    if (pthread_mutex_destroy(asMutex(*mutex)) != 0) {
        return 1;
    }
    delete asMutex(*mutex);
    *mutex = nullptr;
    return 0;
}

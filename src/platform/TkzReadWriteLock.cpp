/* Read-write locks: many readers or one writer. */
#include <pthread.h>

#include <new>

#include "platform/Tkz.h"

namespace {

pthread_rwlock_t *asLock(TKZ_RWLOCK handle) { return static_cast<pthread_rwlock_t *>(handle); }

int run(TKZ_RWLOCK lock, int (*operation)(pthread_rwlock_t *)) {
    if (lock == nullptr) {
        return 1;
    }
    return operation(asLock(lock)) == 0 ? 0 : 1;
}

}  // namespace

extern "C" TKZ_RWLOCK TkzReadWriteLockInit(void) {
    pthread_rwlock_t *lock = new (std::nothrow) pthread_rwlock_t;
    if (lock == nullptr) {
        return nullptr;
    }
    if (pthread_rwlock_init(lock, nullptr) != 0) {
        delete lock;
        return nullptr;
    }
    return lock;
}

extern "C" int TkzReadWriteLock_ReadLock(TKZ_RWLOCK lock) { return run(lock, pthread_rwlock_rdlock); }
extern "C" int TkzReadWriteLock_ReadUnLock(TKZ_RWLOCK lock) { return run(lock, pthread_rwlock_unlock); }
extern "C" int TkzReadWriteLock_WriteLock(TKZ_RWLOCK lock) { return run(lock, pthread_rwlock_wrlock); }
extern "C" int TkzReadWriteLock_WriteUnLock(TKZ_RWLOCK lock) { return run(lock, pthread_rwlock_unlock); }

// A lock that is still held is left alone (status 1), not freed.
extern "C" int TkzReadWriteLockDestroy(TKZ_RWLOCK *lock) {
    if (lock == nullptr || *lock == nullptr) {
        return 1;
    }
    if (pthread_rwlock_destroy(asLock(*lock)) != 0) {
        return 1;
    }
    delete asLock(*lock);
    *lock = nullptr;
    return 0;
}

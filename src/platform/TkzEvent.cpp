/* Events: counting semaphores private to the process. */
#include <semaphore.h>

#include <cerrno>
#include <new>

#include "platform/Tkz.h"

namespace {
sem_t *asSemaphore(TKZ_EVENT handle) { return static_cast<sem_t *>(handle); }
}  // namespace

extern "C" TKZ_EVENT TkzCreateEvent(void) {
    sem_t *semaphore = new (std::nothrow) sem_t;
    if (semaphore == nullptr) {
        return nullptr;
    }
    if (sem_init(semaphore, 0, 0) != 0) {
        delete semaphore;
        return nullptr;
    }
    return semaphore;
}

extern "C" int TkzSetEvent(TKZ_EVENT event) {
    if (event == nullptr) {
        return 1;
    }
    return sem_post(asSemaphore(event)) == 0 ? 0 : 1;
}

// A wait cut short by a signal is simply waited again.
extern "C" int TkzWaitOnEvent(TKZ_EVENT event) {
    if (event == nullptr) {
        return 1;
    }
    while (sem_wait(asSemaphore(event)) != 0) {
        if (errno != EINTR) {
            return 1;
        }
    }
    return 0;
}

extern "C" int TkzDestroyEvent(TKZ_EVENT *event) {
    if (event == nullptr || *event == nullptr) {
        return 1;
    }
    int rc = sem_destroy(asSemaphore(*event)) == 0 ? 0 : 1;
    delete asSemaphore(*event);
    *event = nullptr;
    return rc;
}

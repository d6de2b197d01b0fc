/*
 * Threads. A thread handle either ends with the thread itself (TkzThreadExit
 * with its own handle: the thread is detached and the handle freed) or is
 * joined and freed by TkzWaitForThreadTerminate; never both.
 */
#include <pthread.h>

#include <new>

#include "platform/Tkz.h"

namespace {

constexpr size_t kThreadStackSize = 10485760;  // 10 MiB

struct ThreadHolder {
    pthread_t id;
};

ThreadHolder *asHolder(TKZ_THREAD handle) { return static_cast<ThreadHolder *>(handle); }

bool startThread(ThreadHolder *holder, TKZ_THREAD_FUNC func, void *arg) {
    pthread_attr_t attr;
    if (pthread_attr_init(&attr) != 0) {
        return false;
    }
    bool ok = pthread_attr_setstacksize(&attr, kThreadStackSize) == 0 &&
              pthread_create(&holder->id, &attr, func, arg) == 0;
    pthread_attr_destroy(&attr);
    return ok;
}

}  // namespace

extern "C" TKZ_THREAD TkzThreadCreate(TKZ_THREAD_FUNC func, void *arg) {
    if (func == nullptr) {
        return nullptr;
    }
    ThreadHolder *holder = new (std::nothrow) ThreadHolder;
    if (holder == nullptr) {
        return nullptr;
    }
    if (!startThread(holder, func, arg)) {
        delete holder;
        return nullptr;
    }
    return holder;
}

extern "C" void TkzThreadExit(TKZ_THREAD thread) {
    ThreadHolder *holder = asHolder(thread);
    if (holder != nullptr) {
        // Nobody can join through a freed handle: let the system reclaim us.
        if (pthread_equal(holder->id, pthread_self())) {
            pthread_detach(holder->id);
        }
        delete holder;
    }
    pthread_exit(nullptr);
}

extern "C" int TkzWaitForThreadTerminate(TKZ_THREAD thread) {
    if (thread == nullptr) {
        return 1;
    }
    if (pthread_join(asHolder(thread)->id, nullptr) != 0) {
        return 1;
    }
    delete asHolder(thread);
    return 0;
}

extern "C" int TkzCancelThreadSyncIO(TKZ_THREAD thread) {
    (void)thread;
    return 0;
}

extern "C" int TkzRegisterCBorSigHndl(void (*handler)(int)) {
    (void)handler;
    return 0;
}

extern "C" void TkzThreadSetPriority(TKZ_THREAD thread, int priority) {
    (void)thread;
    (void)priority;
}

extern "C" unsigned long TkzGetCurrentThreadId(void) { return static_cast<unsigned long>(pthread_self()); }

// Recursive mutexes, events and read-write locks.
#include <gtest/gtest.h>

#include <pthread.h>
#include <signal.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <thread>

#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

using std::chrono::milliseconds;

// Handles are opaque to callers; the tests look behind them to probe a lock
// from another thread without blocking.
template <typename Lock, typename Try, typename Release>
int tryElsewhere(Lock *lock, Try tryLock, Release release) {
    int rc = -1;
    std::thread([&] {
        rc = tryLock(lock);
        if (rc == 0) {
            release(lock);
        }
    }).join();
    return rc;
}

int tryMutex(TKZ_MUTEX m) {
    return tryElsewhere(static_cast<pthread_mutex_t *>(m), pthread_mutex_trylock, pthread_mutex_unlock);
}

int tryRead(TKZ_RWLOCK l) {
    return tryElsewhere(static_cast<pthread_rwlock_t *>(l), pthread_rwlock_tryrdlock, pthread_rwlock_unlock);
}

TEST(MutexTest, OwnerMayRelockAndOthersWaitUntilEveryLockIsReleased) {
    TKZ_MUTEX mutex = TkzMutexInit();
    ASSERT_NE(mutex, nullptr);
    ASSERT_EQ(TkzMutexLock(mutex), 0);
    ASSERT_EQ(TkzMutexLock(mutex), 0);
    ASSERT_EQ(TkzMutexUnlock(mutex), 0);
    EXPECT_EQ(tryMutex(mutex), EBUSY);
    ASSERT_EQ(TkzMutexUnlock(mutex), 0);
    EXPECT_EQ(tryMutex(mutex), 0);

    EXPECT_EQ(TkzMutexDelete(&mutex), 0);
    EXPECT_EQ(mutex, nullptr);
    EXPECT_NE(TkzMutexLock(nullptr), 0);
}

TEST(EventTest, EveryPostReleasesOneWait) {
    TKZ_EVENT event = TkzCreateEvent();
    ASSERT_NE(event, nullptr);
    TkzSetEvent(event);
    TkzSetEvent(event);
    EXPECT_EQ(TkzWaitOnEvent(event), 0);
    EXPECT_EQ(TkzWaitOnEvent(event), 0);
    EXPECT_EQ(TkzDestroyEvent(&event), 0);
    EXPECT_EQ(event, nullptr);
    EXPECT_EQ(TkzWaitOnEvent(nullptr), 1);
}

// The waiter is interrupted several times, keeps waiting, and wakes on the post.
std::atomic<int> gSignalsSeen{0};

TEST(EventTest, WaitInterruptedBySignalKeepsWaiting) {
    struct sigaction action {};
    struct sigaction previous {};
    action.sa_handler = [](int) { gSignalsSeen.fetch_add(1); };  // no SA_RESTART: EINTR
    ASSERT_EQ(sigaction(SIGUSR1, &action, &previous), 0);
    TKZ_EVENT event = TkzCreateEvent();

    std::atomic<int> result{-1};
    std::thread waiter([&] { result = TkzWaitOnEvent(event); });
    for (int i = 0; i < 5; ++i) {
        std::this_thread::sleep_for(milliseconds(20));
        pthread_kill(waiter.native_handle(), SIGUSR1);
    }
    std::this_thread::sleep_for(milliseconds(50));
    EXPECT_GE(gSignalsSeen.load(), 1);
    EXPECT_EQ(result.load(), -1);  // still waiting
    TkzSetEvent(event);
    waiter.join();
    EXPECT_EQ(result.load(), 0);

    TkzDestroyEvent(&event);
    sigaction(SIGUSR1, &previous, nullptr);
}

TEST(ReadWriteLockTest, ReadersShareAndAWriterExcludesThem) {
    TKZ_RWLOCK lock = TkzReadWriteLockInit();
    ASSERT_NE(lock, nullptr);
    ASSERT_EQ(TkzReadWriteLock_ReadLock(lock), 0);
    EXPECT_EQ(tryRead(lock), 0);
    ASSERT_EQ(TkzReadWriteLock_ReadUnLock(lock), 0);

    ASSERT_EQ(TkzReadWriteLock_WriteLock(lock), 0);
    EXPECT_EQ(tryRead(lock), EBUSY);
    ASSERT_EQ(TkzReadWriteLock_WriteUnLock(lock), 0);
    EXPECT_EQ(tryRead(lock), 0);

    EXPECT_EQ(TkzReadWriteLockDestroy(&lock), 0);
    EXPECT_EQ(lock, nullptr);
}

}  // namespace
}  // namespace vex::platform::test

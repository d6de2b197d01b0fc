// Recursive mutexes, events and read-write locks.
#include <gtest/gtest.h>

#include <pthread.h>
#include <signal.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <thread>
#include <vector>

#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

// Handles are opaque to callers; the tests look behind them to probe a lock
// from another thread without blocking.
int tryLockElsewhere(TKZ_MUTEX mutex) {
    int rc = -1;
    std::thread([&] {
        auto *m = static_cast<pthread_mutex_t *>(mutex);
        rc = pthread_mutex_trylock(m);
        if (rc == 0) {
            pthread_mutex_unlock(m);
        }
    }).join();
    return rc;
}

TEST(MutexTest, OwnerMayRelockAndOthersWaitUntilEveryLockIsReleased) {
    TKZ_MUTEX mutex = TkzMutexInit();
    ASSERT_NE(mutex, nullptr);
    ASSERT_EQ(TkzMutexLock(mutex), 0);
    ASSERT_EQ(TkzMutexLock(mutex), 0);
    ASSERT_EQ(TkzMutexUnlock(mutex), 0);
    EXPECT_EQ(tryLockElsewhere(mutex), EBUSY);
    ASSERT_EQ(TkzMutexUnlock(mutex), 0);
    EXPECT_EQ(tryLockElsewhere(mutex), 0);

    EXPECT_EQ(TkzMutexDelete(&mutex), 0);
    EXPECT_EQ(mutex, nullptr);
    EXPECT_NE(TkzMutexDelete(&mutex), 0);
    EXPECT_NE(TkzMutexLock(nullptr), 0);
    EXPECT_NE(TkzMutexUnlock(nullptr), 0);
}

TEST(MutexTest, SerialisesIncrementsFromSeveralThreads) {
    TKZ_MUTEX mutex = TkzMutexInit();
    ASSERT_NE(mutex, nullptr);
    long counter = 0;  // deliberately not atomic
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 10000; ++i) {
                TkzMutexLock(mutex);
                ++counter;
                TkzMutexUnlock(mutex);
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(counter, 40000);
    EXPECT_EQ(TkzMutexDelete(&mutex), 0);
}

TEST(EventTest, CountsPostsAndWakesAWaiter) {
    TKZ_EVENT event = TkzCreateEvent();
    ASSERT_NE(event, nullptr);
    ASSERT_EQ(TkzSetEvent(event), 0);
    ASSERT_EQ(TkzSetEvent(event), 0);
    EXPECT_EQ(TkzWaitOnEvent(event), 0);
    EXPECT_EQ(TkzWaitOnEvent(event), 0);

    std::atomic<bool> woken{false};
    std::thread waiter([&] {
        EXPECT_EQ(TkzWaitOnEvent(event), 0);
        woken = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(woken);
    ASSERT_EQ(TkzSetEvent(event), 0);
    waiter.join();
    EXPECT_TRUE(woken);

    EXPECT_EQ(TkzDestroyEvent(&event), 0);
    EXPECT_EQ(event, nullptr);
    EXPECT_EQ(TkzSetEvent(nullptr), 1);
    EXPECT_EQ(TkzWaitOnEvent(nullptr), 1);
    EXPECT_EQ(TkzDestroyEvent(&event), 1);
}

std::atomic<int> gSignalsSeen{0};
void countSignal(int) { gSignalsSeen.fetch_add(1); }

TEST(EventTest, WaitInterruptedBySignalKeepsWaiting) {
    struct sigaction action {};
    struct sigaction previous {};
    action.sa_handler = countSignal;  // no SA_RESTART: sem_wait fails with EINTR
    sigemptyset(&action.sa_mask);
    ASSERT_EQ(sigaction(SIGUSR1, &action, &previous), 0);
    TKZ_EVENT event = TkzCreateEvent();
    ASSERT_NE(event, nullptr);

    std::atomic<int> result{-1};
    std::thread waiter([&] { result = TkzWaitOnEvent(event); });
    for (int i = 0; i < 5; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        pthread_kill(waiter.native_handle(), SIGUSR1);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_GE(gSignalsSeen.load(), 1);
    EXPECT_EQ(result.load(), -1);  // still waiting
    ASSERT_EQ(TkzSetEvent(event), 0);
    waiter.join();
    EXPECT_EQ(result.load(), 0);

    TkzDestroyEvent(&event);
    sigaction(SIGUSR1, &previous, nullptr);
}

int tryReadElsewhere(TKZ_RWLOCK lock) {
    int rc = -1;
    std::thread([&] {
        auto *l = static_cast<pthread_rwlock_t *>(lock);
        rc = pthread_rwlock_tryrdlock(l);
        if (rc == 0) {
            pthread_rwlock_unlock(l);
        }
    }).join();
    return rc;
}

TEST(ReadWriteLockTest, ReadersShareAndAWriterExcludesThem) {
    TKZ_RWLOCK lock = TkzReadWriteLockInit();
    ASSERT_NE(lock, nullptr);
    ASSERT_EQ(TkzReadWriteLock_ReadLock(lock), 0);
    EXPECT_EQ(tryReadElsewhere(lock), 0);
    ASSERT_EQ(TkzReadWriteLock_ReadUnLock(lock), 0);

    ASSERT_EQ(TkzReadWriteLock_WriteLock(lock), 0);
    EXPECT_EQ(tryReadElsewhere(lock), EBUSY);
    ASSERT_EQ(TkzReadWriteLock_WriteUnLock(lock), 0);
    EXPECT_EQ(tryReadElsewhere(lock), 0);

    EXPECT_EQ(TkzReadWriteLockDestroy(&lock), 0);
    EXPECT_EQ(lock, nullptr);
    EXPECT_NE(TkzReadWriteLock_ReadLock(nullptr), 0);
    EXPECT_NE(TkzReadWriteLockDestroy(&lock), 0);
}

}  // namespace
}  // namespace vex::platform::test

// Threads started by the layer: stack size, joining, ending from inside.
#include <gtest/gtest.h>

#include <pthread.h>

#include <atomic>

#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

void *reportStackSize(void *arg) {
    pthread_attr_t attr;
    size_t size = 0;
    if (pthread_getattr_np(pthread_self(), &attr) == 0) {
        pthread_attr_getstacksize(&attr, &size);
        pthread_attr_destroy(&attr);
    }
    *static_cast<size_t *>(arg) = size;
    return nullptr;
}

TEST(ThreadTest, RunsWithTenMiBStackAndIsJoined) {
    size_t stackSize = 0;
    TKZ_THREAD thread = TkzThreadCreate(reportStackSize, &stackSize);
    ASSERT_NE(thread, nullptr);
    ASSERT_EQ(TkzWaitForThreadTerminate(thread), 0);
    EXPECT_EQ(stackSize, 10485760u);

    EXPECT_EQ(TkzThreadCreate(nullptr, nullptr), nullptr);
    EXPECT_EQ(TkzWaitForThreadTerminate(nullptr), 1);
}

struct SelfEnding {
    TKZ_EVENT handleReady;
    TKZ_THREAD handle;  // written before handleReady is set
    std::atomic<bool> pastExit{false};
};

pthread_key_t gExitKey;
void signalExit(void *event) { TkzSetEvent(event); }

void *endItself(void *arg) {
    auto *state = static_cast<SelfEnding *>(arg);
    TkzWaitOnEvent(state->handleReady);
    TkzThreadExit(state->handle);
    state->pastExit = true;
    return nullptr;
}

void *endItselfAfterArmingExitSignal(void *arg) {
    pthread_setspecific(gExitKey, static_cast<void **>(arg)[0]);
    return endItself(static_cast<void **>(arg)[1]);
}

TEST(ThreadTest, ExitFromInsideEndsTheThreadAtOnce) {
    // A thread-specific value's destructor runs as the thread ends.
    ASSERT_EQ(pthread_key_create(&gExitKey, signalExit), 0);
    TKZ_EVENT exited = TkzCreateEvent();
    SelfEnding state{TkzCreateEvent(), nullptr};
    void *args[] = {exited, &state};

    state.handle = TkzThreadCreate(endItselfAfterArmingExitSignal, args);
    ASSERT_NE(state.handle, nullptr);
    TkzSetEvent(state.handleReady);
    ASSERT_EQ(TkzWaitOnEvent(exited), 0);
    EXPECT_FALSE(state.pastExit);

    TkzDestroyEvent(&state.handleReady);
    TkzDestroyEvent(&exited);
    pthread_key_delete(gExitKey);
}

TEST(ThreadTest, PlatformNoOpsSucceed) {
    EXPECT_EQ(TkzCancelThreadSyncIO(nullptr), 0);
    EXPECT_EQ(TkzRegisterCBorSigHndl(nullptr), 0);
    char address[16] = "unchanged";
    EXPECT_EQ(TkzGetHostIPAddress(address, sizeof address), 0);
    EXPECT_STREQ(address, "unchanged");
}

}  // namespace
}  // namespace vex::platform::test

// Threads started by the layer: stack size, joining, ending from inside.
#include <gtest/gtest.h>

#include <pthread.h>

#include <atomic>

#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

void *reportStackSize(void *arg) {
    pthread_attr_t attr;
    if (pthread_getattr_np(pthread_self(), &attr) == 0) {
        pthread_attr_getstacksize(&attr, static_cast<size_t *>(arg));
        pthread_attr_destroy(&attr);
    }
    return nullptr;
}

TEST(ThreadTest, RunsWithTenMiBStackAndIsJoined) {
    size_t stackSize = 0;
    TKZ_THREAD thread = TkzThreadCreate(reportStackSize, &stackSize);
    ASSERT_NE(thread, nullptr);
    ASSERT_EQ(TkzWaitForThreadTerminate(thread), 0);
    EXPECT_EQ(stackSize, 10485760u);
}

// The thread learns its own handle through handleReady, arms an exit signal
// (a thread-specific value's destructor runs as the thread ends) and exits.
struct SelfEnding {
    TKZ_EVENT handleReady = TkzCreateEvent();
    TKZ_EVENT exited = TkzCreateEvent();
    TKZ_THREAD handle = nullptr;
    std::atomic<bool> pastExit{false};
};

pthread_key_t gExitKey;

void *endItself(void *arg) {
    auto *state = static_cast<SelfEnding *>(arg);
    pthread_setspecific(gExitKey, state->exited);
    TkzWaitOnEvent(state->handleReady);
    TkzThreadExit(state->handle);
    state->pastExit = true;
    return nullptr;
}

TEST(ThreadTest, ExitFromInsideEndsTheThreadAtOnceAndFreesItsHandle) {
    ASSERT_EQ(pthread_key_create(&gExitKey, [](void *event) { TkzSetEvent(event); }), 0);
    SelfEnding state;
    state.handle = TkzThreadCreate(endItself, &state);
    ASSERT_NE(state.handle, nullptr);
    TkzSetEvent(state.handleReady);
    ASSERT_EQ(TkzWaitOnEvent(state.exited), 0);
    EXPECT_FALSE(state.pastExit);

    TkzDestroyEvent(&state.handleReady);
    TkzDestroyEvent(&state.exited);
    pthread_key_delete(gExitKey);
}

}  // namespace
}  // namespace vex::platform::test

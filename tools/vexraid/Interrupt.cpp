#include "Interrupt.h"

#include <csignal>

namespace vexraid {

namespace {

volatile std::sig_atomic_t g_interrupted = 0;

extern "C" void onInterrupt(int) { g_interrupted = 1; }

}  // namespace

void catchInterrupt() {
    std::signal(SIGINT, onInterrupt);
    std::signal(SIGTERM, onInterrupt);
}

bool interrupted() { return g_interrupted != 0; }

}  // namespace vexraid

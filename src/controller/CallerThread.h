// The id of the calling thread as the cache compares it with the registered
// update thread.
#ifndef VEX_CONTROLLER_CALLERTHREAD_H
#define VEX_CONTROLLER_CALLERTHREAD_H

namespace vex::cim::fwf::cache {

// All ones: no thread.
inline constexpr unsigned long long kNoThread = ~0ULL;

// The calling thread's id, or kNoThread (after a level-2 log line) when the
// platform layer cannot give it.
unsigned long long callerThreadId();

}  // namespace vex::cim::fwf::cache

#endif

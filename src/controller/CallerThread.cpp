#include "controller/CallerThread.h"

#include "platform/Tkz.h"

namespace vex::cim::fwf::cache {

unsigned long long callerThreadId() {
    unsigned long long id = kNoThread;
    try {
        // The platform call answers with the id itself; 0 is never the id of
        // a running thread, so it stands for the call's failure.
        const unsigned long current = TkzGetCurrentThreadId();
        if (current == 0) {
            TkzLogMsg(TKZ_LOG_ERROR, "Failed to get threadid from oslib");
        } else {
            id = current;
        }
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "Exception...Failed to get threadid from oslib");
    }
    return id;
}

}  // namespace vex::cim::fwf::cache

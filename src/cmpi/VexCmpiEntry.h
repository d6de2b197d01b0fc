// The pattern every request entry follows: trace, check the arguments, find
// the adapter, let it serve the request into a status that starts at rc 0,
// log a failed operation, trace, return the status.
#ifndef VEX_CMPI_VEXCMPIENTRY_H
#define VEX_CMPI_VEXCMPIENTRY_H

#include <cmpidt.h>
#include <cmpift.h>

#include "cmpi/CMPIAdapter.h"
#include "cmpi/CmpiCalls.h"
#include "cmpi/VexCmpiModule.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi::entry {

// A non-null handle: the pointer and its hdl are both set.
template <typename Handle>
bool isHandle(const Handle* handle) {
    return handle != nullptr && handle->hdl != nullptr;
}

// A non-null string whose first character is not zero.
inline bool isNonEmpty(const char* text) { return text != nullptr && *text != '\0'; }

// rc 4 with "The input parameters are invalid" (logged at level 5).
CMPIStatus invalidParameters();
// rc 1 with "Failed to get CMPIAdapter singleton instance" (logged at level 1).
CMPIStatus missingAdapter();
// Logs "<operation> operation failed, ..." when the status is not rc 0.
void logOutcome(const char* operation, const CMPIStatus& status);

// The trace lines of one entry. The exit line of the invalid-argument path
// is the normal exit line unless given; `invalidNote`, when given, is logged
// at level 5 ahead of the usual invalid-argument line.
struct Traces {
    const char* enter;
    const char* exit;
    const char* invalidExit = nullptr;
    const char* invalidNote = nullptr;
};

// Serves one request through the adapter; `call(adapter, broker, status)`
// runs the adapter operation named `operation`.
template <typename Call>
CMPIStatus serve(const Traces& traces, bool argumentsValid, const char* operation, Call call) {
    TkzTrace(traces.enter);
    if (!argumentsValid) {
        if (traces.invalidNote != nullptr) {
            TkzLogMsg(TKZ_LOG_INFO, "%s", traces.invalidNote);
        }
        CMPIStatus status = invalidParameters();
        TkzTrace(traces.invalidExit != nullptr ? traces.invalidExit : traces.exit);
        return status;
    }
    CMPIAdapter* adapter = CMPIAdapter::getInstance();
    if (adapter == nullptr) {
        CMPIStatus status = missingAdapter();
        TkzTrace(traces.exit);
        return status;
    }
    CMPIStatus status = calls::status(CMPI_RC_OK);
    call(*adapter, g_Broker.load(), &status);
    logOutcome(operation, status);
    TkzTrace(traces.exit);
    return status;
}

// An entry answered here, without the adapter: rc 0 when the arguments are
// valid, the invalid-parameter status otherwise.
CMPIStatus answerLocally(const Traces& traces, bool argumentsValid);

// The common body of the four cleanup entries.
CMPIStatus cleanupEntry(const Traces& traces, void* mi, const CMPIContext* ctx,
                        CMPIBoolean terminating);

}  // namespace vex::cim::adap::cmpi::entry

#endif

#include "cmpi/VexCmpiEntry.h"

namespace vex::cim::adap::cmpi::entry {

namespace {

constexpr const char* kInvalidParameters = "The input parameters are invalid";
constexpr const char* kNoAdapter = "Failed to get CMPIAdapter singleton instance";

CMPIStatus withMessage(CMPIrc rc, const char* message) {
    CMPIStatus status = calls::status(CMPI_RC_OK);
    calls::setStatus(&status, g_Broker.load(), rc, message);
    return status;
}

}  // namespace

CMPIStatus invalidParameters() {
    TkzLogMsg(TKZ_LOG_INFO, "%s", kInvalidParameters);
    return withMessage(CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters);
}

CMPIStatus missingAdapter() {
    TkzLogMsg(TKZ_LOG_FATAL, "%s", kNoAdapter);
    return withMessage(CMPI_RC_ERR_FAILED, kNoAdapter);
}

void logOutcome(const char* operation, const CMPIStatus& status) {
    if (status.rc != CMPI_RC_OK) {
        TkzLogMsg(TKZ_LOG_ERROR,
                  "%s operation failed,                 refer previous log lines for reason",
                  operation);
    }
}

CMPIStatus answerLocally(const Traces& traces, bool argumentsValid) {
    TkzTrace(traces.enter);
    CMPIStatus status = argumentsValid ? calls::status(CMPI_RC_OK) : invalidParameters();
    TkzTrace(traces.exit);
    return status;
}

CMPIStatus cleanupEntry(const Traces& traces, void* mi, const CMPIContext* ctx,
                        CMPIBoolean terminating) {
    TkzTrace(traces.enter);
    if (!terminating) {
        // The object cache and the background threads must survive between
        // requests: an idle provider is never unloaded.
        TkzTrace("CleanUp routein called due to inactivity of provider and zero indication "
                 "subscription");
        TkzTrace("Preventing provider from unloading this time");
        return calls::status(CMPI_RC_NEVER_UNLOAD);
    }
    TkzTrace("CleanUp routein called due to cimserver shutdown");
    CMPIStatus status = calls::status(CMPI_RC_OK);
    CommonCleanup(mi, ctx, status);
    TkzTrace(traces.exit);
    return status;
}

}  // namespace vex::cim::adap::cmpi::entry

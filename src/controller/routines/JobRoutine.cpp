// RequestStateChange on a job: a job is a controller task, its InstanceID
// "<controller>_<task id>". Terminate (4) and Kill (5) abort the task; the
// vendor states 32769, 32770 and 32771 set its priority to high, medium and
// low. Any timeout is refused: the controller acts at once.
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RoutineInput.h"
#include "controller/routines/Routines.h"
#include "controller/FsaifReturn.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

constexpr unsigned long long kTerminate = 4;
constexpr unsigned long long kKill = 5;
constexpr unsigned long long kPriorityHigh = 32769;  // .. 32771 low
constexpr unsigned long long kPriorityLow = 32771;

// A timeout is given when the argument holds any non-zero digit.
bool timeoutGiven(const CIMMethodParam& in) {
    const std::optional<std::string> timeout = routine::text(in, "TimeoutPeriod");
    return timeout && timeout->find_first_of("123456789") != std::string::npos;
}

}  // namespace

unsigned int FsaifExJobRequestedStateChange(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExJobRequestedStateChange");
    const std::optional<std::string> id = routine::targetText(path, in, "InstanceID");
    const std::optional<_vdiskIdf> job = id ? routine::parseLogicalDrive(*id) : std::nullopt;
    if (!job) {
        TkzLogMsg(TKZ_LOG_ERROR, "FsaifExJobRequestedStateChange exits with without calling FSA Func");
        return FSAIF_INVALID_PARAM;
    }
    if (timeoutGiven(in)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Use Of Timeout Parameter Not Supported");
        return FSAIF_NOT_SUPPORTED;
    }
    const std::optional<unsigned long long> state = routine::number(in, "RequestedState");
    storlib::Ret ret;
    const int task = job->logicalDrive;
    if (state && (*state == kTerminate || *state == kKill)) {
        return FsaifAbortTask(job->controller, static_cast<unsigned long long>(task), ret);
    }
    if (state && *state >= kPriorityHigh && *state <= kPriorityLow) {
        return FsaifSetTaskPriority(job->controller, static_cast<unsigned long long>(task),
                                    static_cast<unsigned int>(*state - kPriorityHigh + 1), ret);
    }
    TkzLogMsg(TKZ_LOG_ERROR, "Invalid RequestedState Parameter Value");
    return FSAIF_INVALID_PARAM;
}

}  // namespace vex::cim::fwf

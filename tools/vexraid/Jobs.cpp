#include "Jobs.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <optional>
#include <thread>

#include "Interrupt.h"
#include "PathText.h"
#include "ProgressBar.h"
#include "RegistrationPlan.h"

namespace vexraid {

namespace {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using Clock = std::chrono::steady_clock;

const char* const kJobClass = "VEX_ConcreteJob";
const char* const kCompletedJobClass = "VEX_CompletedJob";

std::string text(const Instance& job, const char* property) {
    const cmpihost::Value* v = job.property(property);
    return v != nullptr && !v->isNull() && v->type() == CMPI_string ? v->asString() : std::string();
}

unsigned numberOf(const Instance& job, const char* property) {
    const cmpihost::Value* v = job.property(property);
    if (v == nullptr || v->isNull() || v->isArray()) return 0;
    if ((v->type() & CMPI_SINT) == CMPI_SINT) return static_cast<unsigned>(std::max<std::int64_t>(0, v->asSigned()));
    if ((v->type() & CMPI_SINT) == CMPI_UINT) return static_cast<unsigned>(v->asUnsigned());
    return 0;
}

unsigned percentOf(const Instance& job) { return numberOf(job, "PercentComplete"); }

std::string labelOf(const Instance& job) {
    return text(job, "InstanceID") + "  " + text(job, "Name") + "  " + text(job, "DeviceTypeAndID");
}

std::string jobId(const ObjectPath& job) {
    const cmpihost::Value* id = job.key("InstanceID");
    return id != nullptr && id->type() == CMPI_string ? id->asString() : pathText(job);
}

// How an ended job finished: as the job itself shows while it is listed,
// else as its completed-job record says.
JobOutcome outcomeOf(Session& session, const ObjectPath& job, const std::optional<Instance>& last) {
    if (last && hasEnded(*last)) return {jobId(job), text(*last, "JobStatus"), percentOf(*last)};
    const auto r = session.host().enumerateInstances(ObjectPath(job.nameSpace, kCompletedJobClass));
    for (const Instance& done : r.instances) {
        if (text(done, "InstanceID") == jobId(job)) return {jobId(job), text(done, "JobStatus"), percentOf(done)};
    }
    return {jobId(job), "ended", last ? percentOf(*last) : 0};
}

// One poll of one job: false once it has ended or left the job list; last
// keeps what was read.
bool pollJob(Session& session, const ObjectPath& job, ProgressBar& bar, std::optional<Instance>& last) {
    const auto r = session.host().getInstance(job);
    if (!r.ok() || r.instances.empty()) return false;
    last = r.instances.front();
    bar.show(percentOf(*last), labelOf(*last));
    return !hasEnded(*last);
}

bool expired(Clock::time_point start, double seconds) {
    return seconds > 0 && Clock::now() - start > std::chrono::duration<double>(seconds);
}

}  // namespace

bool hasEnded(const Instance& job) {
    const unsigned state = numberOf(job, "JobState");
    return state >= 7 && state <= 10;
}

std::vector<ObjectPath> runningJobs(Session& session) {
    const auto r = session.host().enumerateInstances(ObjectPath(vex::mof::kImplementationNamespace, kJobClass));
    std::vector<ObjectPath> running;
    if (!r.ok()) return running;
    for (const Instance& job : r.instances) {
        if (!hasEnded(job)) running.push_back(job.path);
    }
    return running;
}

cmpihost::Response changeJobState(Session& session, const ObjectPath& job, unsigned short requestedState) {
    return session.host().invokeMethod(job, "RequestStateChange",
                                       {{"RequestedState", cmpihost::Value::uint16(requestedState)}});
}

std::set<std::string> pathTexts(const std::vector<ObjectPath>& paths) {
    std::set<std::string> texts;
    for (const ObjectPath& p : paths) texts.insert(pathText(p));
    return texts;
}

std::vector<ObjectPath> newJobs(Session& session, const std::set<std::string>& known, double waitSeconds) {
    const Clock::time_point start = Clock::now();
    do {
        std::vector<ObjectPath> fresh;
        for (const ObjectPath& job : runningJobs(session)) {
            if (known.count(pathText(job)) == 0) fresh.push_back(job);
        }
        if (!fresh.empty()) return fresh;
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
    } while (!expired(start, waitSeconds) && !interrupted());
    return {};
}

int followJobs(Session& session, const std::vector<ObjectPath>& jobs, const FollowOptions& options,
               std::ostream& out, std::vector<JobOutcome>* outcomes) {
    catchInterrupt();
    const Clock::time_point start = Clock::now();
    for (const ObjectPath& job : jobs) {
        ProgressBar bar(out, options.terminal);
        std::optional<Instance> last;
        while (pollJob(session, job, bar, last)) {
            if (expired(start, options.timeoutSeconds) || interrupted()) return 1;
            std::this_thread::sleep_for(std::chrono::duration<double>(options.intervalSeconds));
        }
        bar.finish();
        const JobOutcome outcome = outcomeOf(session, job, last);
        out << "job " << outcome.id << ": " << outcome.status << ", " << outcome.percent << "%\n" << std::flush;
        if (outcomes != nullptr) outcomes->push_back(outcome);
    }
    return 0;
}

}  // namespace vexraid

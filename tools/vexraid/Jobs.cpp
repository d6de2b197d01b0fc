#include "Jobs.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
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

unsigned percentOf(const Instance& job) {
    const cmpihost::Value* v = job.property("PercentComplete");
    if (v == nullptr || v->isNull() || v->isArray()) return 0;
    if ((v->type() & CMPI_SINT) == CMPI_SINT) return static_cast<unsigned>(std::max<std::int64_t>(0, v->asSigned()));
    if ((v->type() & CMPI_SINT) == CMPI_UINT) return static_cast<unsigned>(v->asUnsigned());
    return 0;
}

std::string labelOf(const Instance& job) {
    return text(job, "InstanceID") + "  " + text(job, "Name") + "  " + text(job, "DeviceTypeAndID");
}

std::string jobId(const ObjectPath& job) {
    const cmpihost::Value* id = job.key("InstanceID");
    return id != nullptr && id->type() == CMPI_string ? id->asString() : pathText(job);
}

// How an ended job finished, as its completed-job record says.
std::string outcomeOf(Session& session, const ObjectPath& job) {
    const auto r = session.host().enumerateInstances(ObjectPath(job.nameSpace, kCompletedJobClass));
    for (const Instance& done : r.instances) {
        if (text(done, "InstanceID") == jobId(job)) {
            return text(done, "JobStatus") + ", " + std::to_string(percentOf(done)) + "%";
        }
    }
    return "ended";
}

// One poll of one job: false once it has left the job list.
bool pollJob(Session& session, const ObjectPath& job, ProgressBar& bar) {
    const auto r = session.host().getInstance(job);
    if (!r.ok() || r.instances.empty()) return false;
    bar.show(percentOf(r.instances.front()), labelOf(r.instances.front()));
    return true;
}

bool expired(Clock::time_point start, double seconds) {
    return seconds > 0 && Clock::now() - start > std::chrono::duration<double>(seconds);
}

}  // namespace

std::vector<ObjectPath> runningJobs(Session& session) {
    const auto r = session.host().enumerateInstanceNames(ObjectPath(vex::mof::kImplementationNamespace, kJobClass));
    return r.ok() ? r.paths : std::vector<ObjectPath>{};
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
               std::ostream& out) {
    catchInterrupt();
    const Clock::time_point start = Clock::now();
    for (const ObjectPath& job : jobs) {
        ProgressBar bar(out, options.terminal);
        while (pollJob(session, job, bar)) {
            if (expired(start, options.timeoutSeconds) || interrupted()) return 1;
            std::this_thread::sleep_for(std::chrono::duration<double>(options.intervalSeconds));
        }
        bar.finish();
        out << "job " << jobId(job) << ": " << outcomeOf(session, job) << "\n" << std::flush;
    }
    return 0;
}

}  // namespace vexraid

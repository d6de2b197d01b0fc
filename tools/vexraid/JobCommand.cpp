// job: follows running jobs (all, or the one named) with a progress bar
// each, until they end; or, with --abort or --priority, changes the state of
// the one named through RequestStateChange.
#include <unistd.h>

#include <iostream>
#include <map>
#include <memory>

#include "BuiltinSchema.h"
#include "Commands.h"
#include "Errors.h"
#include "JsonText.h"
#include "Jobs.h"
#include "PathText.h"
#include "Routing.h"

namespace vexraid {

namespace {

constexpr int kRefusedExit = 2;

struct JobRequest {
    std::string path;
    FollowOptions follow;
    bool abort = false;
    std::string priority;  // high, medium, low
};

const std::map<std::string, unsigned short> kPriorities{
    {"high", kPriorityHigh}, {"medium", kPriorityMedium}, {"low", kPriorityLow}};

// The provider answers a refused change (the controller's or its own) as a
// failure; the reason is in its log.
int changeState(Session& session, Printer& printer, const cmpihost::ObjectPath& job, unsigned short state) {
    const cmpihost::Response r = changeJobState(session, job, state);
    if (r.status.rc == CMPI_RC_ERR_FAILED) {
        std::cerr << "vexraid: job " << pathText(job) << " refused the change: the job has ended, is not one of a "
                     "controller present, or its task cannot be stopped (a rebuild, migration or secure erase); "
                     "the provider log tells which\n";
        return kRefusedExit;
    }
    requireOk(r);
    printer.methodResult(r.returnValue(), r.outArgs);
    return 0;
}

int follow(Session& session, Printer& printer, const std::optional<cmpihost::ObjectPath>& one,
           FollowOptions options) {
    const std::vector<cmpihost::ObjectPath> jobs =
        one ? std::vector<cmpihost::ObjectPath>{*one} : runningJobs(session);
    if (jobs.empty() && !printer.json()) {
        std::cout << "no running jobs\n";
        return 0;
    }
    // With --json the bars go to the error stream and the outcomes are the output.
    std::ostream& bars = printer.json() ? std::cerr : std::cout;
    options.terminal = isatty(printer.json() ? STDERR_FILENO : STDOUT_FILENO) != 0;
    std::vector<JobOutcome> outcomes;
    const int rc = followJobs(session, jobs, options, bars, &outcomes);
    if (printer.json()) {
        nlohmann::json all = nlohmann::json::array();
        for (const JobOutcome& o : outcomes) {
            all.push_back({{"InstanceID", o.id}, {"JobStatus", o.status}, {"PercentComplete", o.percent}});
        }
        std::cout << jsonText(all, true) << "\n";
    }
    return rc;
}

}  // namespace

void addJobCommand(CLI::App& app, Cli& cli) {
    auto request = std::make_shared<JobRequest>();
    CLI::App* sub = app.add_subcommand(
        "job", "follow running jobs (VEX_ConcreteJob) until they end, or abort one or change its priority");
    sub->add_option("path", request->path, "one job, VEX_ConcreteJob.InstanceID=\"...\"; default: every running job");
    sub->add_option("--interval", request->follow.intervalSeconds, "seconds between polls")
        ->check(CLI::Range(0.05, 3600.0))
        ->capture_default_str();
    sub->add_option("--timeout", request->follow.timeoutSeconds, "give up after this many seconds (0: never)")
        ->check(CLI::Range(0.0, 1e7));
    CLI::Option* abort = sub->add_flag("--abort", request->abort, "stop the job's task (RequestedState 4)");
    sub->add_option("--priority", request->priority, "set the task's priority: high, medium or low")
        ->check(CLI::IsMember({"high", "medium", "low"}))
        ->excludes(abort);
    sub->callback([&cli, request] {
        std::optional<cmpihost::ObjectPath> one;
        if (!request->path.empty()) {
            one = parseObjectPath(request->path, cli.options.nameSpace);
            requireServedClass(vex::mof::builtinSchema(), *one);
        }
        const bool change = request->abort || !request->priority.empty();
        if (change && !one) {
            throw UsageError("--abort and --priority need the job: VEX_ConcreteJob.InstanceID=\"...\"");
        }
        cli.action = [one, request, change](Session& session, Printer& printer) {
            if (!change) return follow(session, printer, one, request->follow);
            const unsigned short state = request->abort ? kAbortJob : kPriorities.at(request->priority);
            return changeState(session, printer, *one, state);
        };
    });
}

}  // namespace vexraid

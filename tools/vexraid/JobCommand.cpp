// job: follows running jobs (all, or the one named) with a progress bar
// each, until they end.
#include <unistd.h>

#include <iostream>
#include <memory>

#include "BuiltinSchema.h"
#include "Commands.h"
#include "Jobs.h"
#include "PathText.h"
#include "Routing.h"

namespace vexraid {

namespace {

struct JobRequest {
    std::string path;
    FollowOptions follow;
};

}  // namespace

void addJobCommand(CLI::App& app, Cli& cli) {
    auto request = std::make_shared<JobRequest>();
    CLI::App* sub = app.add_subcommand("job", "follow running jobs (VEX_ConcreteJob) until they end");
    sub->add_option("path", request->path, "one job, VEX_ConcreteJob.InstanceID=\"...\"; default: every running job");
    sub->add_option("--interval", request->follow.intervalSeconds, "seconds between polls")
        ->check(CLI::Range(0.05, 3600.0))
        ->capture_default_str();
    sub->add_option("--timeout", request->follow.timeoutSeconds, "give up after this many seconds (0: never)")
        ->check(CLI::Range(0.0, 1e7));
    sub->callback([&cli, request] {
        std::optional<cmpihost::ObjectPath> one;
        if (!request->path.empty()) {
            one = parseObjectPath(request->path, cli.options.nameSpace);
            requireServedClass(vex::mof::builtinSchema(), *one);
        }
        cli.action = [one, request](Session& session, Printer&) {
            const std::vector<cmpihost::ObjectPath> jobs = one ? std::vector<cmpihost::ObjectPath>{*one} : runningJobs(session);
            if (jobs.empty()) {
                std::cout << "no running jobs\n";
                return 0;
            }
            FollowOptions options = request->follow;
            options.terminal = isatty(STDOUT_FILENO) != 0;
            return followJobs(session, jobs, options, std::cout);
        };
    });
}

}  // namespace vexraid

// summary: the controllers, drives, pools, volumes and running jobs of the
// system with their states, as compact tables (or JSON).
#include "Commands.h"
#include "Gathered.h"
#include "JsonText.h"
#include "RegistrationPlan.h"
#include "Jobs.h"
#include "Summary.h"

namespace vexraid {

namespace {

std::vector<cmpihost::Instance> all(Session& session, Gathered& gathered, const char* className) {
    const cmpihost::Response r =
        session.host().enumerateInstances(cmpihost::ObjectPath(vex::mof::kImplementationNamespace, className));
    gathered.add(className, r);
    return r.ok() ? r.instances : std::vector<cmpihost::Instance>{};
}

int summary(Session& session, Printer& printer) {
    Gathered gathered;
    SummarySource source;
    source.controllers = all(session, gathered, "VEX_ControllerView");
    source.drives = all(session, gathered, "VEX_DiskDriveView");
    source.pools = all(session, gathered, "VEX_ConcreteStoragePoolView");
    source.settings = all(session, gathered, "VEX_PrimordialFixedStorageSettings");
    source.volumes = all(session, gathered, "VEX_StorageVolumeView");
    // Ended jobs stay listed for a while after their task; the summary shows
    // the running ones.
    for (cmpihost::Instance& job : all(session, gathered, "VEX_ConcreteJob")) {
        if (!hasEnded(job)) source.jobs.push_back(std::move(job));
    }
    const std::vector<SummarySection> sections = summarize(source);
    printer.out() << (printer.json() ? jsonText(summaryJson(sections), true) + "\n" : summaryText(sections));
    return gathered.exitCode();
}

}  // namespace

void addSummaryCommand(CLI::App& app, Cli& cli) {
    CLI::App* sub = app.add_subcommand("summary", "the controllers, drives, pools, volumes and jobs with their states");
    sub->callback([&cli] { cli.action = summary; });
}

}  // namespace vexraid

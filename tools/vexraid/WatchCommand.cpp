// watch: subscribes to the provider's indications and prints each as it
// arrives, until Ctrl-C, --count indications or --timeout seconds.
#include <chrono>
#include <memory>

#include "Commands.h"
#include "Interrupt.h"
#include "RegistrationPlan.h"

namespace vexraid {

namespace {

using Clock = std::chrono::steady_clock;

struct Watch {
    std::size_t count = 0;     // 0: no limit
    double timeout = 0;        // 0: no limit
};

const char* const kIndicationClass = "VEX_EventIndication";
const char* const kLifecycleQuery = "SELECT * FROM CIM_InstModification";

// What an object manager does when the first subscriptions arrive.
void subscribe(cmpihost::Host& host) {
    const cmpihost::ObjectPath events(vex::mof::kImplementationNamespace, kIndicationClass);
    const cmpihost::ObjectPath lifecycle(vex::mof::kImplementationNamespace, "CIM_InstModification");
    requireOk(host.activateFilter({std::string("SELECT * FROM ") + kIndicationClass}, kIndicationClass, events, true));
    requireOk(host.activateFilter({kLifecycleQuery}, std::string("CIM_InstModification"), lifecycle, false));
    requireOk(host.enableIndications());
    // A management agent's first look at the jobs switches the provider's
    // event indications on.
    host.enumerateInstances(cmpihost::ObjectPath(vex::mof::kImplementationNamespace, "VEX_ConcreteJob"));
}

void unsubscribe(cmpihost::Host& host) {
    host.disableIndications();
    host.deActivateFilter({kLifecycleQuery}, std::string("CIM_InstModification"),
                          cmpihost::ObjectPath(vex::mof::kImplementationNamespace, "CIM_InstModification"), false);
    host.deActivateFilter({std::string("SELECT * FROM ") + kIndicationClass}, std::string(kIndicationClass),
                          cmpihost::ObjectPath(vex::mof::kImplementationNamespace, kIndicationClass), true);
}

bool done(const Watch& w, std::size_t printed, Clock::time_point start) {
    if (interrupted() || (w.count > 0 && printed >= w.count)) return true;
    return w.timeout > 0 && Clock::now() - start >= std::chrono::duration<double>(w.timeout);
}

int run(Session& session, Printer& printer, const Watch& w) {
    catchInterrupt();
    cmpihost::Host& host = session.host();
    subscribe(host);
    const Clock::time_point start = Clock::now();
    std::size_t printed = 0;
    while (!done(w, printed, start)) {
        host.indications().waitFor(printed + 1, std::chrono::milliseconds(200));
        const std::vector<cmpihost::DeliveredIndication> all = host.indications().all();
        for (; printed < all.size() && !(w.count > 0 && printed >= w.count); ++printed) {
            printer.indication(all[printed].nameSpace, all[printed].indication);
        }
    }
    unsubscribe(host);
    return 0;
}

}  // namespace

void addWatchCommand(CLI::App& app, Cli& cli) {
    auto w = std::make_shared<Watch>();
    CLI::App* sub = app.add_subcommand("watch", "print indications as they arrive (Ctrl-C ends)");
    sub->add_option("-c,--count", w->count, "stop after this many indications");
    sub->add_option("-t,--timeout", w->timeout, "stop after this many seconds")->check(CLI::Range(0.0, 1e7));
    sub->callback([&cli, w] {
        cli.action = [w](Session& session, Printer& printer) { return run(session, printer, *w); };
    });
}

}  // namespace vexraid

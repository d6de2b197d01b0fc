// storvex-sim: look at and disturb the simulated RAID controllers.
//
// Settings come from the environment (STORVEX_SYSTEM, STORVEX_STATE_DIR,
// STORVEX_TIME_SCALE, STORVEX_EVENT_QUEUE) and can be overridden by options.
#include "Commands.h"

#include <iostream>

int main(int argc, char** argv) {
    CLI::App app{"Shows the simulated RAID controllers of libSTORVEX and injects faults and changes.\n"
                 "Drives and enclosures are addressed as CONTROLLER:CHANNEL:DEVICE, tasks as CONTROLLER:Tid."};
    storlib::Options options = storlib::Options::fromEnvironment();
    double scale = -1;
    app.add_option("--system", options.systemFile, "system description file (env STORVEX_SYSTEM; default: built-in demo)");
    app.add_option("--state-dir", options.stateDir, "state directory (env STORVEX_STATE_DIR; default /tmp/storvex-<uid>)");
    app.add_option("--time-scale", scale, "controller seconds per wall second, 0: manual (env STORVEX_TIME_SCALE)")
        ->check(CLI::Range(0.0, 1e6));
    storvexsim::Action action;
    storvexsim::addCommands(app, action);
    app.require_subcommand(1);
    CLI11_PARSE(app, argc, argv);
    if (scale >= 0) options.timeScale = scale;

    storlib::StorLib lib;
    storlib::Ret opened = lib.open(options);
    bool needsState = !app.got_subcommand("generate") && !app.got_subcommand("reset");
    if (!opened && (needsState || !lib.isOpen())) {
        std::cerr << "storvex-sim: " << opened.getReason() << "\n";
        return 1;
    }
    return action(lib);
}

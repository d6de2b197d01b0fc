// vexraid: runs one CIM operation against the vexRAIDProvider15 provider,
// loaded into this process exactly as an object manager loads it, on the
// simulated RAID controllers.
#include <iostream>

#include "Commands.h"
#include "Errors.h"

namespace {

// Runs body; a failure is reported on stderr and becomes the exit code.
template <typename Body>
int guarded(Body body) {
    using namespace vexraid;
    try {
        return body();
    } catch (const UsageError& e) {
        std::cerr << "vexraid: " << e.what() << "\n";
        return kUsageExit;
    } catch (const CimError& e) {
        std::cerr << "vexraid: " << rcName(e.rc()) << ": " << e.what() << "\n";
        return exitCodeOf(e.rc());
    } catch (const std::exception& e) {
        std::cerr << "vexraid: " << e.what() << "\n";
        return 1;
    }
}

}  // namespace

int main(int argc, char** argv) {
    using namespace vexraid;
    CLI::App app{"Runs one CIM operation against vexRAIDProvider15, loaded in process as a CIM object\n"
                 "manager loads it, on the simulated RAID controllers. Object paths are written\n"
                 "[namespace:]Class.Key=\"value\",Key2=3; the namespace defaults to --namespace."};
    app.set_help_all_flag("--help-all", "help on every subcommand");
    Cli cli;
    addGlobalOptions(app, cli);
    addInstanceCommands(app, cli);
    addAssociationCommands(app, cli);
    addMethodCommand(app, cli);
    addWatchCommand(app, cli);
    addJobCommand(app, cli);
    addSummaryCommand(app, cli);
    addClassesCommand(app, cli);
    addVolumeCommands(app, cli);
    addMonitorCommands(app, cli);
    app.require_subcommand(1);
    const int parsed = guarded([&] {
        try {
            app.parse(argc, argv);
        } catch (const CLI::ParseError& e) {
            const int code = app.exit(e);
            return code == 0 ? -1 : kUsageExit;  // -1: help was asked for
        }
        return 0;
    });
    if (parsed != 0) {
        return parsed < 0 ? 0 : parsed;
    }
    if (cli.localAction) {
        return guarded([&] {
            Printer printer(cli.options.json, std::cout);
            return cli.localAction(printer);
        });
    }
    return guarded([&] {
        Session session(cli.options);
        Printer printer(cli.options.json, std::cout);
        return cli.action(session, printer);
    });
}

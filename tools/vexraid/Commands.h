// The subcommands of vexraid. Each add...Commands function adds its
// subcommands to the application; the one the command line picks leaves
// its work in Cli::action, which main runs on a loaded session.
#ifndef VEXRAID_COMMANDS_H
#define VEXRAID_COMMANDS_H

#include <CLI/CLI.hpp>

#include <functional>

#include "Options.h"
#include "Printer.h"
#include "Session.h"

namespace vexraid {

// Returns the exit code; failures are thrown (CimError, UsageError).
using Action = std::function<int(Session&, Printer&)>;

struct Cli {
    Options options;
    Action action;                          // runs on a loaded provider
    std::function<int(Printer&)> localAction;  // or needs none
};

void addGlobalOptions(CLI::App& app, Cli& cli);
void addInstanceCommands(CLI::App& app, Cli& cli);     // ei, ein, gi, mi
void addAssociationCommands(CLI::App& app, Cli& cli);  // ai, ain, ri, rin
void addMethodCommand(CLI::App& app, Cli& cli);        // cm
void addWatchCommand(CLI::App& app, Cli& cli);         // watch
void addJobCommand(CLI::App& app, Cli& cli);           // job
void addSummaryCommand(CLI::App& app, Cli& cli);       // summary
void addClassesCommand(CLI::App& app, Cli& cli);       // classes
void addVolumeCommands(CLI::App& app, Cli& cli);       // volume, spare, verify, locate
void addMonitorCommands(CLI::App& app, Cli& cli);     // health, metrics

}  // namespace vexraid

#endif

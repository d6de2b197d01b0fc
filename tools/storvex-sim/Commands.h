// The storvex-sim sub-commands, registered on the command-line parser.
#pragma once
#include <storlib/StorLib.h>

#include <CLI/CLI.hpp>

#include <functional>

namespace storvexsim {

// Runs a command on the opened library; returns the exit code.
using Action = std::function<int(storlib::StorLib&)>;

// Adds every sub-command to `app`; the chosen one stores its action.
void addCommands(CLI::App& app, Action& chosen);

}  // namespace storvexsim

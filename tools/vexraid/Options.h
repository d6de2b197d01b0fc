// What the global options of vexraid say.
#ifndef VEXRAID_OPTIONS_H
#define VEXRAID_OPTIONS_H

#include <optional>
#include <string>

namespace vexraid {

struct Options {
    std::string provider;                   // the provider shared object
    std::optional<std::string> system;      // simulator system description
    std::optional<std::string> stateDir;    // simulator state directory
    std::optional<double> timeScale;        // simulator clock
    std::optional<std::string> user;        // principal; default: the caller's login name
    std::string cimom = "pegasus";          // "pegasus" or "sfcb": which broker is imitated
    std::string nameSpace = "root/tkz/vex/smi_15";
    bool json = false;
};

// The provider vexraid loads unless told otherwise: next to the program,
// then where it is installed, then where the build put it.
std::string defaultProviderPath();

}  // namespace vexraid

#endif

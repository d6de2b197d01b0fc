#include "Commands.h"

namespace vexraid {

void addGlobalOptions(CLI::App& app, Cli& cli) {
    Options& o = cli.options;
    o.provider = defaultProviderPath();
    app.add_option("--provider", o.provider, "provider shared object to load")->capture_default_str();
    app.add_option("--system", o.system, "simulated system description (JSON); default: the built-in demo system");
    app.add_option("--state-dir", o.stateDir, "simulator state directory; default /tmp/storvex-<uid>");
    app.add_option("--time-scale", o.timeScale, "simulated controller seconds per wall second (0 stops the clock)")
        ->check(CLI::Range(0.0, 1e6));
    app.add_option("-u,--user", o.user, "principal of the requests; default: your login name "
                                        "(methods and modifications need a member of the root group)");
    app.add_option("--cimom", o.cimom, "object manager to imitate")
        ->check(CLI::IsMember({"pegasus", "sfcb"}))
        ->capture_default_str();
    app.add_option("-n,--namespace", o.nameSpace, "namespace of paths written without one")->capture_default_str();
    app.add_flag("--json", o.json, "print JSON instead of MOF-like text");
}

}  // namespace vexraid

// A session: the provider loaded in this process by a cmpihost broker that
// plays the object manager (OpenPegasus 2.14 or sfcb 1.4), on the simulated
// controllers the options name. The broker knows the provider's classes and
// their DMTF superclass chains (for classPathIsA) and holds the object
// manager's own registered profiles in root/PG_InterOp, as a real one would.
#ifndef VEXRAID_SESSION_H
#define VEXRAID_SESSION_H

#include <cmpihost/Host.h>

#include <memory>
#include <string>

#include "Options.h"
#include "ProviderSchema.h"

namespace vexraid {

class Session {
public:
    // Points the simulator at the options' system and state directory and
    // loads the provider; CimError with the loader's message when it cannot
    // be loaded, UsageError for a missing system description.
    explicit Session(const Options& options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    cmpihost::Host& host() { return *m_host; }
    const Options& options() const { return m_options; }
    const vex::mof::ProviderSchema& schema() const;

private:
    Options m_options;
    std::unique_ptr<cmpihost::Host> m_host;
};

// Sets STORVEX_SYSTEM, STORVEX_STATE_DIR and STORVEX_TIME_SCALE from the
// options (paths made absolute); UsageError for a system file that is not
// there.
void applySimulatorOptions(const Options& options);

// The principal of every request: the --user name; without one, sfcb's
// principal without authentication, or the caller's login name.
cmpihost::Principal principalOf(const Options& options);

// Throws CimError(rc, message) unless the response is OK.
void requireOk(const cmpihost::Response& response);

}  // namespace vexraid

#endif

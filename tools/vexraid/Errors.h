// The two ways a vexraid command fails before or besides a CIM status:
// the command line was wrong (exit 64, as sysexits' EX_USAGE), or the
// operation ended with a CIM status (exit with its rc, 1 to 255).
#ifndef VEXRAID_ERRORS_H
#define VEXRAID_ERRORS_H

#include <cmpidt.h>

#include <stdexcept>
#include <string>

namespace vexraid {

inline constexpr int kUsageExit = 64;

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class CimError : public std::runtime_error {
public:
    CimError(CMPIrc rc, const std::string& message) : std::runtime_error(message), m_rc(rc) {}
    CMPIrc rc() const { return m_rc; }

private:
    CMPIrc m_rc;
};

// "CIM_ERR_INVALID_CLASS" for 5, "rc 42" for a number without a name.
std::string rcName(CMPIrc rc);

// The process exit code for a CIM status: its rc, kept within 1..255.
int exitCodeOf(CMPIrc rc);

}  // namespace vexraid

#endif

// Captures the provider's log lines in the framework tests: the test binary
// is linked with --wrap=TkzLogMsg, so every TkzLogMsg call of the code under
// test lands here instead of in the log file.
#ifndef VEX_TESTS_FRAMEWORK_LOGCAPTURE_H
#define VEX_TESTS_FRAMEWORK_LOGCAPTURE_H

#include <string>
#include <vector>

namespace vex::cim::fwf::test {

struct LoggedLine {
    int level;
    std::string text;
};

// Forgets what was captured so far.
void clearLog();
// The lines captured since the last clearLog, oldest first.
std::vector<LoggedLine> loggedLines();

}  // namespace vex::cim::fwf::test

#endif

// Captures the provider's log and trace lines in the CMPI tests.
//
// In-process tests link the code under test with --wrap=TkzLogMsg and
// --wrap=TkzTrace. Tests of the loaded provider define TkzLogMsg and TkzTrace
// in the test program and export them: the provider's calls of its own
// exported Tkz functions bind to the program's definitions, as with any
// preloaded symbol. See LogShim.cpp.
#ifndef VEX_TESTS_CMPI_LOGCAPTURE_H
#define VEX_TESTS_CMPI_LOGCAPTURE_H

#include <string>
#include <vector>

namespace vex::cmpitest {

struct LogLine {
    int level;  // 0 for a trace line
    std::string text;
};

void clearLog();
std::vector<LogLine> logLines();
// True when a line with exactly this text was logged (at this level).
bool logged(const std::string& text);
bool loggedAt(int level, const std::string& text);
bool traced(const std::string& text);
// How many lines with exactly this text (any level, traces included).
int countLines(const std::string& text);

// Called by the shims.
void recordLine(int level, const char* text);

}  // namespace vex::cmpitest

#endif

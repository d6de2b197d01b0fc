// Where the RAID event monitor keeps its files, and its two append-only logs.
//
// The monitor's directory holds the settings file, the configuration
// snapshot, the debug log and the events log: "/var/log/" unless the
// environment variable VEX_NRM_DIR names another directory. The message
// catalogue is part of the installation: "<tidalDS>/conf/" when that
// variable is set, otherwise the directory the provider library was loaded
// from (the catalogue is installed next to it).
#ifndef VEX_MONITOR_MONITORFILES_H
#define VEX_MONITOR_MONITORFILES_H

#include <atomic>
#include <string>

namespace vex::monitor {

// The global debug mask, copied from "nrm.debugMask" every cycle.
extern std::atomic<unsigned int> NRMDebugFlag;

enum : unsigned int {
    NRM_DEBUG_ERROR = 0x1,
    NRM_DEBUG_WARNING = 0x2,
    NRM_DEBUG_INFO = 0x4,
    NRM_DEBUG_EVENTS = 0xf0000,
    NRM_DEBUG_TRACE_ABOVE = 4095  // masks above this trace the cycle
};

// Largest size a monitor log grows to; beyond it lines are dropped.
constexpr unsigned long long kMaxMonitorLogBytes = 10485759ULL;

std::string monitorDirectory();        // ends in "/"
std::string installationDirectory();   // ends in "/"
std::string catalogueFile();           // "RaidNLS.properties" as found; "" when nowhere

// Appends one line (a newline is added when missing) unless the file has
// outgrown kMaxMonitorLogBytes. Serialised process-wide.
void appendLogLine(const std::string& path, const std::string& line);

// The debug log of the running monitor ("" before one runs).
void setDebugLogPath(const std::string& path);
// A debug line, written when the mask has one of `bits`. Never a format
// from outside: callers pass fixed formats.
void nrmDebug(unsigned int bits, const char* format, ...) __attribute__((format(printf, 2, 3)));
// A debug line for masks above NRM_DEBUG_TRACE_ABOVE.
void nrmTrace(const char* text);

// Writes text to path through a temporary file and a rename, so a reader
// never sees half a file. False on failure.
bool replaceFile(const std::string& path, const std::string& text);
// Reads at most maxBytes of path; false when missing, unreadable or larger.
bool readSmallFile(const std::string& path, std::size_t maxBytes, std::string& text);

}  // namespace vex::monitor

#endif

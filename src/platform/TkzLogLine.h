/*
 * One line of the provider's log file. Internal to the provider.
 *
 * A line is: local time, "[", component, dashes up to 10 characters, the
 * thread id ("%8X"), "]", the id terminator, a level word, the text, "\n".
 */
#ifndef VEX_PLATFORM_TKZLOGLINE_H
#define VEX_PLATFORM_TKZLOGLINE_H

namespace vex::platform {

// The words written after the header.
const char *logLevelWord(int level);    // ":LOG_FATAL::" ... ":LOG_INFO::"
constexpr const char *kTraceWord = ":LOG_INFO :: ";

// What follows the "]" of the header.
constexpr const char *kLogIdEnd = "\t";
constexpr const char *kTraceIdEnd = "  ";

// Caller holds the log lock. True when logging is initialised and the log
// file exists and is not larger than the size limit.
bool logAcceptsLines();

// Caller holds the log lock and has checked logAcceptsLines(). Appends one
// line to the log file: 0, or 1 when the file cannot be opened or written.
int appendLogLine(const char *idEnd, const char *word, const char *text);

}  // namespace vex::platform

#endif  // VEX_PLATFORM_TKZLOGLINE_H

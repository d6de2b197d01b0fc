// LogAnswerScope: one look at the log switch for all the lines of an answer.
//
// Logging is switched on by the presence of the log file, and each line
// looks for it. An answer of thousands of instances writes several debug
// lines per instance, and with logging off each of them would cost a file
// system look-up, most of the answer's own work. Inside a scope on one
// thread, a line that finds the log switched off remembers that for the
// scope's remaining lines; with logging on, every line is checked and written
// as usual. Logging switched on while an answer is being sent therefore
// starts with the next answer.
#ifndef VEX_PLATFORM_TKZLOGSCOPE_H
#define VEX_PLATFORM_TKZLOGSCOPE_H

namespace vex::platform {

class LogAnswerScope {
public:
    LogAnswerScope();
    ~LogAnswerScope();
    LogAnswerScope(const LogAnswerScope&) = delete;
    LogAnswerScope& operator=(const LogAnswerScope&) = delete;
};

// For the log writers: true when a scope on this thread has seen the log
// switched off; and the note that a line found it so.
bool logKnownOffInScope();
void noteLogOff();

}  // namespace vex::platform

#endif

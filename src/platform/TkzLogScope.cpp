#include "platform/TkzLogScope.h"

namespace vex::platform {
namespace {

thread_local int t_depth = 0;
thread_local bool t_knownOff = false;

}  // namespace

LogAnswerScope::LogAnswerScope() { ++t_depth; }

LogAnswerScope::~LogAnswerScope() {
    if (--t_depth == 0) {
        t_knownOff = false;
    }
}

bool logKnownOffInScope() { return t_depth > 0 && t_knownOff; }

void noteLogOff() {
    if (t_depth > 0) {
        t_knownOff = true;
    }
}

}  // namespace vex::platform

#include "controller/FsaTrace.h"

#include <cstdio>

#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

void traceLine(const char* tag, const char* name) {
    char line[256];
    std::snprintf(line, sizeof line, "%s%s", tag, name);
    TkzTrace(line);
}

}  // namespace

fsaMethodTrace::fsaMethodTrace(const char* name) : m_name(name) { traceLine("ENTER : ", m_name); }

fsaMethodTrace::~fsaMethodTrace() { traceLine("EXIT  : ", m_name); }

}  // namespace vex::cim::fwf

// "Entering <Class>::<member>()" and "Exiting <Class>::<member>()" trace
// lines of the logical drive spec builders.
#ifndef VEX_CONTROLLER_ROUTINES_BUILDERTRACE_H
#define VEX_CONTROLLER_ROUTINES_BUILDERTRACE_H

#include <string>

#include "platform/Tkz.h"

namespace vex::cim::fwf {

class BuilderTrace {
public:
    explicit BuilderTrace(const char* member) : m_member(member) {
        TkzTrace(("Entering " + m_member + "()").c_str());
    }
    BuilderTrace(const BuilderTrace&) = delete;
    BuilderTrace& operator=(const BuilderTrace&) = delete;
    ~BuilderTrace() { TkzTrace(("Exiting " + m_member + "()").c_str()); }

private:
    std::string m_member;
};

}  // namespace vex::cim::fwf

#endif

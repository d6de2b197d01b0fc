// Entry and exit trace lines of the controller access layer:
// "ENTER : <name>" when constructed, "EXIT  : <name>" when destroyed.
#ifndef VEX_CONTROLLER_FSATRACE_H
#define VEX_CONTROLLER_FSATRACE_H

namespace vex::cim::fwf {

class fsaMethodTrace {
public:
    explicit fsaMethodTrace(const char* name);
    fsaMethodTrace(const fsaMethodTrace&) = delete;
    fsaMethodTrace& operator=(const fsaMethodTrace&) = delete;
    ~fsaMethodTrace();

private:
    const char* m_name;
};

}  // namespace vex::cim::fwf

#endif

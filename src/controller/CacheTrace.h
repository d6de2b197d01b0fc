// CacheTrace: the "ENTER::<operation>" and "EXIT::<operation>" trace lines
// that every cache operation writes around its work.
#ifndef VEX_CONTROLLER_CACHETRACE_H
#define VEX_CONTROLLER_CACHETRACE_H

#include "platform/Tkz.h"

namespace vex::cim::fwf::cache {

class CacheTrace {
public:
    // Both texts are literals, e.g. "ENTER::flushCache" and "EXIT::flushCache".
    CacheTrace(const char* enterText, const char* exitText) : m_exitText(exitText) {
        TkzTrace(enterText);
    }
    CacheTrace(const CacheTrace&) = delete;
    CacheTrace& operator=(const CacheTrace&) = delete;
    ~CacheTrace() { TkzTrace(m_exitText); }

private:
    const char* m_exitText;
};

}  // namespace vex::cim::fwf::cache

#endif

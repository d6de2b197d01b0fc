// Small helpers for filling CMPIStatus and CMPIData the way every function
// table entry does.
#ifndef CMPIHOST_SRC_STATUS_H
#define CMPIHOST_SRC_STATUS_H

#include <cmpift.h>

namespace cmpihost::detail {

inline CMPIStatus status(CMPIrc rc) { return CMPIStatus{rc, nullptr}; }

inline void setStatus(CMPIStatus* st, CMPIrc rc) {
    if (st != nullptr) {
        st->rc = rc;
        st->msg = nullptr;
    }
}

// A null value of the given type; extra state bits (CMPI_notFound) added.
inline CMPIData nullData(CMPIType type = CMPI_null, CMPIValueState extra = 0) {
    CMPIData d{};
    d.type = type;
    d.state = static_cast<CMPIValueState>(CMPI_nullValue | extra);
    d.value.uint64 = 0;
    return d;
}

// The answer of a getter that failed: rc set, data null and not found.
inline CMPIData failedData(CMPIStatus* st, CMPIrc rc) {
    setStatus(st, rc);
    return nullData(CMPI_null, CMPI_notFound);
}

}  // namespace cmpihost::detail

#endif

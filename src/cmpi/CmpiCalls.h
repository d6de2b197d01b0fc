// Guarded calls into the object manager's CMPI tables.
//
// The provider talks to brokers of several CMPI levels (sfcb 1.4 reports
// level 0 and leaves the 2.0 slots empty). Every call that the adapter and
// the conversions make goes through one of these wrappers, which check the
// object, its function table and the slot before calling and answer "not
// available" (null, false or a failed status) otherwise. None of them calls
// a CMPI 2.0-only slot.
#ifndef VEX_CMPI_CMPICALLS_H
#define VEX_CMPI_CMPICALLS_H

#include <cmpidt.h>
#include <cmpift.h>

#include <string>

namespace vex::cim::adap::cmpi::calls {

// True when the call filled `rc` with CMPI_RC_OK.
inline bool ok(const CMPIStatus& rc) { return rc.rc == CMPI_RC_OK; }

// A status with the given code and no message.
inline CMPIStatus status(CMPIrc rc) {
    CMPIStatus s;
    s.rc = rc;
    s.msg = nullptr;
    return s;
}

// ---- broker services --------------------------------------------------------

// A new CMPI string, or null when there is no broker or it cannot make one.
CMPIString* newString(const CMPIBroker* broker, const char* text);
CMPIObjectPath* newObjectPath(const CMPIBroker* broker, const char* nameSpace,
                              const char* className);
CMPIInstance* newInstance(const CMPIBroker* broker, const CMPIObjectPath* path);
CMPIArray* newArray(const CMPIBroker* broker, CMPICount size, CMPIType elementType);
CMPIDateTime* newDateTimeFromChars(const CMPIBroker* broker, const char* text);
// False both for "no" and for "cannot tell".
bool classPathIsA(const CMPIBroker* broker, const CMPIObjectPath* path, const char* className);

// Sets rc and a message made with the broker (no broker, no message).
void setStatus(CMPIStatus* status, const CMPIBroker* broker, CMPIrc rc, const char* message);

// ---- strings ------------------------------------------------------------------

// The characters of a CMPI string. `usable` (when given) is false when the
// string object or its getCharPtr cannot be used; a usable string may still
// give a null pointer (sfcb does so for an absent principal).
const char* chars(const CMPIString* text, bool* usable = nullptr);
// The characters as std::string; empty when there are none.
std::string toStdString(const CMPIString* text);

// ---- results ------------------------------------------------------------------

bool returnInstance(const CMPIResult* result, const CMPIInstance* instance);
bool returnObjectPath(const CMPIResult* result, const CMPIObjectPath* path);
bool returnData(const CMPIResult* result, const CMPIValue* value, CMPIType type);
bool returnDone(const CMPIResult* result);

}  // namespace vex::cim::adap::cmpi::calls

#endif

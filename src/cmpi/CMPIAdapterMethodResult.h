// How the outcome of an extrinsic method reaches the object manager.
#ifndef VEX_CMPI_CMPIADAPTERMETHODRESULT_H
#define VEX_CMPI_CMPIADAPTERMETHODRESULT_H

#include <cmpidt.h>
#include <cmpift.h>

namespace vex::cim::adap::cmpi::method {

// 0, 5, 6, 24 and 25: the return values of a completed call.
bool isCompletedReturnValue(unsigned int value);

// Throws CIMException 1 " :: Operation Failed" (after logging "InvokeMethod
// returns error = <value>") when the value is not one of a completed call.
void requireCompleted(unsigned int value);

// The method's return value as CMPI_uint32, then returnDone.
void returnValue(const CMPIResult* result, unsigned int value);

}  // namespace vex::cim::adap::cmpi::method

#endif

// _CompletedJob: the last state of a job that has left the cache. The job
// properties are kept in one fixed order, the order in which they are taken
// over from the job instance; the index names below and the name table say
// which slot holds which property.
#ifndef VEX_FRAMEWORK_COMPLETEDJOB_H
#define VEX_FRAMEWORK_COMPLETEDJOB_H

#include <array>
#include <cstddef>

#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

enum CompletedJobProperty : std::size_t {
    CJ_INSTANCE_ID = 0,
    CJ_NAME,
    CJ_TYPE_AND_SUBTYPE_OF_OPERATION,
    CJ_DEVICE_TYPE_AND_ID,
    CJ_OPERATIONAL_STATUS,
    CJ_JOB_STATUS,
    CJ_START_TIME,
    CJ_LAST_TIME_OF_MODIFICATION,
    CJ_ELAPSED_TIME,
    CJ_DELETE_ON_COMPLETION,
    CJ_PERCENT_COMPLETE,
    CJ_LOCAL_OR_UTC_TIME,
    CJ_PROPERTY_COUNT
};

// The CIM property name of each slot, in slot order.
inline constexpr std::array<const char*, CJ_PROPERTY_COUNT> kCompletedJobPropertyNames = {
    "InstanceID",        "Name",
    "TypeAndSubTypeOfOperation", "DeviceTypeAndID",
    "OperationalStatus", "JobStatus",
    "StartTime",         "LastTimeOfModification",
    "ElapsedTime",       "DeleteOnCompletion",
    "PercentComplete",   "LocalOrUtcTime"};

struct _CompletedJob {
    // Slot i holds the property named kCompletedJobPropertyNames[i]; a slot
    // the job did not carry stays a default (unnamed) property.
    std::array<CIMProperty, CJ_PROPERTY_COUNT> properties;

    CIMProperty& operator[](CompletedJobProperty slot) { return properties[slot]; }
    const CIMProperty& operator[](CompletedJobProperty slot) const { return properties[slot]; }
};

}  // namespace vex::cim::fwf

#endif

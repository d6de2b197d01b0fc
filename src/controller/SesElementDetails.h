// What an enclosure element reports beyond its SES status: the speed of a
// fan, the failure flags and rating of a power supply, the reading and
// thresholds of a temperature sensor, whether a slot holds a drive. Added to
// the element's type-8 instance, so that the fan, power supply, sensor and
// slot classes can tell their health and readings.
#ifndef VEX_CONTROLLER_SESELEMENTDETAILS_H
#define VEX_CONTROLLER_SESELEMENTDETAILS_H

#include "controller/FsaCIMInstanceWrapper.h"
#include "controller/MappingContext.h"

namespace vex::cim::fwf::fsamap {

void insertSESElementDetails(const SESElementContext& element, fsaCIMInstanceWrapper& instance);

}  // namespace vex::cim::fwf::fsamap

#endif

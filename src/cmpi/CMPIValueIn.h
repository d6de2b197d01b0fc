// Reading one CMPI value (a CMPIData) into a framework property.
//
// Three readers, one per use, because each accepts a different set of CMPI
// types: key bindings (the four CMPI key types), instance properties (every
// type the framework has a slot for) and method input arguments (the types
// the method providers take). All of them throw CIMException 1
// " :: Operation Failed" when a value cannot be read; the argument reader
// throws CIMException 7 " :: Not supported" for a type it does not take.
#ifndef VEX_CMPI_CMPIVALUEIN_H
#define VEX_CMPI_CMPIVALUEIN_H

#include <cmpidt.h>

#include <string>

#include "framework/CIMProperty.h"

namespace vex::cim::adap::cmpi {

// A key binding: strings, integers (as signed 64-bit), booleans and
// references. The property has its key flag set.
fwf::CIMProperty keyToProperty(const std::string& name, const CMPIData& data);

// An instance property of any supported type, scalar or array. A null value
// gives a property of the right type without elements.
fwf::CIMProperty dataToProperty(const std::string& name, const CMPIData& data);

// True for the CMPI types accepted as method input.
bool isAcceptedArgumentType(CMPIType type);

// A method input argument; throws 7 for a type isAcceptedArgumentType refuses.
fwf::CIMProperty argumentToProperty(const std::string& name, const CMPIData& data);

}  // namespace vex::cim::adap::cmpi

#endif

// Writing one framework property as a CMPI value.
//
// The value is made (strings, datetimes, paths, instances and arrays with the
// broker's constructors) and handed to a sink - the instance's setProperty,
// the path's addKey or the out arguments' addArg - together with its CMPI
// type.
//
// Datetimes: the framework stores a datetime as its CIM string. It goes to the
// object manager as a CMPI_dateTime made with newDateTimeFromChars, which is
// what a datetime property of the class expects; when the broker cannot make
// one from the text (no such service, or text that is not a CIM datetime) the
// string itself is sent as CMPI_string rather than dropping the property.
#ifndef VEX_CMPI_CMPIVALUEOUT_H
#define VEX_CMPI_CMPIVALUEOUT_H

#include <cmpidt.h>
#include <cmpift.h>

#include <functional>

#include "framework/CIMProperty.h"

namespace vex::cim::adap::cmpi {

// Takes the finished value; false when the object manager refuses it.
using ValueSink = std::function<bool(const CMPIValue* value, CMPIType type)>;

// Framework tags that have a CMPI type for instances and object-path keys:
// boolean, the integers, string, datetime, reference and their arrays.
bool isWritablePropertyType(fwf::Primitive_DataType type);
// Framework tags returned as method output: uint32, uint64, string,
// reference, embedded instance and the arrays uint32, string, reference and
// embedded instance.
bool isWritableArgumentType(fwf::Primitive_DataType type);

// Makes the value of `property` and hands it to `sink`. The caller has
// checked the type with one of the two functions above.
//
// A scalar property without a value (its slot does not hold the declared
// type) is logged as a type mismatch naming `function` and thrown as
// CIMException 1 " :: Operation Failed"; so is a refused sink or a broker
// that cannot make the value.
// Scalar strings go to instances and path keys as CMPI_chars (the broker
// copies the characters; no string object is made), to method arguments as
// CMPI_string objects.
enum class Text { Chars, Objects };
void writeValue(const fwf::CIMProperty& property, const CMPIBroker* broker, const char* function,
                const ValueSink& sink, Text text = Text::Objects);

}  // namespace vex::cim::adap::cmpi

#endif

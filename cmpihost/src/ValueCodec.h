// ValueCodec: CMPI values <-> host Values.
//
// decodeValue deep-copies what a provider passes (setProperty, addKey,
// addArg, setElementAt, addEntry, returnData): for CMPI_chars the value
// pointer itself is the character pointer; CMPI_string, CMPI_ref,
// CMPI_instance, CMPI_dateTime and arrays must be host-made objects and are
// copied. A NULL value pointer is a null value of the type.
//
// encodeValue makes the CMPIData a getter hands out; strings, paths,
// instances, date-times and arrays are new objects of the calling thread's
// arena.
#ifndef CMPIHOST_SRC_VALUECODEC_H
#define CMPIHOST_SRC_VALUECODEC_H

#include <cmpift.h>

#include "cmpihost/Value.h"

namespace cmpihost::detail {

class Broker;

// CMPI_chars -> CMPI_string (and the same for arrays).
CMPIType canonicalType(CMPIType type);
// The element types a host value (and a CMPIArray) can hold.
bool isValueType(CMPIType elementType);

CMPIrc decodeValue(const CMPIValue* value, CMPIType type, Value& out);
CMPIData encodeValue(Broker& broker, const Value& value);

// The value in the CMPI key types: strings (also char16 and date-times as
// text), sint64 for every integer, boolean, ref.
Value asKeyType(const Value& value);

}  // namespace cmpihost::detail

#endif

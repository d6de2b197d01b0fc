// Reading cache records while deriving device instances from them: the
// record's properties by name (scalars, or element i of the parallel arrays
// a record keeps several ports or identities in) copied under the derived
// class's own names, and the small value maps the derived classes share.
#ifndef VEX_PROVIDERS_DEVICE_DERIVEDRECORDS_H
#define VEX_PROVIDERS_DEVICE_DERIVEDRECORDS_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::derived {

enum Flag : bool { kPlain = false, kKey = true };

// The record's property `from` copied into `out` as `to`; false when the
// record has none.
bool copyAs(const CIMInstance& record, const std::string& from, const std::string& to, CIMInstance& out,
            Flag flag = kPlain);
// Element `index` of the record's array `from`, as scalar `to`.
bool copyElementAs(const CIMInstance& record, const std::string& from, std::size_t index,
                   const std::string& to, CIMInstance& out, Flag flag = kPlain);

// How many elements the record's array property has (0 when absent).
std::size_t elementCount(const CIMInstance& record, const std::string& name);
// The text of a scalar property, or of element `index` of an array ("" when absent).
std::string textOf(const CIMInstance& record, const std::string& name);
std::string elementText(const CIMInstance& record, const std::string& name, std::size_t index);
// The value of a numeric property; none when absent or not a number.
std::optional<long long> numberOf(const CIMInstance& record, const std::string& name);
// The value of element `index` of a numeric array property.
std::optional<long long> elementNumber(const CIMInstance& record, const std::string& name, std::size_t index);
// A text the mapping left "unknown" counts as absent.
bool known(const std::string& text);

void addKey(CIMInstance& out, const std::string& name, const std::string& value);
void addText(CIMInstance& out, const std::string& name, const std::string& value);
void addUint16(CIMInstance& out, const std::string& name, unsigned short value);
void addUint16s(CIMInstance& out, const std::string& name, std::vector<unsigned short> values);
void addUint32(CIMInstance& out, const std::string& name, unsigned int value);
void addSint32(CIMInstance& out, const std::string& name, int value);
void addBoolean(CIMInstance& out, const std::string& name, bool value);
void addTexts(CIMInstance& out, const std::string& name, std::vector<std::string> values);

// CIM_ManagedSystemElement.HealthState for an OperationalStatus value:
// 5 OK, 10 Degraded/Warning, 20 Major failure, 25 Critical failure,
// 30 Non-recoverable error, 0 Unknown.
unsigned short healthOf(unsigned short operationalStatus);
// OperationalStatus and HealthState together.
void addHealth(CIMInstance& out, unsigned short operationalStatus);

// The controller number that leads an identifier ("0_Driver" -> "0",
// "1_4_2" -> "1"); "" when it does not start with a number.
std::string leadingNumber(const std::string& text);

}  // namespace vex::cim::fwf::derived

#endif

// Words for the CIM values a storage administrator reads: operational
// status and battery status (by the value maps of CIM_ManagedSystemElement
// and CIM_Battery), sizes in bytes, and plain property text.
#ifndef VEXRAID_CIMTEXT_H
#define VEXRAID_CIMTEXT_H

#include <cmpihost/Instance.h>
#include <cmpihost/Value.h>

#include <cstdint>
#include <optional>
#include <string>

namespace vexraid {

// "OK", "Degraded, In Service"; "" for a null or missing value.
std::string operationalStatusText(const cmpihost::Value* status);
// "Fully Charged", "Charging", ...
std::string batteryStatusText(const cmpihost::Value* status);
// "1.2 TB", "500.1 GB", "512 B" (powers of 1000, as drives are sold).
std::string sizeText(std::uint64_t bytes);

// A scalar property as plain text (strings unquoted); "" when absent or null.
std::string propertyText(const cmpihost::Instance& instance, const std::string& name);
// An unsigned or signed integer property; nullopt when absent or of another type.
std::optional<std::int64_t> integerProperty(const cmpihost::Instance& instance, const std::string& name);
// Element i of an array property as text; "" when there is none.
std::string elementText(const cmpihost::Instance& instance, const std::string& name, std::size_t i);

}  // namespace vexraid

#endif

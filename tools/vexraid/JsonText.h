// Instances, paths and values as JSON (nlohmann::json): an instance is
// {"path": "...", "class": "...", "properties": {"Name": value, ...}}; a
// reference is its path text, a date-time its CIM text, an embedded
// instance a nested instance object.
#ifndef VEXRAID_JSONTEXT_H
#define VEXRAID_JSONTEXT_H

#include <cmpihost/Instance.h>
#include <cmpihost/Value.h>

#include <nlohmann/json.hpp>

#include <string>

namespace vexraid {

nlohmann::json jsonValue(const cmpihost::Value& value);
nlohmann::json jsonValues(const cmpihost::NamedValues& values);
nlohmann::json jsonInstance(const cmpihost::Instance& instance);

// Text of a JSON document; invalid UTF-8 is replaced, never thrown on.
std::string jsonText(const nlohmann::json& json, bool pretty);

}  // namespace vexraid

#endif

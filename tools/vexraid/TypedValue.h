// Typed values on the command line, for method arguments and modified
// properties:
//
//   Name=type:value      Size=uint64:1024  Name=string:foo  Fix=boolean:true
//   Name=type[]:a,b,c    Drives=string[]:0_0_1,0_0_2  (a ',' in an element: "\,")
//   Name=value           untyped: the type comes from the schema or the
//                        current instance
//
// Types: boolean, char16, string, datetime (25 characters of CIM text),
// uint8..uint64, sint8..sint64, real32, real64, ref (an object path).
#ifndef VEXRAID_TYPEDVALUE_H
#define VEXRAID_TYPEDVALUE_H

#include <cmpidt.h>
#include <cmpihost/Value.h>

#include <optional>
#include <string>

namespace vexraid {

struct Assignment {
    std::string name;
    std::optional<CMPIType> type;  // when written with a type
    std::string text;              // the value as written, after the type
};

// Throws UsageError on a missing '=', a bad name or an unknown type.
Assignment parseAssignment(const std::string& text);

// The CMPI type of "uint16", "string[]", ...; nullopt for an unknown name.
std::optional<CMPIType> typeFromName(const std::string& name);

// The value of text as the given type (arrays split at unescaped commas);
// throws UsageError when the text is no such value or out of its range.
cmpihost::Value valueFromText(CMPIType type, const std::string& text, const std::string& defaultNamespace);

}  // namespace vexraid

#endif

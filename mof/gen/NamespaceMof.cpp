#include "RegistrationWriters.h"

namespace vex::mof {

std::string namespaceMof(const ProviderSchema& schema, const std::string& nameSpace) {
    std::string out = "// The classes of " + std::string(kProviderName) + " in " + nameSpace +
                      ".\n// Compile into " + nameSpace +
                      " after the DMTF CIM schema (2.29 or later).\n\n";
    for (const ClassDecl* cls : schema.classesIn(nameSpace)) {
        out += cls->text;
        out += "\n\n";
    }
    return out;
}

}  // namespace vex::mof

#include "RegistrationWriters.h"

namespace vex::mof {

std::string namespaceMof(const ProviderSchema& schema, const std::string& nameSpace) {
    const bool interop = nameSpace == kInteropNamespace;
    const std::string where = interop ? std::string("the interop namespace (") + kSfcbInteropNamespace +
                                            " in sfcb, " + kInteropNamespace + " in OpenPegasus)"
                                      : nameSpace;
    std::string out = "// The classes of " + std::string(kProviderName) + " in " + where +
                      ".\n// Compile into " + where + " after the DMTF CIM schema (2.41).\n\n";
    for (const ClassDecl* cls : schema.classesIn(nameSpace)) {
        out += cls->text;
        out += "\n\n";
    }
    return out;
}

}  // namespace vex::mof

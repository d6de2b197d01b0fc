#include "RegistrationWriters.h"

namespace vex::mof {

namespace {

std::string typeWords(const ProviderTypes& types) {
    std::string words;
    auto add = [&words](bool on, const char* word) {
        if (on) words += words.empty() ? word : std::string(" ") + word;
    };
    add(types.instance, "instance");
    add(types.association, "association");
    add(types.method, "method");
    add(types.indication || types.lifecycle, "indication");
    return words;
}

std::string namespaceWords(unsigned bits) {
    std::string words;
    if (bits & kInImplementation) words += kImplementationNamespace;
    if (bits & kInInterop) words += (words.empty() ? "" : " ") + std::string(kSfcbInteropNamespace);
    return words;
}

}  // namespace

std::string sfcbRegistration(const ProviderSchema& schema) {
    std::string out = std::string("# sfcb registration of ") + kProviderName +
                      ": stage with sfcbstage into each namespace, then run sfcbrepos.\n"
                      "# sfcb's interop namespace is root/interop.\n";
    for (const ClassDecl& cls : schema.classes()) {
        out += "[" + cls.name + "]\n";
        out += std::string("   provider: ") + kProviderName + "\n";
        out += std::string("   location: ") + kProviderName + "\n";
        out += std::string("   group: ") + kProviderName + "\n";
        out += "   unload: never\n";
        out += "   type: " + typeWords(schema.typesOf(cls)) + "\n";
        out += "   namespace: " + namespaceWords(schema.namespacesOf(cls.name)) + "\n";
        out += "#\n";
    }
    return out;
}

}  // namespace vex::mof

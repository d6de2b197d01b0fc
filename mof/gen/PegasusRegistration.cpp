#include "RegistrationWriters.h"

#include <vector>

namespace vex::mof {

namespace {

const std::string kModule = std::string(kProviderName) + "Module";
const char* const kLifecycleClasses[] = {"CIM_InstCreation", "CIM_InstModification", "CIM_InstDeletion"};

// ProviderType values of PG_ProviderCapabilities.
std::string typeNumbers(const ProviderTypes& types) {
    std::vector<const char*> numbers;
    if (types.instance) numbers.push_back("2");
    if (types.association) numbers.push_back("3");
    if (types.indication) numbers.push_back("4");
    if (types.method) numbers.push_back("5");
    std::string out;
    for (const char* n : numbers) out += (out.empty() ? "" : ", ") + std::string(n);
    return out;
}

std::string namespaceList(unsigned bits) {
    std::string out;
    if (bits & kInImplementation) out += std::string("\"") + kImplementationNamespace + "\"";
    if (bits & kInInterop) out += (out.empty() ? "\"" : ", \"") + std::string(kInteropNamespace) + "\"";
    return out;
}

std::string capabilities(const std::string& className, const std::string& types, unsigned namespaces) {
    return "instance of PG_ProviderCapabilities\n{\n"
           "    ProviderModuleName = \"" + kModule + "\";\n"
           "    ProviderName = \"" + kProviderName + "\";\n"
           "    CapabilityID = \"" + className + "\";\n"
           "    ClassName = \"" + className + "\";\n"
           "    Namespaces = {" + namespaceList(namespaces) + "};\n"
           "    ProviderType = {" + types + "};\n"
           "    SupportedProperties = NULL;\n"
           "    SupportedMethods = NULL;\n};\n\n";
}

std::string moduleAndProvider(const std::string& version) {
    return "instance of PG_ProviderModule\n{\n"
           "    Name = \"" + kModule + "\";\n"
           "    Location = \"" + kProviderName + "\";\n"
           "    Vendor = \"VEX\";\n"
           "    Version = \"" + version + "\";\n"
           "    InterfaceType = \"CMPI\";\n"
           "    InterfaceVersion = \"2.0.0\";\n};\n\n"
           "instance of PG_Provider\n{\n"
           "    Name = \"" + kProviderName + "\";\n"
           "    ProviderModuleName = \"" + kModule + "\";\n};\n\n";
}

}  // namespace

std::string pegasusRegistration(const ProviderSchema& schema, const std::string& version) {
    std::string out = std::string("// OpenPegasus registration of ") + kProviderName +
                      ": compile into root/PG_InterOp with cimmof.\n\n" + moduleAndProvider(version);
    bool lifecycle = false;
    for (const ClassDecl& cls : schema.classes()) {
        out += capabilities(cls.name, typeNumbers(schema.typesOf(cls)), schema.namespacesOf(cls.name));
        lifecycle = lifecycle || schema.sendsLifecycleIndications(cls.name);
    }
    if (lifecycle) {
        for (const char* indication : kLifecycleClasses) {
            out += capabilities(indication, "4", kInImplementation);
        }
    }
    return out;
}

}  // namespace vex::mof

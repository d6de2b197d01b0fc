// The schema as the MOF files declare it: classes with their superclass,
// qualifiers, properties and methods. Only what the provider's own MOF uses
// is modelled; names compare case-insensitively, as CIM names do.
#ifndef VEX_MOF_MOFMODEL_H
#define VEX_MOF_MOFMODEL_H

#include <string>
#include <vector>

namespace vex::mof {

// A qualifier with its value(s) as written, strings without their quotes.
struct Qualifier {
    std::string name;
    std::vector<std::string> values;
};

// A property, parameter or return type: an intrinsic type name ("uint16",
// "string", "datetime", ...) or, for a reference, the referenced class.
struct MofType {
    std::string name;
    bool isRef = false;
    bool isArray = false;

    // "uint16[]", "VEX_Battery REF".
    std::string toString() const;
};

struct Property {
    std::string name;
    MofType type;
    std::vector<Qualifier> qualifiers;
    int line = 0;

    bool isKey() const;
    // The class named by an EmbeddedInstance qualifier, "" when none.
    std::string embeddedInstance() const;
};

struct Parameter {
    std::string name;
    MofType type;
    std::vector<Qualifier> qualifiers;

    bool isIn() const;  // IN is the default
    bool isOut() const;
};

struct Method {
    std::string name;
    MofType returnType;
    std::vector<Parameter> parameters;
    std::vector<Qualifier> qualifiers;

    const Parameter* parameter(const std::string& name) const;
};

struct ClassDecl {
    std::string name;
    std::string superClass;  // "" for a root class
    std::vector<Qualifier> qualifiers;
    std::vector<Property> properties;
    std::vector<Method> methods;
    std::string source;  // file name
    int line = 0;
    std::string text;  // the declaration as written, qualifiers to the closing ';'

    bool isAssociation() const;
    bool isIndication() const;
    const Property* property(const std::string& name) const;
    const Method* method(const std::string& name) const;
    std::vector<std::string> keyNames() const;
};

// Case-insensitive equality of CIM names.
bool sameName(const std::string& a, const std::string& b);
std::string lowerCase(const std::string& text);
const Qualifier* findQualifier(const std::vector<Qualifier>& qualifiers, const std::string& name);

}  // namespace vex::mof

#endif

#include "InstanceConformance.h"

#include <cmpihost/ObjectPath.h>

#include <map>
#include <set>

namespace vex::moftest {

namespace {

const std::map<std::string, CMPIType> kTypes = {
    {"boolean", CMPI_boolean}, {"string", CMPI_string}, {"char16", CMPI_char16}, {"datetime", CMPI_dateTime},
    {"uint8", CMPI_uint8},     {"uint16", CMPI_uint16}, {"uint32", CMPI_uint32}, {"uint64", CMPI_uint64},
    {"sint8", CMPI_sint8},     {"sint16", CMPI_sint16}, {"sint32", CMPI_sint32}, {"sint64", CMPI_sint64},
    {"real32", CMPI_real32},   {"real64", CMPI_real64}};

std::set<std::string> lowered(const std::vector<std::string>& names) {
    std::set<std::string> out;
    for (const std::string& n : names) out.insert(mof::lowerCase(n));
    return out;
}

std::string joined(const std::set<std::string>& names) {
    std::string out;
    for (const std::string& n : names) out += (out.empty() ? "" : ",") + n;
    return "{" + out + "}";
}

void checkReference(const cmpihost::Value& value, const mof::Property& declared, const mof::ProviderSchema& schema,
                    const std::string& where, std::vector<std::string>& out) {
    if (value.type() != CMPI_ref || value.isNull()) return;
    const std::string& target = value.asRef().className;
    if (!schema.isA(target, declared.type.name)) {
        out.push_back(where + " refers to " + target + ", not a " + declared.type.name);
    }
}

void checkKeyValues(const cmpihost::Instance& instance, const std::string& cls, std::vector<std::string>& out) {
    for (const cmpihost::NamedValue& key : instance.path.keys) {
        const cmpihost::Value* property = instance.property(key.name);
        if (property == nullptr) {
            out.push_back(cls + " key " + key.name + " is no property of the instance");
        } else if (key.value.type() == CMPI_string && property->type() == CMPI_string &&
                   key.value.asString() != property->asString()) {
            out.push_back(cls + " key " + key.name + " is \"" + key.value.asString() + "\" in the path, \"" +
                          property->asString() + "\" in the instance");
        }
    }
}

}  // namespace

CMPIType expectedType(const mof::Property& property) {
    CMPIType base = CMPI_null;
    if (property.type.isRef) {
        base = CMPI_ref;
    } else if (!property.embeddedInstance().empty()) {
        base = CMPI_instance;
    } else {
        auto found = kTypes.find(property.type.name);
        base = found == kTypes.end() ? CMPI_null : found->second;
    }
    return static_cast<CMPIType>(property.type.isArray ? (base | CMPI_ARRAY) : base);
}

std::vector<std::string> pathProblems(const cmpihost::ObjectPath& path, const mof::ClassDecl& cls) {
    std::vector<std::string> out;
    std::vector<std::string> keys;
    for (const cmpihost::NamedValue& k : path.keys) keys.push_back(k.name);
    if (lowered(keys) != lowered(cls.keyNames())) {
        out.push_back(cls.name + " path keys " + joined(lowered(keys)) + " are not its Key properties " +
                      joined(lowered(cls.keyNames())));
    }
    if (!mof::sameName(path.className, cls.name)) {
        out.push_back(cls.name + " path names the class " + path.className);
    }
    return out;
}

std::vector<std::string> instanceProblems(const cmpihost::Instance& instance, const mof::ClassDecl& cls,
                                          const mof::ProviderSchema& schema) {
    std::vector<std::string> out = pathProblems(instance.path, cls);
    for (const cmpihost::NamedValue& p : instance.properties) {
        const std::string where = cls.name + "." + p.name;
        const mof::Property* declared = cls.property(p.name);
        if (declared == nullptr) {
            out.push_back(where + " (" + cmpihost::typeName(p.value.type()) + ") is not declared");
            continue;
        }
        if (p.value.type() != expectedType(*declared)) {
            out.push_back(where + " is " + cmpihost::typeName(p.value.type()) + ", declared " + declared->type.toString());
            continue;
        }
        checkReference(p.value, *declared, schema, where, out);
    }
    checkKeyValues(instance, cls.name, out);
    return out;
}

}  // namespace vex::moftest

#include "Routing.h"

#include "Errors.h"

namespace vexraid {

namespace {

using vex::mof::ClassDecl;
using vex::mof::ProviderSchema;

void requireKnownClass(const ProviderSchema& schema, const std::string& className, const std::string& nameSpace) {
    if (!schema.knows(className)) {
        throw CimError(CMPI_RC_ERR_INVALID_CLASS, "no class " + className + " in " + nameSpace);
    }
}

bool linksSource(const ProviderSchema& schema, const ClassDecl& association, const std::string& sourceClass,
                 const std::optional<std::string>& role) {
    for (const vex::mof::Property& p : association.properties) {
        if (p.type.isRef && (!role || vex::mof::sameName(p.name, *role)) && schema.isA(sourceClass, p.type.name)) {
            return true;
        }
    }
    return false;
}

}  // namespace

void requireNamespace(const ProviderSchema&, const std::string& nameSpace) {
    if (vex::mof::namespaceBit(nameSpace) == 0) {
        throw CimError(CMPI_RC_ERR_INVALID_NAMESPACE, "no namespace " + nameSpace +
                       " (the provider serves root/tkz/vex/smi_15 and root/PG_InterOp)");
    }
}

const ClassDecl& requireServedClass(const ProviderSchema& schema, const cmpihost::ObjectPath& path) {
    requireNamespace(schema, path.nameSpace);
    requireKnownClass(schema, path.className, path.nameSpace);
    const ClassDecl* cls = schema.find(path.className);
    if (cls == nullptr || !schema.servedIn(cls->name, path.nameSpace)) {
        throw CimError(CMPI_RC_ERR_INVALID_CLASS, "the provider serves no class " + path.className + " in " + path.nameSpace);
    }
    return *cls;
}

std::vector<std::string> enumerationClasses(const ProviderSchema& schema, const cmpihost::ObjectPath& classPath) {
    requireNamespace(schema, classPath.nameSpace);
    requireKnownClass(schema, classPath.className, classPath.nameSpace);
    if (schema.find(classPath.className) != nullptr) {
        return {requireServedClass(schema, classPath).name};
    }
    std::vector<std::string> classes;
    for (const ClassDecl* cls : schema.classesIn(classPath.nameSpace)) {
        if (schema.isA(cls->name, classPath.className)) classes.push_back(cls->name);
    }
    return classes;
}

std::vector<std::string> associationClasses(const ProviderSchema& schema, const cmpihost::ObjectPath& source,
                                            const std::optional<std::string>& assocClass,
                                            const std::optional<std::string>& role) {
    requireNamespace(schema, source.nameSpace);
    requireKnownClass(schema, source.className, source.nameSpace);
    if (assocClass) requireKnownClass(schema, *assocClass, source.nameSpace);
    std::vector<std::string> classes;
    for (const ClassDecl* cls : schema.classesIn(source.nameSpace)) {
        if (cls->isAssociation() && (!assocClass || schema.isA(cls->name, *assocClass)) &&
            linksSource(schema, *cls, source.className, role)) {
            classes.push_back(cls->name);
        }
    }
    return classes;
}

const vex::mof::Method& requireMethod(const ClassDecl& cls, const std::string& method) {
    const vex::mof::Method* m = cls.method(method);
    if (m == nullptr) {
        throw CimError(CMPI_RC_ERR_METHOD_NOT_FOUND, "class " + cls.name + " has no method " + method);
    }
    return *m;
}

}  // namespace vexraid

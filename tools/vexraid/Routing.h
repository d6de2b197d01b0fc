// How an object manager routes a request to the provider, decided from the
// provider schema: which namespaces exist, which classes are registered
// where, which registered classes answer an enumeration of a DMTF class and
// which association classes can link a given object. Each refusal is the
// CIM status an object manager would give (CimError).
#ifndef VEXRAID_ROUTING_H
#define VEXRAID_ROUTING_H

#include <cmpihost/ObjectPath.h>

#include <optional>
#include <string>
#include <vector>

#include "ProviderSchema.h"

namespace vexraid {

// CIM_ERR_INVALID_NAMESPACE unless the provider serves the namespace.
void requireNamespace(const vex::mof::ProviderSchema& schema, const std::string& nameSpace);

// The provider class a request on one object or class goes to; invalid
// namespace or invalid class (also for a class registered only elsewhere).
const vex::mof::ClassDecl& requireServedClass(const vex::mof::ProviderSchema& schema,
                                              const cmpihost::ObjectPath& path);

// The registered classes an enumeration of path's class covers: the class
// itself, or for a DMTF class every registered class derived from it
// (possibly none).
std::vector<std::string> enumerationClasses(const vex::mof::ProviderSchema& schema,
                                            const cmpihost::ObjectPath& classPath);

// The registered association classes that may link the source object:
// derived from assocClass when given, with a reference (named role when
// given) whose class the source's class derives from.
std::vector<std::string> associationClasses(const vex::mof::ProviderSchema& schema,
                                            const cmpihost::ObjectPath& source,
                                            const std::optional<std::string>& assocClass,
                                            const std::optional<std::string>& role);

// The method a request names, CIM_ERR_METHOD_NOT_FOUND when the class has none
// of that name.
const vex::mof::Method& requireMethod(const vex::mof::ClassDecl& cls, const std::string& method);

}  // namespace vexraid

#endif

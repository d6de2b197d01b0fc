// Whether what the provider returns is what the schema declares: every
// property of an instance declared by its class with the same CMPI type,
// every reference pointing to the declared class (or one derived from it),
// the object path carrying exactly the Key properties.
#ifndef VEX_TESTS_MOF_INSTANCECONFORMANCE_H
#define VEX_TESTS_MOF_INSTANCECONFORMANCE_H

#include <cmpihost/Instance.h>

#include <string>
#include <vector>

#include "ProviderSchema.h"

namespace vex::moftest {

// One sentence per departure, naming class and property.
std::vector<std::string> instanceProblems(const cmpihost::Instance& instance, const mof::ClassDecl& cls,
                                          const mof::ProviderSchema& schema);
std::vector<std::string> pathProblems(const cmpihost::ObjectPath& path, const mof::ClassDecl& cls);

// The CMPI type a value of a declared property has.
CMPIType expectedType(const mof::Property& property);

}  // namespace vex::moftest

#endif

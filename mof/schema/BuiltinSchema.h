// The provider schema compiled into a program: the MOF sources,
// hierarchy.txt and registration.txt as they were at build time.
#ifndef VEX_MOF_BUILTINSCHEMA_H
#define VEX_MOF_BUILTINSCHEMA_H

#include <cstddef>

#include "ProviderSchema.h"

namespace vex::mof {

struct SchemaText {
    const char* name;  // file name
    const char* text;
};

// Generated at build time (BuiltinSchemaText.cpp).
extern const SchemaText kBuiltinMofSources[];
extern const std::size_t kBuiltinMofSourceCount;
extern const SchemaText kBuiltinHierarchy;
extern const SchemaText kBuiltinRegistration;

// The schema read from the texts above, once.
const ProviderSchema& builtinSchema();

}  // namespace vex::mof

#endif

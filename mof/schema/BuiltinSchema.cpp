#include "BuiltinSchema.h"

namespace vex::mof {

namespace {

ProviderSchema readBuiltin() {
    ProviderSchema schema;
    for (std::size_t i = 0; i < kBuiltinMofSourceCount; ++i) {
        schema.addMof(kBuiltinMofSources[i].text, kBuiltinMofSources[i].name);
    }
    schema.addChains(kBuiltinHierarchy.text, kBuiltinHierarchy.name);
    schema.addPlan(kBuiltinRegistration.text, kBuiltinRegistration.name);
    return schema;
}

}  // namespace

const ProviderSchema& builtinSchema() {
    static const ProviderSchema schema = readBuiltin();
    return schema;
}

}  // namespace vex::mof

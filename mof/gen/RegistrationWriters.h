// The files an object manager needs to serve the provider, written from the
// provider schema: the class MOF of each namespace, sfcb's provider
// registration and OpenPegasus' registration instances.
#ifndef VEX_MOF_REGISTRATIONWRITERS_H
#define VEX_MOF_REGISTRATIONWRITERS_H

#include <string>

#include "ProviderSchema.h"

namespace vex::mof {

inline constexpr const char* kProviderName = "vexRAIDProvider15";

// The declarations of every class registered in nameSpace, in schema order,
// as written in the sources.
std::string namespaceMof(const ProviderSchema& schema, const std::string& nameSpace);

// sfcb: one [Class] entry per class with its types and namespaces.
std::string sfcbRegistration(const ProviderSchema& schema);

// OpenPegasus: the provider module, the provider and one capabilities
// instance per class (and per life-cycle indication class), to be compiled
// into root/PG_InterOp.
std::string pegasusRegistration(const ProviderSchema& schema, const std::string& version);

}  // namespace vex::mof

#endif

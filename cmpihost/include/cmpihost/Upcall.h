// Upcall: one call a provider made into CMPIBrokerFT (attachThread,
// enumerateInstanceNames, ...), with the object path it named if any.
#ifndef CMPIHOST_UPCALL_H
#define CMPIHOST_UPCALL_H

#include <string>

#include "cmpihost/ObjectPath.h"

namespace cmpihost {

struct Upcall {
    std::string function;
    ObjectPath path;
};

}  // namespace cmpihost

#endif

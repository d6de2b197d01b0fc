// The broker's function tables, per imitated CIMOM.
#ifndef CMPIHOST_SRC_BROKERTABLES_H
#define CMPIHOST_SRC_BROKERTABLES_H

#include <cmpift.h>

#include "cmpihost/HostConfig.h"

namespace cmpihost::detail {

CMPIBrokerFT* brokerServices(Flavor flavor);
CMPIBrokerEncFT* brokerFactories(Flavor flavor);
CMPIBrokerExtFT* brokerThreads(Flavor flavor);
// NULL for sfcb 1.4.
CMPIBrokerMemFT* brokerMemory(Flavor flavor);

}  // namespace cmpihost::detail

#endif

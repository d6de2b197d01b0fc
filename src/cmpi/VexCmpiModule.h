// Module-level state of the loaded provider and its life cycle: the first
// factory call initialises the provider once, the terminating cleanup that
// balances the last factory call tears it down once. One life per load: after
// the teardown nothing initialises it again until the object manager loads
// the shared object anew.
#ifndef VEX_CMPI_VEXCMPIMODULE_H
#define VEX_CMPI_VEXCMPIMODULE_H

#include <cmpidt.h>
#include <cmpift.h>

#include <atomic>

namespace vex::cim::adap::cmpi {

// Broker and context of the last factory call. Written by every factory
// call; all of them pass the same broker, so the last write wins harmlessly.
extern std::atomic<const CMPIBroker*> g_Broker;
extern std::atomic<const CMPIContext*> g_Context;

// Counts the factory call; the first one initialises logging, the adapter and
// through it the framework.
void VexInitialize();

// Counts a terminating cleanup down; the one that reaches zero destroys the
// adapter and the module mutex.
void CommonCleanup(void* mi, const CMPIContext* ctx, CMPIStatus& status);

}  // namespace vex::cim::adap::cmpi

#endif

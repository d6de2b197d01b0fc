// The provider's components linked into the test: the facade is started once
// per process on the demo system, and the provider's log and trace lines are
// captured (TkzLogMsg and TkzTrace are wrapped at link time).
#ifndef VEX_TESTS_DATAPATH_INPROCESSFIXTURE_H
#define VEX_TESTS_DATAPATH_INPROCESSFIXTURE_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SimulatedSystem.h"
#include "framework/CIMInstance.h"
#include "framework/FrameworkFacade.h"

namespace vex::datapath {

// The started facade and the system it serves.
cim::fwf::FrameworkFacade& facade();
SimulatedSystem& demoSystem();

// Every instance of a class through the facade.
std::vector<cim::fwf::CIMInstance> enumerateThroughFacade(const std::string& className);

// One cache-update cycle as the refresh thread runs it: register as the
// update thread, rebuild (partial or not), unregister. Cycles are serialised,
// as the one refresh thread serialises them. Answers initialize's status.
unsigned int refreshCycle(bool partial = false);

// How many captured log lines (traces included) have exactly this text.
int loggedCount(const std::string& text);

}  // namespace vex::datapath

#endif

// Shared set-up of the plug-in framework tests: one started facade for the
// whole test program, paths and log look-ups.
#ifndef VEX_TESTS_FRAMEWORK_PLUGINTESTSUPPORT_H
#define VEX_TESTS_FRAMEWORK_PLUGINTESTSUPPORT_H

#include <string>

#include "framework/CIMNamespaces.h"
#include "framework/CIMObjectPath.h"
#include "framework/FrameworkFacade.h"

namespace vex::cim::fwf::test {

// The facade after the program's one start (no controller: selective).
FrameworkFacade& startedFacade();

// A class path (no keys) in a namespace, with the host the tests use.
CIMObjectPath classPath(const std::string& nameSpace, const std::string& className);

// True when a line with exactly this text was captured, at this level when
// level is not 0.
bool wasLogged(const std::string& text, int level = 0);

}  // namespace vex::cim::fwf::test

#endif

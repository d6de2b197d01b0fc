// Exact renderings of instances as a reader receives them, for comparison:
// address, the property list and the key list in order, and of every
// property its name, type, both flags and every value slot with its
// elements and flags (reals bit for bit, references with their host).
#ifndef VEX_TESTS_CONTROLLER_CACHEEXACTEQUALITY_H
#define VEX_TESTS_CONTROLLER_CACHEEXACTEQUALITY_H

#include <string>
#include <vector>

#include "framework/CIMInstance.h"

namespace vex::cim::fwf::test {

std::string exactly(const CIMInstance& instance);
std::string exactly(const std::vector<CIMInstance>& list);

// A view of an instance as the cache defines it, built here independently:
// the properties whose names begin with prefix, renamed without it, view
// keys (only those with keysOnly) as keys; false when none has the prefix.
bool referenceView(const CIMInstance& stored, const std::string& prefix, bool keysOnly,
                   CIMInstance& view);

}  // namespace vex::cim::fwf::test

#endif

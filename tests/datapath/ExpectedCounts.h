// The number of instances each cached class must have for a system, counted
// from the controllers' own snapshot (the test's library handle), not from
// anything the provider computed.
#ifndef VEX_TESTS_DATAPATH_EXPECTEDCOUNTS_H
#define VEX_TESTS_DATAPATH_EXPECTEDCOUNTS_H

#include <cstddef>
#include <map>
#include <string>

#include <storlib/SystemConfig.h>

namespace vex::datapath {

// Keyed by CIM class name; every class of the cached family is present.
std::map<std::string, std::size_t> expectedInstanceCounts(const storlib::SystemConfig& system);

}  // namespace vex::datapath

#endif

// The three ways the cache decides that a stored instance is the one asked
// for. Each looks a name up as CIMInstance::getPropertyByName does: the
// first property of exactly that name.
#ifndef VEX_CONTROLLER_CACHEKEYMATCH_H
#define VEX_CONTROLLER_CACHEKEYMATCH_H

#include <string>
#include <vector>

#include "controller/CachedInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::cache {

// Instance identity: every key-flagged property of probe is present in
// stored and equal to it. A probe without key properties matches anything.
bool sameIdentity(const CachedInstance& probe, const CachedInstance& stored);

// Every property of keys (flags ignored) is present in stored and equal.
// Empty keys match every instance.
bool matchesKeys(const std::vector<CIMProperty>& keys, const CachedInstance& stored);

// keys[i] is found in stored under storedNames[i] (the view prefix followed
// by the key's name) and holds the same typed value, names aside.
bool matchesViewKeys(const std::vector<CIMProperty>& keys,
                     const std::vector<std::string>& storedNames, const CachedInstance& stored);

}  // namespace vex::cim::fwf::cache

#endif

// The CIM keys of every class served from the object cache.
//
// A class with a prefix reads the properties stored under that prefix in the
// cache entries of its object type; its keys are the prefixed properties
// that carry the view-key flag. A class without a prefix is the cache entry
// itself; its keys are the properties that carry the key flag, and they are
// also what makes two cache entries of a type the same entry. The property
// mapping sets the flags so that the names enumeration of each class yields
// exactly the keys listed here, and the class definitions declare the same
// keys.
#ifndef VEX_CONTROLLER_CACHEDCLASSKEYS_H
#define VEX_CONTROLLER_CACHEDCLASSKEYS_H

#include <cstddef>

#include "framework/VexObjectType.h"

namespace vex::cim::fwf {

struct CachedClassKeys {
    const char* className;
    _eVEXObjectType type;
    const char* prefix;   // "" for the entry itself
    const char* keys[4];  // CIM key names as the class shows them (no prefix); unused slots null
    bool servedFamily;    // one of the cached class plug-ins (else a view read by another plug-in)
};

extern const CachedClassKeys kCachedClassKeys[];
extern const std::size_t kCachedClassKeyCount;

}  // namespace vex::cim::fwf

#endif

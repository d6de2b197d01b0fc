// The instances a read builds instead of handing out a stored instance
// whole: the part of a view class, and the keys of a base class.
//
// A property that is a key of the built instance goes in through
// addCimKeyBinding, so the built instance's getPath names it: the names
// enumeration sets the request's address on each instance and returns its
// path.
#ifndef VEX_CONTROLLER_VIEWPROJECTION_H
#define VEX_CONTROLLER_VIEWPROJECTION_H

#include <string>

#include "controller/CachedInstance.h"
#include "framework/CIMInstance.h"

namespace vex::cim::fwf::cache {

// The properties of stored whose names begin with prefix (a prefix test
// only: "C" also takes "CS..." and "CD..."), each renamed to the rest of its
// name; with viewKeysOnly just those with the view-key flag, which are the
// keys of the view. False when stored has no property with the prefix at
// all (built is then left empty).
bool buildViewInstance(const CachedInstance& stored, const std::string& prefix, bool viewKeysOnly,
                       CIMInstance& built);

// The key-flagged properties of stored, as keys of a new instance.
CIMInstance buildKeysInstance(const CachedInstance& stored);

}  // namespace vex::cim::fwf::cache

#endif

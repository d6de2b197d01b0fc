// AssociationRow: one member of an association family, as data. A row names
// the association class, its two end classes and role names, and how two end
// instances are linked: each end has a join key - the values of some of its
// properties, or keys computed from the instance - and a first-end instance is
// linked to a second-end instance when one key of each is equal (and the
// row's further condition, when it has one, holds). An end without key
// properties and without a key function has the one empty key: every pair of
// such ends is compared by the further condition alone.
//
// Keys make the family fast: a request indexes one end by its keys and probes
// with the other (TableAssociation.h), instead of comparing every pair.
#ifndef VEX_FRAMEWORK_ASSOCIATIONROW_H
#define VEX_FRAMEWORK_ASSOCIATIONROW_H

#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

// Appends the join keys of one end instance. An instance without keys is
// linked to nothing.
using JoinKeysFn = void (*)(const CIMInstance& end, std::vector<std::string>& keys);

// A further condition on a pair whose keys agree; may append the extra
// properties of the association instance.
using LinkFn = bool (*)(const CIMInstance& first, const CIMInstance& second,
                        std::vector<CIMProperty>& extra);

struct EndKey {
    // Comma list of property names whose values, together, are the one key of
    // an instance; an instance lacking one of them has no key.
    const char* properties = nullptr;
    // Computed keys, used instead of `properties` when set.
    JoinKeysFn compute = nullptr;
};

struct AssociationRow {
    const char* className;   // the association class, in its proper spelling
    const char* first;       // first end class (or a ',' list of them)
    const char* second;      // second end class (or list)
    const char* firstRole;   // reference property naming the first end
    const char* secondRole;  // reference property naming the second end
    EndKey firstKey;
    EndKey secondKey;
    LinkFn link = nullptr;   // null: equal keys link
};

// The join keys of an end instance under `key`. Plain property keys are the
// values' texts joined by an unprintable separator.
void joinKeysOf(const EndKey& key, const CIMInstance& instance, std::vector<std::string>& out);

// The text of a property's value, as compared by join keys ("" when absent).
std::string keyText(const CIMInstance& instance, const std::string& propertyName);

}  // namespace vex::cim::fwf

#endif

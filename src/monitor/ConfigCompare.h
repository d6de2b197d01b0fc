// Applies the comparison rules to two snapshots of one controller.
#ifndef VEX_MONITOR_CONFIGCOMPARE_H
#define VEX_MONITOR_CONFIGCOMPARE_H

#include <functional>
#include <initializer_list>
#include <string>

#include "monitor/ConfigSnapshot.h"

namespace vex::monitor {

struct Finding {
    const char* key;
    const SnapshotObject* object;  // the object as it is now (as it was, when gone)
    std::string newValue;
    std::string oldValue;
    std::string detail;
};

using FindingSink = std::function<void(const Finding&)>;

// Every rule of the given elements between the controller as it was (`old`)
// and as it is; objects are paired by identity.
void compareObjects(const AdapterSnapshot& old, const AdapterSnapshot& now,
                    std::initializer_list<const char*> elements, const FindingSink& sink);

// The conditions worth reporting about objects seen for the first time (a
// controller the monitor did not know): the rules marked onCheck.
void checkObjects(const AdapterSnapshot& now, std::initializer_list<const char*> elements,
                  const FindingSink& sink);

// True when every condition of "a=v,b=!w" holds for the object; a name
// "old.a" reads the object as it was (never true without one).
bool conditionsHold(const SnapshotObject& object, const char* conditions, const SnapshotObject* old = nullptr);

}  // namespace vex::monitor

#endif

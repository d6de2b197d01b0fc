// The per-object comparison rules of the RAID event monitor, as data: which
// change of which object raises which event key.
#ifndef VEX_MONITOR_COMPARERULES_H
#define VEX_MONITOR_COMPARERULES_H

#include <cstddef>

namespace vex::monitor {

enum class Trigger {
    Appeared,     // the object is new
    Disappeared,  // the object is gone
    Became,       // attribute changed and now matches value
    Changed,      // attribute changed, to anything
    Stepped       // a percentage attribute entered another tenth (below 100)
};

struct CompareRule {
    const char* element;    // snapshot element ("HardDrive", ...)
    Trigger trigger;
    const char* attribute;  // Became, Changed, Stepped
    const char* value;      // Became: the new value; "!v" means anything but v
    const char* when;       // conditions on the object: "a=v,b=!w", "old.a=v" on the object as it was; "" for none
    const char* key;        // the event raised
    const char* detail;     // attribute shown as {4}; "" for none
    bool onCheck;           // also raised for an object seen for the first time with this value
};

const CompareRule* compareRules(std::size_t& count);

}  // namespace vex::monitor

#endif

// The monitor's event vocabulary: every event key with its number, severity
// class, object class and the catalogue entry that words it.
//
// Catalogue texts take up to five arguments: {0} the object (drive "0:3
// (slot 3)", logical drive "1 (Data)", "fan 0 of enclosure 0", ...), {1} the
// controller number, {2} the new and {3} the old value of what changed, {4}
// a detail named by the rule (a temperature, a task name).
#ifndef VEX_MONITOR_EVENTVOCABULARY_H
#define VEX_MONITOR_EVENTVOCABULARY_H

#include <cstddef>
#include <string>

namespace vex::monitor {

struct EventKind {
    const char* key;        // EVENT_STRATAVOL_...
    int code;               // numeric event id
    int type;               // 1 error, 2 warning, 3 to 7 informational, 5 configuration change
    int objectClass;        // NRMObjectClass
    const char* message;    // catalogue key of the text
};

// The whole vocabulary, and one kind by key (null when unknown).
const EventKind* eventKinds(std::size_t& count);
const EventKind* findEventKind(const std::string& key);

// Keys with fixed meanings used by the cycle itself.
constexpr const char* kKeyNoControllers = "EVENT_STRATAVOL_STATE_NOTFOUND";
constexpr const char* kKeyControllerRemoved = "EVENT_STRATAVOL_STATE_FAILED";
constexpr const char* kKeyConfigChanged = "EVENT_STRATAVOL_CONFIG_CHANGED";

}  // namespace vex::monitor

#endif

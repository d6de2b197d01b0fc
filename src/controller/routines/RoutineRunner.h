// The shape every table routine shares. A row names the routine, the kind
// of target it decodes, up to three input values (each with the line logged
// when it is missing) and the action that calls the controller wrapper:
//   1. "<routine> Enter";
//   2. the target: "DDDeviceID" (logged " <routine> for PD - c_ch_d"),
//      "SPInstanceID" (" <routine> for LD - c_l") or the controller
//      ("<routine> for CtrlrID - c"); a missing or malformed target logs
//      "<routine> exits with without calling FSA Func" and answers 4;
//   3. the values, in order; a missing one logs its own line ("No valid data
//      for Task Priority") and answers 4, a value out of range likewise;
//   4. the action; on 0 "Returning success form <routine>" (or the row's own
//      success line), otherwise the row's failure line, if any.
// Nothing reaches the controller unless target and values are all valid.
#ifndef VEX_CONTROLLER_ROUTINES_ROUTINERUNNER_H
#define VEX_CONTROLLER_ROUTINES_ROUTINERUNNER_H

#include <string>

#include <storlib/Ret.h>

#include "controller/routines/RoutineInput.h"

namespace vex::cim::fwf::routine {

enum class TargetKind { None, Controller, Drive, LogicalDrive };
enum class ValueKind { Absent, Number, Flag, Text };

struct ValueSpec {
    const char* name = nullptr;       // input argument name
    ValueKind kind = ValueKind::Absent;
    const char* missing = nullptr;    // logged when absent; null: optional
    unsigned long long max = ~0ull;   // largest accepted number
    unsigned long long fallback = 0;  // value of an absent optional number/flag
    unsigned long long min = 0;       // smallest accepted number
};

struct Target {
    int controller = 0;
    _pdiskIdf drive;
    _vdiskIdf logicalDrive;
};

struct Values {
    unsigned long long number[3] = {0, 0, 0};
    std::string text[3];
    bool flag(int i) const { return number[i] != 0; }
};

using RoutineAction = unsigned int (*)(const Target& target, const Values& values, storlib::Ret& ret,
                                       CIMMethodParam& out);

struct RoutineSpec {
    const char* name;
    TargetKind target;
    ValueSpec values[3];
    RoutineAction action;
    const char* success = nullptr;  // null: "Returning success form <name>"
    const char* failure = nullptr;  // null: no line of its own
};

unsigned int runRoutine(const RoutineSpec& spec, const CIMObjectPath& path, const CIMMethodParam& in,
                        CIMMethodParam& out);

// Helpers for the value rows.
constexpr ValueSpec needNumber(const char* name, const char* missing, unsigned long long max = ~0ull,
                               unsigned long long min = 0) {
    return {name, ValueKind::Number, missing, max, 0, min};
}
constexpr ValueSpec maybeNumber(const char* name, unsigned long long fallback, unsigned long long max = ~0ull,
                                unsigned long long min = 0) {
    return {name, ValueKind::Number, nullptr, max, fallback, min};
}
constexpr ValueSpec needFlag(const char* name, const char* missing) { return {name, ValueKind::Flag, missing, 1, 0, 0}; }
constexpr ValueSpec maybeFlag(const char* name, bool fallback) {
    return {name, ValueKind::Flag, nullptr, 1, fallback ? 1ull : 0ull, 0};
}
constexpr ValueSpec needText(const char* name, const char* missing) { return {name, ValueKind::Text, missing, 0, 0, 0}; }

// Decodes a target of the given kind; false (and logs nothing) when absent or malformed.
bool decodeTarget(TargetKind kind, const CIMObjectPath& path, const CIMMethodParam& in, Target& target);

}  // namespace vex::cim::fwf::routine

// Defines a routine function as its table row run through runRoutine.
#define VEX_TABLE_ROUTINE(function, spec)                                                          \
    unsigned int function(const CIMObjectPath& p, const CIMMethodParam& in, CIMMethodParam& out) { \
        return ::vex::cim::fwf::routine::runRoutine(spec, p, in, out);                             \
    }

#endif

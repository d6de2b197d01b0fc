// What every routine reads before it acts: its target (a controller, a
// physical drive or a logical drive), taken from the key bindings of the
// target path or else from the input arguments, and its input values.
//
// Identifiers are decoded strictly: each field is a plain decimal number
// (no sign, no blanks, at most nine digits), so "1_a_3", "-1_0_2",
// "99999999999_0_0" and "0_1" (a field missing) are all refused.
#ifndef VEX_CONTROLLER_ROUTINES_ROUTINEINPUT_H
#define VEX_CONTROLLER_ROUTINES_ROUTINEINPUT_H

#include <optional>
#include <string>
#include <vector>

#include "controller/FsaifReturn.h"
#include "framework/CIMMethodParam.h"
#include "framework/CIMObjectPath.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

struct _pdiskIdf {
    int controller = 0;
    int channel = 0;
    int device = 0;
};

struct _vdiskIdf {
    int controller = 0;
    int logicalDrive = 0;
};

namespace routine {

// A non-negative decimal field of an identifier; empty when malformed.
std::optional<int> decimalField(const std::string& text);

// "%d_%d_%d" and "%d_%d" identifiers, strictly.
std::optional<_pdiskIdf> parseDrive(const std::string& text);
std::optional<_vdiskIdf> parseLogicalDrive(const std::string& text);
// A controller system name "vexController_%d", or a bare controller number.
std::optional<int> parseController(const std::string& text);

// The string value named `name`: a key binding of the path first, then an
// input argument. Empty when neither holds a non-empty string.
std::optional<std::string> targetText(const CIMObjectPath& path, const CIMMethodParam& in, const char* name);

// The controller a routine acts on: "CSName", else the hosting system's
// "SystemName", else "Name" when it is a controller system name.
std::optional<int> targetController(const CIMObjectPath& path, const CIMMethodParam& in);

// Input values. Each answers empty when the argument is missing, empty or
// of a type that does not carry the value; a list, also when it has more
// than 1024 elements.
std::optional<unsigned long long> number(const CIMMethodParam& in, const char* name);
std::optional<bool> flag(const CIMMethodParam& in, const char* name);
std::optional<std::string> text(const CIMMethodParam& in, const char* name);
std::optional<std::vector<std::string>> texts(const CIMMethodParam& in, const char* name);
// Object references (scalar or array) of an argument; empty when absent,
// null when the argument is there but is no reference.
const CIMProperty* argument(const CIMMethodParam& in, const char* name);
std::vector<CIMObjectPath> references(const CIMProperty& argument);

// The value of a key binding of a path, as text; empty when absent.
std::optional<std::string> keyText(const CIMObjectPath& path, const char* name);

// Output arguments.
void putNumber(CIMMethodParam& out, const char* name, unsigned int value);
void putFlag(CIMMethodParam& out, const char* name, bool value);
void putText(CIMMethodParam& out, const char* name, const std::string& value);
void putReference(CIMMethodParam& out, const char* name, const CIMObjectPath& value);

}  // namespace routine
}  // namespace vex::cim::fwf

#endif

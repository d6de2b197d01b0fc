// Checks on the file names and paths that clients pass to the file transfer,
// firmware and configuration routines.
#ifndef VEX_CONTROLLER_ROUTINES_SAFEPATH_H
#define VEX_CONTROLLER_ROUTINES_SAFEPATH_H

#include <string>

namespace vex::cim::fwf::routine {

// A plain file name inside a directory: not empty, at most 255 bytes, no
// '/', no NUL, no control character, not "." or "..".
bool isPlainFileName(const std::string& name);

// An absolute path of an existing regular file: starts with '/', at most
// 4095 bytes, no NUL, no "." or ".." component.
bool isReadableAbsoluteFile(const std::string& path);

}  // namespace vex::cim::fwf::routine

#endif

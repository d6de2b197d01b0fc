// Instances, paths and values as MOF-like text:
//
//   // root/tkz/vex/smi_15:VEX_Battery.CreationClassName="VEX_Battery",...
//   instance of VEX_Battery {
//       DeviceID = "0_B";
//       OperationalStatus = {2};
//   };
#ifndef VEXRAID_MOFTEXT_H
#define VEXRAID_MOFTEXT_H

#include <cmpihost/Instance.h>
#include <cmpihost/Value.h>

#include <string>

namespace vexraid {

// A value as MOF writes it: quoted and escaped text, {a, b} arrays, NULL.
std::string mofValue(const cmpihost::Value& value, int indent = 0);

// The instance block, preceded by a comment line with its path unless
// withPath is false (embedded instances).
std::string mofInstance(const cmpihost::Instance& instance, int indent = 0, bool withPath = true);

// Text in double quotes with ", \ and control characters escaped.
std::string quotedText(const std::string& text);

}  // namespace vexraid

#endif

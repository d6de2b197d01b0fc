// Addresses on the command line: "C" (controller), "C:CH:DEV" (drive or
// enclosure), "C:Lid" (logical drive), "C:Tid" (task).
#pragma once
#include <storlib/Addr.h>

#include <optional>
#include <string>

namespace storvexsim {

std::optional<storlib::Addr> parseDeviceAddr(const std::string& text);
std::optional<storlib::Addr> parseTaskAddr(const std::string& text);

}  // namespace storvexsim

// System descriptions (what the controllers hold at power-on) and state
// files (what they hold now). Both are JSON in the same layout; a state
// file carries "format": "storvex-state" and every derived value.
#pragma once
#include "sim/Model.h"

#include <stdexcept>
#include <string>

namespace storlib::sim {

// A description or state refused as a whole; what() names the file and the field.
class DescriptionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

Model loadDescription(const std::string& text, const std::string& origin, double wallNow);
Model loadState(const std::string& text, const std::string& origin);
std::string dumpState(const Model& m);

// Defaults and consistency checks of a freshly read description (Finalize.cpp).
void finalizeDescription(Model& m, const struct DescriptionExtras& extras);

}  // namespace storlib::sim

// Printing the simulated system and its events.
#pragma once
#include <storlib/StorLib.h>

#include <ostream>

namespace storvexsim {

void showSystem(const storlib::SystemConfig& config, std::ostream& out, int onlyController);
void showEvents(const storlib::StorEventCollection& events, std::ostream& out);

}  // namespace storvexsim

// The controller clock: wall time scaled, or moved only on request.
#pragma once
#include "sim/Model.h"

namespace storlib::sim {

double wallNow();
double clockAt(const ClockRec& clock, double wall);
// Re-bases the clock at `wall` so that its scale can change without a jump.
void reanchor(ClockRec& clock, double wall);

}  // namespace storlib::sim

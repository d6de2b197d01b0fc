// Logical drive health, hot-spare take-over and the follow-up of every change.
#pragma once
#include "sim/Model.h"

namespace storlib::sim {

// Optimal, Degraded or Failed, from the states of the member chunks.
LogicalDriveState evaluateHealth(const LdRec& ld);

// Brings the controller to a consistent state after any change: member
// chunk states follow their drives, logical drive states follow their
// members and tasks (with events), degraded logical drives take a spare,
// drives become online/ready as they gain/lose chunks, the alarm follows
// the faults. Safe to call at any time.
void reconcile(Model& m, ControllerRec& c);

}  // namespace storlib::sim

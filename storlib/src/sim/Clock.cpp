#include "sim/Clock.h"

#include <time.h>

namespace storlib::sim {

double wallNow() {
    timespec ts{};
    clock_gettime(CLOCK_REALTIME, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) / 1e9;
}

double clockAt(const ClockRec& clock, double wall) {
    double elapsed = wall - clock.wallAnchor;
    if (elapsed < 0) elapsed = 0;  // the wall clock was set back: the controller clock stands
    return clock.simAnchor + elapsed * clock.scale;
}

void reanchor(ClockRec& clock, double wall) {
    clock.simAnchor = clockAt(clock, wall);
    clock.wallAnchor = wall;
}

}  // namespace storlib::sim

/* Sleeping: whole seconds, or milliseconds with select() as the timer. */
#include <sys/select.h>
#include <unistd.h>

#include "platform/Tkz.h"

extern "C" void TkzSleep(unsigned int seconds) { sleep(seconds); }

extern "C" void TkzMilliSleep(unsigned int milliseconds) {
    timeval timeout{};
    timeout.tv_sec = static_cast<time_t>(milliseconds / 1000);
    timeout.tv_usec = static_cast<suseconds_t>((milliseconds % 1000) * 1000);
    select(0, nullptr, nullptr, nullptr, &timeout);
}

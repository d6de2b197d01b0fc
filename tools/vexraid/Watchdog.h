// Ends the process when a monitoring command takes too long: a check that
// hangs is worse than one that says it does not know.
#ifndef VEXRAID_WATCHDOG_H
#define VEXRAID_WATCHDOG_H

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace vexraid {

class Watchdog {
public:
    // After seconds (unless destroyed first) writes text to standard output
    // and ends the process at once with exitCode. seconds <= 0: never.
    Watchdog(double seconds, std::string text, int exitCode);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    std::mutex m_mutex;
    std::condition_variable m_done;
    bool m_stopped = false;
    std::thread m_thread;
};

}  // namespace vexraid

#endif

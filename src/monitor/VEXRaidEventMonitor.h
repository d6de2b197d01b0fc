// VEXRaidEventMonitor: the process-wide RAID event monitor. start opens its
// own StorLib handle, makes an FsaRaidMonitor over it and runs the monitor on
// a thread of its own; stop ends the thread and deletes both.
#ifndef VEX_MONITOR_VEXRAIDEVENTMONITOR_H
#define VEX_MONITOR_VEXRAIDEVENTMONITOR_H

#include <atomic>
#include <memory>
#include <mutex>

#include "monitor/FsaRaidMonitor.h"
#include "platform/Tkz.h"

namespace storlib {
class StorLib;
}

namespace vex::monitor {

class VEXRaidEventMonitor {
public:
    // The singleton, made on first call under the instance mutex; null when
    // the mutex cannot be taken.
    static VEXRaidEventMonitor* getInstance();

    // True while the monitor thread should run; the event listener reads it.
    static std::atomic<bool> continueThread;

    // Makes the monitor and starts its thread; false when the thread
    // cannot be started (the monitor is then deleted again).
    bool start();
    // Ends the monitor's cycle, waits for its thread and deletes the monitor
    // and the library object. Returns within one poll interval plus one poll.
    void stop();

    // The current monitor, kept alive for as long as the caller holds it;
    // null when none runs.
    std::shared_ptr<FsaRaidMonitor> getMonitor() const;
    bool isRunning() const { return m_running.load(); }

private:
    VEXRaidEventMonitor() = default;
    void createMonitor();
    static void* fsaThreadFuntion(void*);

    mutable std::mutex m_mutex;  // guards the members below and start/stop
    std::shared_ptr<storlib::StorLib> m_library;
    std::shared_ptr<FsaRaidMonitor> m_monitor;
    std::atomic<bool> m_running{false};
    TKZ_THREAD m_thread = nullptr;
};

}  // namespace vex::monitor

#endif

// FsaRaidMonitor: the RAID event monitor over StorLib. Its thread polls the
// controllers every cycle, reads their own event queues, re-reads the
// configuration when those events (or the clock) call for it, compares the
// new snapshot with the previous one controller by controller, and queues
// what it finds as NRMEvent records for the event listener.
#ifndef VEX_MONITOR_FSARAIDMONITOR_H
#define VEX_MONITOR_FSARAIDMONITOR_H

#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <utility>

#include <storlib/StorEvent.h>

#include "monitor/BaseRaidMonitor.h"
#include "monitor/ConfigCompare.h"
#include "monitor/ConfigSnapshot.h"

namespace storlib {
class StorLib;
}

namespace vex::monitor {

class FsaRaidMonitor : public BaseRaidMonitor {
public:
    // Seconds between forced re-reads of the configuration, between
    // controller counts, and between SAS drive map reports.
    static constexpr long kRefreshInterval = 600;
    static constexpr long kCountInterval = 20;
    static constexpr long kDriveMapInterval = 86400;

    // library: the monitor's own library handle, owned by the caller; null
    // makes every poll a no-op.
    explicit FsaRaidMonitor(storlib::StorLib* library);

    int poll(int mode, NRMEventCollection& queue) override;
    void run() override;
    void stop() override;
    void start() override;

private:
    using ControllerEvents = std::map<std::uint32_t, storlib::StorEventCollection>;

    int checkConfig();
    int compareConfig();
    bool refreshConfig();
    void fetchEvents(const ConfigSnapshot& config, ControllerEvents& out);
    bool configNeedsRefresh(const ControllerEvents& events) const;
    void PassThroughEvents(const ControllerEvents& events);
    void compareConfigs(const ConfigSnapshot& old, const ConfigSnapshot& now, int removedType);
    void dumpConfig();
    void logSASDriveMap(const AdapterSnapshot& adapter);

    // The per-object comparisons of one controller.
    void compareAdapter(const AdapterSnapshot& old, const AdapterSnapshot& now);
    void checkAdapter(const AdapterSnapshot& now);
    void comparePhysicalDrives(const AdapterSnapshot& old, const AdapterSnapshot& now);
    void checkPhysicalDrives(const AdapterSnapshot& now);
    void compareLogicalDrives(const AdapterSnapshot& old, const AdapterSnapshot& now);
    void checkLogicalDrives(const AdapterSnapshot& now);
    void compareProgress(const AdapterSnapshot& old, const AdapterSnapshot& now);
    void checkProgress(const AdapterSnapshot& now, int mode);
    void compareSafte(const AdapterSnapshot& old, const AdapterSnapshot& now);
    void compareProgress(std::uint32_t adapter, const storlib::StorEventCollection& events);
    void checkTranslateEvents(std::uint32_t adapter, const storlib::StorEventCollection& events);

    FindingSink sinkFor(const AdapterSnapshot& adapter);
    void report(const Finding& finding, const AdapterSnapshot& adapter);
    void controllerRemoved(const AdapterSnapshot& adapter, int type);
    // The running-tasks table: whether a task finding is new (a start not
    // yet told, progress into a tenth not yet told); updates the table.
    bool newTaskNews(const std::string& key, std::uint32_t adapter, std::uint32_t task, long percent);
    void initRunningTasksTable() { m_runningTasks.clear(); }
    long secondsSinceStart() const;

    storlib::StorLib* m_library;
    std::atomic<bool> m_stopRequested{false};
    std::mutex m_sleepMutex;
    std::condition_variable m_wake;

    ConfigSnapshot m_old;
    ConfigSnapshot m_new;
    bool m_refreshed = false;         // a COMPARE_CONFIG refresh has run
    long m_lastRefresh = 0;           // seconds after start
    bool m_driveMapReported = false;
    long m_lastDriveMap = 0;
    std::time_t m_lastCount = 0;
    std::string m_writtenXml;         // what the snapshot file holds
    bool m_objectsChanged = false;    // this comparison saw objects come or go

    struct RunningTask {
        bool started = false;
        long tenth = -1;
    };
    std::map<std::pair<std::uint32_t, std::uint32_t>, RunningTask> m_runningTasks;
};

}  // namespace vex::monitor

#endif

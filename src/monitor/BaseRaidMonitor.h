// BaseRaidMonitor: what every RAID event monitor has, whatever library it
// watches: the event queue the listener drains, the settings re-read every
// cycle, the message catalogue, and the last configuration snapshot.
#ifndef VEX_MONITOR_BASERAIDMONITOR_H
#define VEX_MONITOR_BASERAIDMONITOR_H

#include <atomic>
#include <ctime>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "monitor/NLSParser.h"
#include "monitor/NRMEvent.h"
#include "monitor/NRMEventCollection.h"

namespace vex::monitor {

// Poll modes.
enum : int {
    CHECK_CONFIG = 0,   // once at start, against the stored snapshot
    COMPARE_CONFIG = 1  // every cycle
};

// The settings file's values, each back at its default before it is read.
struct MonitorSettings {
    std::size_t eventQueueSize = 0;    // "nrm.eventQueueSize"
    unsigned int debugMask = 0;        // "nrm.debugMask"
    int osLoggingLevel = 3;            // "agent.OSLoggingLevel"
    bool alarm = false;                // "agent.alarm": "on", "On", "ON"
    unsigned int pollInterval = 5;     // "nrm.pollInterval": seconds, at least 1
    bool lifecycleIndications = false; // "agent.lifecycleIndications": "on", "On", "ON"
};

// Reads the settings from a settings file (created empty when missing).
MonitorSettings readSettings(const std::string& path);

class BaseRaidMonitor {
public:
    // Files: the snapshot, debug log and events log names, in the monitor's
    // directory.
    BaseRaidMonitor(std::string configXml = "NRMConfig.xml", std::string debugLog = "NRMDebug.log",
                    std::string eventsLog = "NRMEvents.log");
    virtual ~BaseRaidMonitor() = default;
    BaseRaidMonitor(const BaseRaidMonitor&) = delete;
    BaseRaidMonitor& operator=(const BaseRaidMonitor&) = delete;

    virtual int poll(int mode, NRMEventCollection& queue) = 0;
    virtual void run() = 0;
    virtual void stop() = 0;
    virtual void start() = 0;

    bool isStopped() const { return m_stopped.load(); }

    // For the event listener: the queued events, and removing them.
    int getNumberOfEvents();
    // Copies and removes up to count of the oldest events into events; the
    // number copied.
    int getEvents(NRMEvent* events, int count);

    // Re-reads the settings file and applies it.
    void readConfig();
    MonitorSettings settings() const;

    // The text of the last configuration snapshot ("" before the first).
    std::string getXmlConfig() const;
    // SMART figures of the drives as of the last snapshot.
    std::string getSmartStats() const;

    // Where system-log lines go (syslog by default); for tests.
    using SystemLogSink = void (*)(int priority, const std::string& text);
    static void setSystemLogSink(SystemLogSink sink);

protected:
    // Words, queues and system-logs one event of the vocabulary. args fill
    // the catalogue text; type, when not 0, replaces the key's own. False
    // for a key outside the vocabulary.
    bool raise(const std::string& key, const storlib::Addr& address, const std::vector<std::string>& args,
               const std::string& adapterSerial, int type = 0);
    void setSnapshotTexts(std::string xml, std::string smartStats);
    std::string filePath(const std::string& name) const;
    const std::string& configXmlName() const { return m_configXml; }

    std::atomic<bool> m_running{false};
    std::atomic<bool> m_stopped{false};
    std::atomic<std::time_t> m_startTime{0};
    NRMEventCollection m_queue;
    std::unique_ptr<NLSParser> m_catalogue;

private:
    std::string m_configXml;
    std::string m_directory;
    mutable std::mutex m_mutex;  // guards the settings and the snapshot texts
    MonitorSettings m_settings;
    std::string m_xmlBuffer;
    std::string m_smartStats;
};

}  // namespace vex::monitor

#endif

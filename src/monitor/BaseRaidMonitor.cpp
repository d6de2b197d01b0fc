#include "monitor/BaseRaidMonitor.h"

#include <syslog.h>

#include <cstdlib>

#include "monitor/EventVocabulary.h"
#include "monitor/MonitorFiles.h"
#include "platform/Tkz.h"

namespace vex::monitor {

namespace {

constexpr std::size_t kInitialQueueSize = 500;
constexpr int kQueueTypeLevel = 5;

void toSyslog(int priority, const std::string& text) { syslog(priority | LOG_DAEMON, "%s", text.c_str()); }

std::atomic<BaseRaidMonitor::SystemLogSink> g_systemLog{&toSyslog};

bool isOn(const std::string& value) { return value == "on" || value == "On" || value == "ON"; }

long decimal(const std::string& value, long fallback) {
    if (value.empty()) {
        return fallback;
    }
    char* end = nullptr;
    const long parsed = std::strtol(value.c_str(), &end, 10);
    return end == value.c_str() ? fallback : parsed;
}

int syslogPriority(int type) {
    if (type == NRM_EVENT_ERROR) {
        return LOG_ERR;
    }
    return type == NRM_EVENT_WARNING ? LOG_WARNING : LOG_INFO;
}

}  // namespace

MonitorSettings readSettings(const std::string& path) {
    MonitorSettings s;
    NLSParser parser(path);
    if (!parser.isOpen()) {
        nrmDebug(NRM_DEBUG_ERROR, "ERROR: BaseRaidMonitor::readConfig() Cannot create NLSParser.\n");
        return s;
    }
    const long queueSize = decimal(parser.get("nrm.eventQueueSize"), 0);
    s.eventQueueSize = queueSize > 0 ? static_cast<std::size_t>(queueSize) : 0;
    s.debugMask = static_cast<unsigned int>(decimal(parser.get("nrm.debugMask"), 0));
    s.osLoggingLevel = static_cast<int>(decimal(parser.get("agent.OSLoggingLevel"), 3));
    s.alarm = isOn(parser.get("agent.alarm"));
    const long interval = decimal(parser.get("nrm.pollInterval"), 5);
    s.pollInterval = interval < 1 ? 1U : interval > 3600 ? 3600U : static_cast<unsigned int>(interval);
    s.lifecycleIndications = isOn(parser.get("agent.lifecycleIndications"));
    return s;
}

BaseRaidMonitor::BaseRaidMonitor(std::string configXml, std::string debugLog, std::string eventsLog)
    : m_queue(monitorDirectory() + eventsLog, kInitialQueueSize, kQueueTypeLevel),
      m_configXml(std::move(configXml)), m_directory(monitorDirectory()) {
    setDebugLogPath(m_directory + debugLog);
    m_catalogue = std::make_unique<NLSParser>(catalogueFile());
}

std::string BaseRaidMonitor::filePath(const std::string& name) const { return m_directory + name; }

void BaseRaidMonitor::readConfig() {
    const std::string path = filePath("NRMConfig.conf");
    if (!TkzFileExists(path.c_str(), nullptr)) {
        nrmDebug(NRM_DEBUG_ERROR,
                 "ERROR: BaseRaidMonitor::readConfig() Config File (%s) not found. Creating an empty file.\n",
                 path.c_str());
    }
    const MonitorSettings read = readSettings(path);
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_settings = read;
    }
    m_queue.setMaxSize(read.eventQueueSize);
    NRMDebugFlag = read.debugMask;
}

MonitorSettings BaseRaidMonitor::settings() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings;
}

int BaseRaidMonitor::getNumberOfEvents() { return static_cast<int>(m_queue.getNumberOfEvents()); }

int BaseRaidMonitor::getEvents(NRMEvent* events, int count) {
    if (events == nullptr || count <= 0) {
        return 0;
    }
    std::vector<NRMEvent> taken = m_queue.getEvents(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < taken.size(); ++i) {
        events[i] = std::move(taken[i]);
    }
    return static_cast<int>(taken.size());
}

std::string BaseRaidMonitor::getXmlConfig() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_xmlBuffer;
}

std::string BaseRaidMonitor::getSmartStats() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_smartStats;
}

void BaseRaidMonitor::setSnapshotTexts(std::string xml, std::string smartStats) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_xmlBuffer = std::move(xml);
    m_smartStats = std::move(smartStats);
}

void BaseRaidMonitor::setSystemLogSink(SystemLogSink sink) { g_systemLog = sink != nullptr ? sink : &toSyslog; }

bool BaseRaidMonitor::raise(const std::string& key, const storlib::Addr& address,
                            const std::vector<std::string>& args, const std::string& adapterSerial,
                            int type) {
    const EventKind* kind = findEventKind(key);
    if (kind == nullptr) {
        TkzLogMsg(TKZ_LOG_WARN, "RAID monitor: no event %s, ignored", key.c_str());
        return false;
    }
    const int eventType = type != 0 ? type : kind->type;
    NRMEvent event(kind->code, eventType, m_catalogue->get(kind->message, args), address, 0, 0, 0, key,
                   adapterSerial);
    event.setObjectClass(kind->objectClass);
    m_queue.addEvent(event);
    const int level = settings().osLoggingLevel;
    if (eventType <= level) {
        g_systemLog.load()(syslogPriority(eventType), event.getDescription().empty() ? key : event.getDescription());
    }
    return true;
}

}  // namespace vex::monitor

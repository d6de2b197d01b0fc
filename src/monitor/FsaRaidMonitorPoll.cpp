// One poll of the monitor: CHECK_CONFIG against the stored snapshot at
// start, COMPARE_CONFIG every cycle.
#include <storlib/StorLib.h>
#include <storlib/SystemConfig.h>

#include "controller/VexFSAInterface.h"
#include "monitor/ControllerEventRules.h"
#include "monitor/EventVocabulary.h"
#include "monitor/FsaRaidMonitor.h"
#include "monitor/MonitorFiles.h"
#include "platform/Tkz.h"

namespace vex::monitor {

namespace {

constexpr std::size_t kMaxSnapshotBytes = 64u * 1024u * 1024u;

// The StorLib guard of the controller interface, held while the monitor
// reads the library.
class StorLibGuard {
public:
    StorLibGuard() : m_guard(vex::cim::fwf::VexFSAInterface::getStorlibGuard()) {
        m_locked = m_guard != nullptr && TkzMutexLock(m_guard) == 0;
    }
    ~StorLibGuard() {
        if (m_locked) {
            TkzMutexUnlock(m_guard);
        }
    }
    StorLibGuard(const StorLibGuard&) = delete;
    StorLibGuard& operator=(const StorLibGuard&) = delete;

private:
    TKZ_MUTEX m_guard;
    bool m_locked = false;
};

// The partner of a controller in another snapshot: same serial number, or,
// without one, the same number.
const AdapterSnapshot* findAdapter(const ConfigSnapshot& in, const AdapterSnapshot& adapter) {
    for (const AdapterSnapshot& candidate : in.adapters) {
        if (!adapter.serial().empty() ? candidate.serial() == adapter.serial() : candidate.id() == adapter.id()) {
            return &candidate;
        }
    }
    return nullptr;
}

bool knownEventType(std::uint32_t type) {
    return eventNeedsRefresh(type, 0, 0, 1) || eventNeedsRefresh(type, 1, 16, 1) ||
           eventNeedsRefresh(type, 2, 16, 1) || type == 0x1 || type == 0x10 || type == 0x200 ||
           type == 0x400 || type == 0x8000 || type == 0x10000000;
}

}  // namespace

int FsaRaidMonitor::poll(int mode, NRMEventCollection&) {
    if (m_library == nullptr) {
        return 1;
    }
    try {
        return mode == CHECK_CONFIG ? checkConfig() : compareConfig();
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "RAID monitor: poll failed");
        return 1;
    }
}

bool FsaRaidMonitor::refreshConfig() {
    if (m_library == nullptr) {
        nrmDebug(NRM_DEBUG_ERROR, "ERROR: FsaRaidMonitor::refreshConfig() StorLib Handle is NULL.\n");
        return false;
    }
    std::shared_ptr<const storlib::SystemConfig> config;
    {
        StorLibGuard guard;
        config = m_library->getSystemConfig();
    }
    if (!config) {
        nrmDebug(NRM_DEBUG_ERROR, "ERROR: FsaRaidMonitor::refreshConfig() no system config.\n");
        return false;
    }
    m_old = std::move(m_new);
    m_new = snapshotOf(*config);
    m_lastRefresh = secondsSinceStart();
    setSnapshotTexts(toXml(m_new), smartStatsOf(*config));
    return true;
}

void FsaRaidMonitor::fetchEvents(const ConfigSnapshot& config, ControllerEvents& out) {
    out.clear();
    if (m_library == nullptr) {
        return;
    }
    for (const AdapterSnapshot& adapter : config.adapters) {
        nrmDebug(NRM_DEBUG_INFO, "Calling FsaLib::getEvents(xml) for adapter %u.\n", adapter.id());
        storlib::StorEventCollection events;
        if (m_library->getEvents(adapter.id(), events).ok()) {
            nrmDebug(NRM_DEBUG_INFO, "\tNumber of events: %u\n", static_cast<unsigned>(events.size()));
            out[adapter.id()] = std::move(events);
        }
    }
}

bool FsaRaidMonitor::configNeedsRefresh(const ControllerEvents& events) const {
    for (const auto& adapter : events) {
        for (const storlib::StorEvent& event : adapter.second) {
            if (eventNeedsRefresh(event)) {
                return true;
            }
        }
    }
    return false;
}

void FsaRaidMonitor::PassThroughEvents(const ControllerEvents& events) {
    for (const auto& adapter : events) {
        for (const storlib::StorEvent& event : adapter.second) {
            if (const char* key = passThroughKey(event)) {
                raise(key, event.getAddr(), {std::to_string(adapter.first), std::to_string(adapter.first)}, {});
            }
        }
    }
}

// Without a refresh, task starts and progress come from the controller's
// own task events.
void FsaRaidMonitor::compareProgress(std::uint32_t adapter, const storlib::StorEventCollection& events) {
    for (const storlib::StorEvent& event : events) {
        const std::string key = taskEventKey(event);
        if (key.empty()) {
            continue;
        }
        const storlib::Addr a = event.getAddr();
        const std::uint32_t task = static_cast<std::uint32_t>(a.getExtendedID());
        const long percent = static_cast<long>(event.getDetail(2));
        if (!newTaskNews(key, adapter, task, percent)) {
            continue;
        }
        const std::string label = a.getLogicalDriveID() != storlib::Addr::ANY
                                      ? std::to_string(a.getLogicalDriveID())
                                      : std::to_string(a.getChannelID()) + ":" + std::to_string(a.getDeviceID());
        raise(key, a, {label, std::to_string(adapter), {}, {}, std::to_string(percent)}, {});
    }
}

void FsaRaidMonitor::checkTranslateEvents(std::uint32_t adapter, const storlib::StorEventCollection& events) {
    for (const storlib::StorEvent& event : events) {
        if (!knownEventType(event.getType())) {
            TkzLogMsg(TKZ_LOG_INFO, "RAID monitor: controller %u event of unknown type 0x%x ignored", adapter,
                      event.getType());
        }
    }
}

void FsaRaidMonitor::compareConfigs(const ConfigSnapshot& old, const ConfigSnapshot& now, int removedType) {
    m_objectsChanged = false;
    for (const AdapterSnapshot& adapter : now.adapters) {
        const AdapterSnapshot* before = findAdapter(old, adapter);
        try {
            if (before == nullptr) {
                checkAdapter(adapter);
                checkPhysicalDrives(adapter);
                checkLogicalDrives(adapter);
                checkProgress(adapter, 0);
                continue;
            }
            compareAdapter(*before, adapter);
            comparePhysicalDrives(*before, adapter);
            compareLogicalDrives(*before, adapter);
            compareProgress(*before, adapter);
            compareSafte(*before, adapter);
        } catch (...) {
            nrmDebug(NRM_DEBUG_ERROR, before == nullptr ? "ERROR: FsaRaidMonitor::poll() NEW ADAPTER Exception handle\n"
                                                        : "ERROR: FsaRaidMonitor::poll() OLD ADAPTER Exception handle\n");
        }
    }
    for (const AdapterSnapshot& adapter : old.adapters) {
        if (findAdapter(now, adapter) == nullptr) {
            controllerRemoved(adapter, removedType);
        }
    }
    if (m_objectsChanged) {
        raise(kKeyConfigChanged, storlib::Addr(), {}, {});
    }
}

int FsaRaidMonitor::checkConfig() {
    nrmDebug(NRM_DEBUG_INFO, "In poll with CHECK_CONFIG...\n");
    std::string text;
    ConfigSnapshot stored;
    const bool haveStored = readSmallFile(filePath(configXmlName()), kMaxSnapshotBytes, text) && fromXml(text, stored);
    if (!refreshConfig()) {
        return 1;
    }
    if (!haveStored) {
        nrmDebug(NRM_DEBUG_ERROR, "ERROR: FsaRaidMonitor::poll() stored system config NULL in CHECK_CONFIG\n");
        TkzLogMsg(TKZ_LOG_INFO, "RAID monitor: no stored configuration to compare with");
    } else {
        compareConfigs(stored, m_new, NRM_EVENT_INFO);
    }
    m_writtenXml.clear();
    dumpConfig();
    nrmDebug(NRM_DEBUG_INFO, "Cleaning up after CHECK_CONFIG.\n");
    return 0;
}

int FsaRaidMonitor::compareConfig() {
    nrmDebug(NRM_DEBUG_INFO, "In poll with COMPARE_CONFIG...\n");
    const long now = secondsSinceStart();
    const bool driveMapDue = !m_driveMapReported || (now >= kDriveMapInterval && now - m_lastDriveMap >= kDriveMapInterval);
    bool dirty = false;
    if (std::time(nullptr) - m_lastCount >= kCountInterval) {
        m_lastCount = std::time(nullptr);
        if (m_library->getNumAdapters() != m_new.adapters.size()) {
            nrmDebug(NRM_DEBUG_INFO, "Change in adapterCount detected!!!\n\n");
            dirty = true;
        }
    }
    ControllerEvents events;
    fetchEvents(m_new, events);
    PassThroughEvents(events);
    if (!dirty && configNeedsRefresh(events)) {
        nrmDebug(NRM_DEBUG_INFO, "Config refresh needed after analyzing events.\n");
        dirty = true;
    }
    if (!m_refreshed || (now >= kRefreshInterval && now - m_lastRefresh >= kRefreshInterval)) {
        nrmDebug(NRM_DEBUG_INFO, "It is time to force a refresh config!!!\n");
        dirty = true;
    }
    if (!dirty) {
        for (const auto& adapter : events) {
            compareProgress(adapter.first, adapter.second);
            checkTranslateEvents(adapter.first, adapter.second);
        }
    } else if (refreshConfig()) {
        m_refreshed = true;
        ControllerEvents more;
        fetchEvents(m_new, more);
        PassThroughEvents(more);
        compareConfigs(m_old, m_new, NRM_EVENT_ERROR);
        for (const auto& adapter : more) {
            compareProgress(adapter.first, adapter.second);
            checkTranslateEvents(adapter.first, adapter.second);
        }
    }
    if (driveMapDue) {
        m_driveMapReported = true;
        m_lastDriveMap = now;
        for (const AdapterSnapshot& adapter : m_new.adapters) {
            logSASDriveMap(adapter);
        }
    }
    nrmDebug(NRM_DEBUG_INFO, "Dumping the new system config...\n");
    dumpConfig();
    nrmDebug(NRM_DEBUG_INFO, "Cleaning up after COMPARE_CONFIG.\n");
    return 0;
}

void FsaRaidMonitor::dumpConfig() {
    const std::string xml = getXmlConfig();
    if (xml.empty() || xml == m_writtenXml) {
        return;
    }
    if (replaceFile(filePath(configXmlName()), xml)) {
        m_writtenXml = xml;
    }
}

void FsaRaidMonitor::logSASDriveMap(const AdapterSnapshot& adapter) {
    for (const SnapshotObject& o : adapter.objects) {
        if (o.element == "HardDrive") {
            nrmDebug(NRM_DEBUG_INFO, "SAS drive map: controller %u drive %s serial %s state %s\n", adapter.id(),
                     o.get("label").c_str(), o.get("serialNumber").c_str(), o.get("state").c_str());
        }
    }
}

}  // namespace vex::monitor

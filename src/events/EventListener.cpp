// The listener thread: monitor events become VEX_EventIndication
// indications, and each batch asks for one cache refresh.
#include <ctime>
#include <memory>

#include "controller/VexFSAInterface.h"
#include "events/FsaIfEventManager.h"
#include "framework/AbstractCachedInstanceProviderPlugin.h"
#include "framework/CIMNamespaces.h"
#include "framework/FrameworkFacade.h"
#include "monitor/NRMEvent.h"
#include "monitor/VEXRaidEventMonitor.h"

namespace vex::cim::fwf {

namespace {

constexpr int kConfigChangeType = 5;

CIMProperty stringProperty(const char* name, std::string value) {
    return CIMProperty(name, CIMValue<std::string>(std::move(value)), false, CIM_STRING, false);
}

CIMProperty uint32Property(const char* name, int value) {
    return CIMProperty(name, CIMValue<unsigned int>(static_cast<unsigned int>(value)), false, CIM_UINT32, false);
}

std::string localHostName() {
    char host[256] = {};
    if (TkzGetHostName(host, sizeof host) != 0) {
        host[0] = '\0';
    }
    return host;
}

void logEvent(const monitor::NRMEvent& event) {
    TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - NRM Event Description");
    TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - NRM Event Code: %d", event.getCode());
    TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - NRM Event Type: %d", event.getType());
    TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - NRM Event Description: %s", event.getDescription().c_str());
    TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - NRM Event Description END");
}

}  // namespace

std::string formatTimeStampDup(std::time_t time) {
    struct tm local {};
    if (localtime_r(&time, &local) == nullptr) {
        const std::time_t now = std::time(nullptr);
        localtime_r(&now, &local);
    }
    char text[64];
    std::snprintf(text, sizeof text, "%.2d/%.2d/%d %.2d:%.2d:%.2d", local.tm_mon + 1, local.tm_mday,
                  local.tm_year + 1900, local.tm_hour, local.tm_min, local.tm_sec);
    return text;
}

CIMInstance eventIndicationOf(const monitor::NRMEvent& event, const std::string& xmlConfig,
                              const std::string& smartStats) {
    CIMInstance indication;
    indication.setPath(CIMObjectPath(localHostName(), kImplementationNameSpace, "VEX_EventIndication", {}));
    indication.addProperty(stringProperty("eventTime", formatTimeStampDup(event.getTime())));
    indication.addProperty(uint32Property("eventCode", event.getCode()));
    indication.addProperty(uint32Property("eventType", event.getType()));
    indication.addProperty(stringProperty("eventDesc", event.getDescription()));
    indication.addProperty(stringProperty("devIdentifier", event.getAddress().toString()));
    indication.addProperty(stringProperty("xmlConfig", xmlConfig));
    indication.addProperty(stringProperty("xmlSmartStats", smartStats));
    return indication;
}

void FsaIfEventManager::deliverMonitorEvents(const std::vector<monitor::NRMEvent>& events,
                                             const std::string& xmlConfig, const std::string& smartStats) {
    for (const monitor::NRMEvent& event : events) {
        if (event.getType() == kConfigChangeType) {
            continue;
        }
        logEvent(event);
        FrameworkFacade* facade = FrameworkFacade::getInstance();
        const bool delivered = facade != nullptr && facade->notify(eventIndicationOf(event, xmlConfig, smartStats));
        TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - Notify Done: %d", delivered ? 1 : 0);
    }
    uPollEvent request{};
    for (const monitor::NRMEvent& event : events) {
        request.EventType |= event.getType() == kConfigChangeType ? FSA_POLL_CONFIG_CHANGE : FSA_POLL_REFRESH;
    }
    if (request.EventType == 0) {
        return;
    }
    if (m_eventProcessorMutex != nullptr) {
        TkzMutexLock(m_eventProcessorMutex);
    }
    invokeCallBack(request);
    if (m_eventProcessorMutex != nullptr) {
        TkzMutexUnlock(m_eventProcessorMutex);
    }
}

bool FsaIfEventManager::listenerSleep(unsigned int seconds) {
    std::unique_lock<std::mutex> lock(m_sleepMutex);
    m_sleepWake.wait_for(lock, std::chrono::seconds(seconds), [this] { return m_listenerStop.load(); });
    return !m_listenerStop.load();
}

void FsaIfEventManager::listenerLoop() {
    monitor::VEXRaidEventMonitor* raidMonitor = monitor::VEXRaidEventMonitor::getInstance();
    if (raidMonitor == nullptr) {
        return;
    }
    while (monitor::VEXRaidEventMonitor::continueThread.load() && !m_listenerStop.load()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - Getting the events from Fsa Raid Monitor");
        std::shared_ptr<monitor::FsaRaidMonitor> current = raidMonitor->getMonitor();
        if (!current) {
            listenerSleep(1);
            continue;
        }
        if (!AbstractCachedInstanceProviderPlugin::bFirstJobQuery.load()) {
            TkzLogMsg(TKZ_LOG_DEBUG,
                      "Agent has not established connection with cimom. Indications are still not enabled ");
            listenerSleep(1);
            continue;
        }
        std::vector<monitor::NRMEvent> records;
        const int queued = current->getNumberOfEvents();
        if (queued > 0) {
            records.resize(static_cast<std::size_t>(queued));
            const int copied = current->getEvents(records.data(), queued);
            records.resize(static_cast<std::size_t>(copied > 0 ? copied : 0));
            TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - Found %d Events", copied);
        }
        if (!records.empty() && !VexFSAInterface::isNotInitialized()) {
            deliverMonitorEvents(records, current->getXmlConfig(), current->getSmartStats());
        }
        listenerSleep(1);
    }
}

void* FsaIfEventManager::fsaEventListenerThread(void*) {
    TkzTrace("Entering fsaEventListenerThread");
    TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - Inside Event Listener Thread");
    if (FsaIfEventManager* manager = s_instance.load()) {
        try {
            manager->listenerLoop();
        } catch (...) {
            TkzLogMsg(TKZ_LOG_ERROR, "[fsaEventListenerThread] - Exception");
        }
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "[fsaEventListenerThread] - Exiting Event Listener Thread");
    TkzTrace("Exiting fsaEventListenerThread");
    return nullptr;
}

}  // namespace vex::cim::fwf

#include "events/FsaIfPluginManagr.h"

#include <cstdio>
#include <memory>
#include <stdexcept>

#include "platform/Tkz.h"

namespace vex::cim::fwf {

std::mutex FsaIfPluginManagr::sPluginInsMutex;

namespace {

CIMProperty keyProperty(const char* name, std::string value) {
    return CIMProperty(name, CIMValue<std::string>(std::move(value)), true, CIM_STRING, false);
}

// "a_b_c" of the numbers given.
std::string joined(std::initializer_list<int> numbers) {
    std::string text;
    for (int n : numbers) {
        text += (text.empty() ? "" : "_") + std::to_string(n);
    }
    return text;
}

}  // namespace

// Made when the library is loaded and deleted at unload (or exit) after
// everything registered later, so the event threads can still reach it while
// they are stopped at exit.
std::unique_ptr<FsaIfPluginManagr> FsaIfPluginManagr::s_instance(new FsaIfPluginManagr());

FsaIfPluginManagr* FsaIfPluginManagr::getInstance() { return s_instance.get(); }

bool FsaIfPluginManagr::isSupported(_eVEXObjectType type) {
    return type == VEX_OBJ_PHYSICAL_DRIVE || type == VEX_OBJ_CONTROLLER || type == VEX_OBJ_CONCRETE_POOL ||
           type == VEX_OBJ_ENCLOSURE || type == VEX_OBJ_SES_ELEMENT || type == VEX_OBJ_JOB;
}

void FsaIfPluginManagr::pushPluginVec(_eVEXObjectType type, EventObserver* observer) {
    TkzLogMsg(TKZ_LOG_INFO, "Push Plugin registration of type:%d", static_cast<int>(type));
    if (!isSupported(type)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Non Supported type of plugin reg received:%d", static_cast<int>(type));
        return;
    }
    std::lock_guard<std::mutex> lock(sPluginInsMutex);
    m_observers[type].push_back(observer);
}

bool FsaIfPluginManagr::peekPluginVec(_eVEXObjectType type, std::size_t index, EventObserver*& observer) {
    if (!isSupported(type)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Non Supported type of plugin:%d", static_cast<int>(type));
        return false;
    }
    std::lock_guard<std::mutex> lock(sPluginInsMutex);
    observer = m_observers[type].at(index);
    return true;
}

std::size_t FsaIfPluginManagr::pluginCount(_eVEXObjectType type) {
    std::lock_guard<std::mutex> lock(sPluginInsMutex);
    const auto found = m_observers.find(type);
    return found == m_observers.end() ? 0 : found->second.size();
}

void FsaIfPluginManagr::clear() {
    std::lock_guard<std::mutex> lock(sPluginInsMutex);
    m_observers.clear();
}

void FsaIfPluginManagr::deliver(const char* operation, _eVEXObjectType type, _eVEXEventType eventType,
                                std::vector<CIMProperty> keys, std::vector<CIMProperty>& changed) {
    TkzTrace((std::string("ENTER-SMIS::") + operation).c_str());
    char now[64] = {};
    TkzGetLocalTime(now, sizeof now);
    std::vector<EventObserver*> observers;
    {
        std::lock_guard<std::mutex> lock(sPluginInsMutex);
        observers = m_observers[type];
    }
    std::vector<CIMProperty> changedCopy = changed;
    for (EventObserver* observer : observers) {
        std::vector<CIMProperty> eventKeys = keys;
        observer->EventNotify(type, eventType, now, eventKeys, changedCopy);
    }
    TkzTrace((std::string("EXIT-SMIS::") + operation).c_str());
}

void FsaIfPluginManagr::deliverAdapterEventToPlugins(_eVEXEventType eventType, int adapterId,
                                                     std::vector<CIMProperty>& changed) {
    deliver("deliverAdapterEventToPlugins", VEX_OBJ_CONTROLLER, eventType,
            {keyProperty("CSName", "vexController_" + joined({adapterId}))}, changed);
}

void FsaIfPluginManagr::deliverContainerEventToPlugins(_eVEXEventType eventType, int adapterId, int volumeId,
                                                       std::vector<CIMProperty>& changed) {
    deliver("deliverContainerEventToPlugins", VEX_OBJ_CONCRETE_POOL, eventType,
            {keyProperty("SPInstanceID", joined({adapterId, volumeId}))}, changed);
}

void FsaIfPluginManagr::deliverPdEventToPlugins(_eVEXEventType eventType, int adapterId, int channelId,
                                                int deviceId, std::vector<CIMProperty>& changed) {
    deliver("deliverPdEventToPlugins", VEX_OBJ_PHYSICAL_DRIVE, eventType,
            {keyProperty("DDDeviceID", joined({adapterId, channelId, deviceId}))}, changed);
}

void FsaIfPluginManagr::deliverEnclEventToPlugins(_eVEXEventType eventType, const std::string& tag,
                                                  std::vector<CIMProperty>& changed) {
    deliver("deliverEnclEventToPlugins", VEX_OBJ_ENCLOSURE, eventType,
            {keyProperty("CreationClassName", "VEX_Enclosure"), keyProperty("Tag", tag)}, changed);
}

void FsaIfPluginManagr::deliverSESElementEventToPlugins(_eVEXEventType eventType, const std::string& systemName,
                                                        const std::string& deviceId,
                                                        std::vector<CIMProperty>& changed) {
    deliver("deliverSESElementEventToPlugins", VEX_OBJ_SES_ELEMENT, eventType,
            {keyProperty("SystemCreationClassName", "VEX_EnclosureChasis"), keyProperty("SystemName", systemName),
             keyProperty("CreationClassName", "VEX_SESElement"), keyProperty("DeviceID", deviceId)},
            changed);
}

void FsaIfPluginManagr::deliverJobProgressEventToPlugins(_eVEXEventType eventType, std::vector<CIMProperty>& keys,
                                                         std::vector<CIMProperty>& changed) {
    deliver("deliverJobProgressEventToPlugins", VEX_OBJ_JOB, eventType, keys, changed);
}

}  // namespace vex::cim::fwf

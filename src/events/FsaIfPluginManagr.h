// FsaIfPluginManagr: the registry of plug-ins that hear about cache changes,
// one list per object type, and the dispatch of one change to them.
#ifndef VEX_EVENTS_FSAIFPLUGINMANAGR_H
#define VEX_EVENTS_FSAIFPLUGINMANAGR_H

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "framework/CIMProperty.h"
#include "framework/EventObserver.h"
#include "framework/VexObjectType.h"

namespace vex::cim::fwf {

class FsaIfPluginManagr {
public:
    static FsaIfPluginManagr* getInstance();
    virtual ~FsaIfPluginManagr() = default;

    // Physical drives, controllers, volumes, enclosures, SES elements and
    // jobs are supported; any other type is refused with a log line.
    static bool isSupported(_eVEXObjectType type);

    void pushPluginVec(_eVEXObjectType type, EventObserver* observer);
    // The observer at index of the type's list; std::out_of_range beyond it;
    // false for an unsupported type.
    bool peekPluginVec(_eVEXObjectType type, std::size_t index, EventObserver*& observer);
    std::size_t pluginCount(_eVEXObjectType type);
    // Forgets every observer (the plug-ins are gone with the registry).
    void clear();

    void deliverAdapterEventToPlugins(_eVEXEventType eventType, int adapterId,
                                      std::vector<CIMProperty>& changed);
    void deliverContainerEventToPlugins(_eVEXEventType eventType, int adapterId, int volumeId,
                                        std::vector<CIMProperty>& changed);
    void deliverPdEventToPlugins(_eVEXEventType eventType, int adapterId, int channelId, int deviceId,
                                 std::vector<CIMProperty>& changed);
    void deliverEnclEventToPlugins(_eVEXEventType eventType, const std::string& tag,
                                   std::vector<CIMProperty>& changed);
    // systemName and deviceId as the SES element's keys carry them.
    void deliverSESElementEventToPlugins(_eVEXEventType eventType, const std::string& systemName,
                                         const std::string& deviceId, std::vector<CIMProperty>& changed);
    void deliverJobProgressEventToPlugins(_eVEXEventType eventType, std::vector<CIMProperty>& keys,
                                          std::vector<CIMProperty>& changed);

private:
    FsaIfPluginManagr() = default;
    void deliver(const char* operation, _eVEXObjectType type, _eVEXEventType eventType,
                 std::vector<CIMProperty> keys, std::vector<CIMProperty>& changed);

    std::map<int, std::vector<EventObserver*>> m_observers;
    static std::mutex sPluginInsMutex;
    static std::unique_ptr<FsaIfPluginManagr> s_instance;
};

}  // namespace vex::cim::fwf

#endif

// EventObserver: the plug-in side of change notification. The event machinery
// keeps observers per cache object type and calls EventNotify, on its own
// thread, for each object of that type that was created, deleted or modified.
#ifndef VEX_FRAMEWORK_EVENTOBSERVER_H
#define VEX_FRAMEWORK_EVENTOBSERVER_H

#include <string>
#include <vector>

#include "framework/CIMProperty.h"
#include "framework/VexObjectType.h"

namespace vex::cim::fwf {

class EventObserver {
public:
    // keys: the key properties of the changed object as the event names them;
    // changed: the properties that changed. timeStamp is the local time text.
    virtual void EventNotify(_eVEXObjectType objectType, _eVEXEventType eventType,
                             std::string timeStamp, std::vector<CIMProperty>& keys,
                             std::vector<CIMProperty>& changed) = 0;
    virtual ~EventObserver() = default;
};

}  // namespace vex::cim::fwf

#endif

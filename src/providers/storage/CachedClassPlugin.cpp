#include "providers/storage/CachedClassPlugin.h"

#include "controller/VexFSAInterface.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf::cached {

void registerForChanges(int changeEvents, EventObserver* observer) {
    if (changeEvents == kNoChangeEvents) {
        return;
    }
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    if (fsa != nullptr) {
        fsa->registerForNotification(static_cast<_eVEXObjectType>(changeEvents), observer);
    }
}

std::string tracedPrefix(const char* prefix) {
    TkzTrace("ENTER::getClassPrefix");
    std::string answer(prefix);
    TkzTrace("EXIT::getClassPrefix");
    return answer;
}

int storedKeys(const CIMObjectPath& path, const std::string& prefix, std::vector<CIMProperty>& keys) {
    keys = path.getKeyBindings();
    for (CIMProperty& key : keys) {
        key.setName(prefix + key.getName());
    }
    return static_cast<int>(keys.size());
}

}  // namespace vex::cim::fwf::cached

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

namespace {

// How many "_"-separated parts the event key of a view has: drive views
// "c_ch_d", pool views "c_v", controller views "vexController_c".
struct ViewKey {
    const char* className;
    const char* key;
    std::size_t parts;
};

const ViewKey kViewKeys[] = {
    {"VEX_DiskDriveView", "DDDeviceID", 3},
    {"VEX_ConcreteStoragePoolView", "SPInstanceID", 2},
    {"VEX_ControllerView", "CSName", 2},
};

// Event keys a class keeps; null: all of them.
struct KeptKeys {
    const char* className;
    std::vector<const char*> keys;
};

const KeptKeys kKeptKeys[] = {
    {"VEX_SESElement", {"SystemName", "DeviceID"}},
    {"VEX_EnclosureChassis", {"Tag"}},
};

std::size_t partsOf(const std::string& value) {
    std::size_t parts = 1;
    for (char c : value) {
        parts += c == '_' ? 1 : 0;
    }
    return value.empty() ? 0 : parts;
}

bool wellFormed(const ViewKey& view, const std::vector<CIMProperty>& keys) {
    for (const CIMProperty& key : keys) {
        if (key.getName() == view.key) {
            const std::vector<std::string> values = key.getStringValue().getValues();
            return !values.empty() && partsOf(values.front()) == view.parts;
        }
    }
    return false;
}

}  // namespace

int classKeysOfEvent(const char* className, std::vector<CIMProperty>& eventKeys,
                     std::vector<CIMProperty>& classKeys) {
    const std::string name(className);
    for (const ViewKey& view : kViewKeys) {
        if (name == view.className && !wellFormed(view, eventKeys)) {
            TkzLogMsg(TKZ_LOG_DEBUG, "ViewClass Key corrupted");
            return 1;
        }
    }
    classKeys = eventKeys;
    for (const KeptKeys& kept : kKeptKeys) {
        if (name != kept.className) {
            continue;
        }
        classKeys.clear();
        for (const CIMProperty& key : eventKeys) {
            for (const char* keep : kept.keys) {
                if (key.getName() == keep) {
                    classKeys.push_back(key);
                }
            }
        }
    }
    return 0;
}

}  // namespace vex::cim::fwf::cached

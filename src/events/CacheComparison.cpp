// Comparison of the cache before and after a rebuild. Each kind of object is
// paired by its identity property; what appeared, disappeared or changed
// goes to the plug-ins registered for that kind (FsaIfPluginManagr).
//
// "Before" is the manager's own copy of the served repository as of the last
// comparison (or of updateWholeOldCache), so a comparison never disturbs the
// repositories themselves. A kind compared for the first time without a
// "before" only takes its copy.
#include <cstdlib>
#include <map>
#include <string>

#include "controller/VexCacheManager.h"
#include "events/FsaIfEventManager.h"
#include "events/FsaIfPluginManagr.h"
#include "framework/PropertyBuilders.h"
#include "framework/PropertyText.h"

namespace vex::cim::fwf {

namespace {

using Deliver = void (*)(_eVEXEventType, const CIMInstance&, std::vector<CIMProperty>&);

// The numbers of an identity such as "vexController_3" or "0_1_4".
std::vector<int> numbers(const std::string& identity) {
    std::vector<int> out;
    std::string::size_type at = 0;
    while (at < identity.size()) {
        const std::string::size_type digit = identity.find_first_of("0123456789", at);
        if (digit == std::string::npos) {
            break;
        }
        std::string::size_type end = identity.find_first_not_of("0123456789", digit);
        if (end == std::string::npos) {
            end = identity.size();
        }
        out.push_back(std::atoi(identity.substr(digit, end - digit).c_str()));
        at = end;
    }
    out.resize(3, 0);
    return out;
}

// The properties worth a modification: states, statuses, health, progress
// and names (not the counters that move with every read).
bool watched(const std::string& name) {
    for (const char* part : {"Status", "State", "Health", "PercentComplete", "Name"}) {
        if (name.find(part) != std::string::npos) {
            return true;
        }
    }
    return false;
}

std::vector<CIMProperty> changedProperties(const CIMInstance& before, const CIMInstance& after,
                                           bool percentOnly) {
    std::vector<CIMProperty> changed;
    for (const CIMProperty& property : after.getPropertyList()) {
        if (percentOnly ? property.getName() != "PercentComplete" : !watched(property.getName())) {
            continue;
        }
        const CIMProperty* old = before.getPropertyByName(property.getName());
        if (old == nullptr || describeProperty(*old) != describeProperty(property)) {
            changed.push_back(property);
        }
    }
    return changed;
}

struct CompareKind {
    _eVEXObjectType type;
    const char* identity;  // pairing property; null: the instance's key properties
    bool percentOnly;
    Deliver deliver;
};

void deliverAdapter(_eVEXEventType e, const CIMInstance& i, std::vector<CIMProperty>& changed) {
    FsaIfPluginManagr::getInstance()->deliverAdapterEventToPlugins(e, numbers(stringValueOf(i, "CSName"))[0], changed);
}

void deliverVdisk(_eVEXEventType e, const CIMInstance& i, std::vector<CIMProperty>& changed) {
    const std::vector<int> n = numbers(stringValueOf(i, "SPInstanceID"));
    FsaIfPluginManagr::getInstance()->deliverContainerEventToPlugins(e, n[0], n[1], changed);
}

void deliverPdisk(_eVEXEventType e, const CIMInstance& i, std::vector<CIMProperty>& changed) {
    const std::vector<int> n = numbers(stringValueOf(i, "DDDeviceID"));
    FsaIfPluginManagr::getInstance()->deliverPdEventToPlugins(e, n[0], n[1], n[2], changed);
}

void deliverEnclosure(_eVEXEventType e, const CIMInstance& i, std::vector<CIMProperty>& changed) {
    FsaIfPluginManagr::getInstance()->deliverEnclEventToPlugins(e, stringValueOf(i, "Tag"), changed);
}

void deliverSESElement(_eVEXEventType e, const CIMInstance& i, std::vector<CIMProperty>& changed) {
    FsaIfPluginManagr::getInstance()->deliverSESElementEventToPlugins(e, stringValueOf(i, "SystemName"), stringValueOf(i, "DeviceID"),
                                                                     changed);
}

void deliverJob(_eVEXEventType e, const CIMInstance& i, std::vector<CIMProperty>& changed) {
    std::vector<CIMProperty> keys = i.getKeyPropertyList();
    if (e == VEX_EVENT_DELETED) {
        changed = i.getPropertyList();  // the job's last state, kept as its completed-job record
    }
    FsaIfPluginManagr::getInstance()->deliverJobProgressEventToPlugins(e, keys, changed);
}

const CompareKind kAdapters{VEX_OBJ_CONTROLLER, "CSName", false, &deliverAdapter};
const CompareKind kVdisks{VEX_OBJ_CONCRETE_POOL, "SPInstanceID", false, &deliverVdisk};
const CompareKind kPdisks{VEX_OBJ_PHYSICAL_DRIVE, "DDDeviceID", false, &deliverPdisk};
const CompareKind kEnclosures{VEX_OBJ_ENCLOSURE, "Tag", false, &deliverEnclosure};
const CompareKind kSESElements{VEX_OBJ_SES_ELEMENT, "DeviceID", false, &deliverSESElement};
const CompareKind kJobs{VEX_OBJ_JOB, nullptr, true, &deliverJob};

std::string identityOf(const CompareKind& kind, const CIMInstance& instance) {
    if (kind.identity != nullptr) {
        return stringValueOf(instance, kind.identity);
    }
    std::string id;
    for (const CIMProperty& key : instance.getKeyPropertyList()) {
        id += describeProperty(key) + ';';
    }
    return id;
}

std::vector<CIMInstance> served(_eVEXObjectType type) {
    std::vector<CIMInstance> out;
    if (VexCacheManager* cache = VexCacheManager::getInstance(true)) {
        cache->getRepositoryObject(type, "", {}, false, out);
    }
    return out;
}

void compareKind(const CompareKind& kind, std::vector<CIMInstance>& before) {
    std::vector<CIMInstance> now = served(kind.type);
    std::map<std::string, const CIMInstance*> old;
    for (const CIMInstance& instance : before) {
        old.emplace(identityOf(kind, instance), &instance);
    }
    for (const CIMInstance& instance : now) {
        const auto found = old.find(identityOf(kind, instance));
        std::vector<CIMProperty> changed;
        if (found == old.end()) {
            kind.deliver(VEX_EVENT_CREATED, instance, changed);
            continue;
        }
        changed = changedProperties(*found->second, instance, kind.percentOnly);
        if (!changed.empty()) {
            kind.deliver(VEX_EVENT_MODIFIED, instance, changed);
        }
        old.erase(found);
    }
    for (const CIMInstance& instance : before) {
        if (old.count(identityOf(kind, instance)) != 0) {
            std::vector<CIMProperty> changed;
            kind.deliver(VEX_EVENT_DELETED, instance, changed);
        }
    }
    before = std::move(now);
}

}  // namespace

#define VEX_COMPARE(NAME, KIND)                                  \
    void FsaIfEventManager::NAME() {                             \
        TkzTrace("ENTER-SMIS::" #NAME);                          \
        std::lock_guard<std::mutex> lock(m_compareMutex);        \
        if (m_oldCache.count(KIND.type) == 0) {                  \
            m_oldCache[KIND.type] = served(KIND.type);           \
        } else {                                                 \
            compareKind(KIND, m_oldCache[KIND.type]);            \
        }                                                        \
        TkzTrace("EXIT-SMIS::" #NAME);                           \
    }

VEX_COMPARE(compareAdapters, kAdapters)
VEX_COMPARE(compareVdisks, kVdisks)
VEX_COMPARE(comparePdisks, kPdisks)
VEX_COMPARE(compareEnclosureObjects, kEnclosures)
VEX_COMPARE(compareSESObjects, kSESElements)
VEX_COMPARE(compareLrcObjects, kJobs)

#undef VEX_COMPARE

void FsaIfEventManager::compareWholeCache() { compareLrcObjects(); }

void FsaIfEventManager::compareAllObjects() {
    compareAdapters();
    compareVdisks();
    comparePdisks();
    compareEnclosureObjects();
    compareSESObjects();
    compareLrcObjects();
}

void FsaIfEventManager::updateWholeOldCache() {
    std::lock_guard<std::mutex> lock(m_compareMutex);
    for (const CompareKind* kind : {&kAdapters, &kVdisks, &kPdisks, &kEnclosures, &kSESElements, &kJobs}) {
        m_oldCache[kind->type] = served(kind->type);
    }
}

}  // namespace vex::cim::fwf

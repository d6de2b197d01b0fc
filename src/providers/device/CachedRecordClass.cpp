#include "providers/device/CachedRecordClass.h"

#include <algorithm>
#include <cctype>

#include "framework/AssociationRow.h"
#include "framework/NotSupported.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

bool sameName(const std::string& a, const std::string& b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
               return std::tolower(x) == std::tolower(y);
           });
}

// The text a key of a request path compares by.
std::string valueText(const CIMProperty& key) {
    CIMInstance probe;
    probe.addProperty(key);
    return keyText(probe, key.getName());
}

// Every key of the request names a key of the instance (names compared
// without case, as CIM names are) with the same value text, and the
// instance has no other key.
bool hasKeys(const CIMInstance& instance, const std::vector<CIMProperty>& wanted) {
    const std::vector<CIMProperty> keys = instance.getKeyPropertyList();
    if (keys.size() != wanted.size()) {
        return false;
    }
    for (const CIMProperty& key : wanted) {
        const std::string text = valueText(key);
        const auto same = [&](const CIMProperty& own) {
            return sameName(own.getName(), key.getName()) && valueText(own) == text;
        };
        if (std::none_of(keys.begin(), keys.end(), same)) {
            return false;
        }
    }
    return true;
}

}  // namespace

void CachedRecordClass::enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                                           bool flag) {
    TkzTrace("Entering DerivedInstancePlugin :: enumerateInstances()");
    std::vector<CIMInstance> records;
    AbstractCachedInstanceProviderPlugin::enumerateInstances(classPath, records, flag);
    for (const CIMInstance& record : records) {
        std::vector<CIMInstance> derived;
        m_row.derive(record, derived);
        for (CIMInstance& instance : derived) {
            instance.setPath(classPath);
            out.push_back(std::move(instance));
        }
    }
    TkzTrace("Exiting DerivedInstancePlugin :: enumerateInstances()");
}

void CachedRecordClass::enumerateInstanceNames(CIMObjectPath& classPath, std::vector<CIMObjectPath>& out) {
    std::vector<CIMInstance> instances;
    enumerateInstances(classPath, instances, false);
    out.reserve(out.size() + instances.size());
    for (const CIMInstance& instance : instances) {
        out.push_back(instance.getPath());
    }
}

void CachedRecordClass::getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) {
    TkzTrace("Entering DerivedInstancePlugin :: getCIMInstance()");
    const std::vector<CIMProperty> wanted = path.getKeyBindings();
    std::vector<CIMInstance> found;
    if (!wanted.empty()) {
        CIMObjectPath classPath(path.getHostName(), path.getNameSpace(), path.getClassName(), {});
        std::vector<CIMInstance> instances;
        enumerateInstances(classPath, instances, false);
        for (CIMInstance& instance : instances) {
            if (hasKeys(instance, wanted)) {
                found.push_back(std::move(instance));
            }
        }
    }
    answerGet(path, found, out);
    TkzTrace("Exiting DerivedInstancePlugin :: getCIMInstance()");
}

void CachedRecordClass::modifyInstance(CIMObjectPath&, CIMInstance&, std::vector<std::string>&) {
    throwNotSupported("modifyInstance");
}

}  // namespace vex::cim::fwf

#include "providers/storage/ArrayElementViewPlugin.h"

#include <algorithm>

#include "providers/storage/ArrayElements.h"

namespace vex::cim::fwf {

namespace {

// True when every key of the request equals a key of the element (same
// name, type and value).
bool hasKeys(const CIMInstance& element, const std::vector<CIMProperty>& wanted) {
    const std::vector<CIMProperty> keys = element.getKeyPropertyList();
    for (const CIMProperty& key : wanted) {
        const auto same = [&key](const CIMProperty& own) { return own.equals(key); };
        if (std::none_of(keys.begin(), keys.end(), same)) {
            return false;
        }
    }
    return true;
}

}  // namespace

void ArrayElementViewPlugin::enumerateInstances(CIMObjectPath& classPath,
                                                std::vector<CIMInstance>& out, bool flag) {
    std::vector<CIMInstance> stored;
    AbstractCachedInstanceProviderPlugin::enumerateInstances(classPath, stored, flag);
    for (const CIMInstance& instance : stored) {
        for (CIMInstance& element : splitByElement(instance)) {
            element.setPath(classPath);
            out.push_back(std::move(element));
        }
    }
}

void ArrayElementViewPlugin::enumerateInstanceNames(CIMObjectPath& classPath,
                                                    std::vector<CIMObjectPath>& out) {
    std::vector<CIMInstance> elements;
    enumerateInstances(classPath, elements, false);
    for (const CIMInstance& element : elements) {
        out.push_back(element.getPath());
    }
}

void ArrayElementViewPlugin::getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) {
    CIMObjectPath classPath(path.getHostName(), path.getNameSpace(), path.getClassName(), {});
    std::vector<CIMInstance> elements;
    enumerateInstances(classPath, elements, false);
    const std::vector<CIMProperty> wanted = path.getKeyBindings();
    std::vector<CIMInstance> found;
    for (CIMInstance& element : elements) {
        if (hasKeys(element, wanted)) {
            found.push_back(std::move(element));
        }
    }
    answerGet(path, found, out);
}

}  // namespace vex::cim::fwf

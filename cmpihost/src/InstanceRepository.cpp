#include "cmpihost/InstanceRepository.h"

#include "NameCompare.h"

namespace cmpihost {

std::string InstanceRepository::keyOf(const std::string& nameSpace, const std::string& className) {
    return detail::lowerName(nameSpace) + "\n" + detail::lowerName(className);
}

void InstanceRepository::addInstance(Instance instance) {
    std::lock_guard<std::mutex> lock(m_mutex);
    const std::string key = keyOf(instance.nameSpace(), instance.className());
    m_entries[key].instances.push_back(std::move(instance));
}

void InstanceRepository::addPath(ObjectPath path) {
    Instance instance(path, path.keys);
    addInstance(std::move(instance));
}

void InstanceRepository::setFailure(const std::string& nameSpace, const std::string& className,
                                    CMPIrc rc) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_entries[keyOf(nameSpace, className)].failure = rc;
}

void InstanceRepository::clear() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.clear();
}

std::vector<Instance> InstanceRepository::find(const std::string& nameSpace,
                                               const std::string& className, const IsA& isA,
                                               CMPIrc& rc) const {
    std::lock_guard<std::mutex> lock(m_mutex);
    rc = CMPI_RC_OK;
    auto exact = m_entries.find(keyOf(nameSpace, className));
    if (exact != m_entries.end() && exact->second.failure) {
        rc = *exact->second.failure;
        return {};
    }
    std::vector<Instance> found;
    for (const auto& entry : m_entries) {
        for (const Instance& inst : entry.second.instances) {
            if (detail::equalNames(inst.nameSpace(), nameSpace) &&
                isA(inst.className(), className)) {
                found.push_back(inst);
            }
        }
    }
    return found;
}

}  // namespace cmpihost

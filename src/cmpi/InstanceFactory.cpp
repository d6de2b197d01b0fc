#include "cmpi/InstanceFactory.h"

#include <utility>

#include "cmpi/CmpiCalls.h"

namespace vex::cim::adap::cmpi {

InstanceHandle& InstanceHandle::operator=(InstanceHandle&& other) noexcept {
    if (this != &other) {
        reset();
        m_instance = std::exchange(other.m_instance, nullptr);
        m_owned = std::exchange(other.m_owned, false);
    }
    return *this;
}

void InstanceHandle::reset() {
    if (m_owned && m_instance != nullptr && m_instance->ft != nullptr && m_instance->ft->release != nullptr) {
        m_instance->ft->release(m_instance);
    }
    m_instance = nullptr;
    m_owned = false;
}

CMPIInstance* InstanceFactory::emptyInstance(const std::string& nameSpace, const std::string& className) {
    // Answers are mostly of one class: the last one is found without a key.
    if (m_last != nullptr && m_lastClass == className && m_lastNameSpace == nameSpace) {
        return m_last->second;
    }
    const std::string key = nameSpace + ':' + className;
    auto found = m_empty.find(key);
    if (found == m_empty.end()) {
        found = m_empty.emplace(key, makeEmpty(nameSpace, className)).first;
    }
    m_last = &*found;
    m_lastNameSpace = nameSpace;
    m_lastClass = className;
    return found->second;
}

CMPIInstance* InstanceFactory::makeEmpty(const std::string& nameSpace, const std::string& className) const {
    CMPIInstance* empty = nullptr;
    CMPIObjectPath* classPath = calls::newObjectPath(m_broker, nameSpace.c_str(), className.c_str());
    if (classPath != nullptr) {
        empty = calls::newInstance(m_broker, classPath);
    }
    if (empty != nullptr && (empty->ft == nullptr || empty->ft->clone == nullptr || empty->ft->setObjectPath == nullptr)) {
        empty = nullptr;
    }
    return empty;
}

InstanceHandle InstanceFactory::make(const CMPIObjectPath* op, const std::string& nameSpace,
                                     const std::string& className) {
    if (CMPIInstance* empty = emptyInstance(nameSpace, className)) {
        CMPIStatus rc = calls::status(CMPI_RC_OK);
        InstanceHandle copy(empty->ft->clone(empty, &rc), true);
        if (calls::ok(rc) && copy && copy.get()->ft != nullptr &&
            calls::ok(copy.get()->ft->setObjectPath(copy.get(), op))) {
            return copy;
        }
    }
    return InstanceHandle(calls::newInstance(m_broker, op), false);
}

}  // namespace vex::cim::adap::cmpi

// InstanceFactory: the CMPI instances of one answer.
//
// An object manager's CMNewInstance fills every property of the class with
// its default, finding each by name; for the thousands of instances of one
// enumeration that is most of the answer's cost. The factory asks for one
// empty instance per namespace and class that way, and makes every instance
// of the answer as a clone of it with its own path. A broker that cannot
// clone or set an instance's path gets CMNewInstance for each instance.
//
// Lives for one request, on the request's thread: the empty instances belong
// to the broker's memory of that request.
#ifndef VEX_CMPI_INSTANCEFACTORY_H
#define VEX_CMPI_INSTANCEFACTORY_H

#include <cmpidt.h>
#include <cmpift.h>

#include <string>
#include <unordered_map>

namespace vex::cim::adap::cmpi {

// A CMPI instance the caller may own: a clone is released with the handle,
// an instance of the broker's request memory is left to the broker.
class InstanceHandle {
public:
    InstanceHandle() = default;
    InstanceHandle(CMPIInstance* instance, bool owned) : m_instance(instance), m_owned(owned) {}
    ~InstanceHandle() { reset(); }
    InstanceHandle(InstanceHandle&& other) noexcept { *this = std::move(other); }
    InstanceHandle& operator=(InstanceHandle&& other) noexcept;
    InstanceHandle(const InstanceHandle&) = delete;
    InstanceHandle& operator=(const InstanceHandle&) = delete;

    CMPIInstance* get() const { return m_instance; }
    explicit operator bool() const { return m_instance != nullptr; }

private:
    void reset();

    CMPIInstance* m_instance = nullptr;
    bool m_owned = false;
};

// Whether the broker sets an instance's key properties from its path (sfcb
// does; OpenPegasus keeps the path's keys apart from the properties).
enum class PathKeys { Unknown, SetByBroker, Apart };

class InstanceFactory {
public:
    explicit InstanceFactory(const CMPIBroker* broker) : m_broker(broker) {}
    InstanceFactory(const InstanceFactory&) = delete;
    InstanceFactory& operator=(const InstanceFactory&) = delete;

    // A new instance with the path op (namespace, class and keys), no other
    // property set; empty when the broker can make none.
    InstanceHandle make(const CMPIObjectPath* op, const std::string& nameSpace,
                        const std::string& className);

    // What the answer's first instance showed of the broker (the same for all).
    PathKeys& pathKeys() { return m_pathKeys; }

private:
    // The empty instance of a class, or null when instances of the class
    // are made one by one.
    CMPIInstance* emptyInstance(const std::string& nameSpace, const std::string& className);
    CMPIInstance* makeEmpty(const std::string& nameSpace, const std::string& className) const;

    const CMPIBroker* m_broker;
    std::unordered_map<std::string, CMPIInstance*> m_empty;  // by "namespace:class"
    const std::pair<const std::string, CMPIInstance*>* m_last = nullptr;  // stable: a map node
    std::string m_lastNameSpace;
    std::string m_lastClass;
    PathKeys m_pathKeys = PathKeys::Unknown;
};

}  // namespace vex::cim::adap::cmpi

#endif

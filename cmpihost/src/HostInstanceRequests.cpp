// Requests to the instance MI.
#include "Dispatch.h"
#include "PropertyFilter.h"

namespace cmpihost {

using detail::dispatch;
using detail::Request;

namespace {

template <class Body>
Response toInstanceMI(detail::Broker& b, detail::ProviderModule* m, const CallOptions& o,
                      const std::string& ns, Body&& body) {
    return dispatch<CMPIInstanceMI>(b, m, MIKind::Instance, o, ns, std::forward<Body>(body));
}

}  // namespace

Response Host::enumerateInstanceNames(const ObjectPath& cp, const CallOptions& o) {
    return toInstanceMI(*m_broker, m_module.get(), o, cp.nameSpace,
                        [&](Request& r, CMPIInstanceMI* mi, const CMPIInstanceMIFT& ft) {
                            return ft.enumerateInstanceNames(mi, r.context(), r.result(),
                                                             r.reference(cp));
                        });
}

Response Host::enumerateInstances(const ObjectPath& cp, const PropertyList& properties,
                                  const CallOptions& o) {
    return detail::filteredAnswer(toInstanceMI(*m_broker, m_module.get(), o, cp.nameSpace,
                        [&](Request& r, CMPIInstanceMI* mi, const CMPIInstanceMIFT& ft) {
                            return ft.enumerateInstances(mi, r.context(), r.result(),
                                                         r.reference(cp), r.properties(properties));
                        }),
                                  properties, m_broker->flavor());
}

Response Host::getInstance(const ObjectPath& path, const PropertyList& properties,
                           const CallOptions& o) {
    return detail::filteredAnswer(toInstanceMI(*m_broker, m_module.get(), o, path.nameSpace,
                        [&](Request& r, CMPIInstanceMI* mi, const CMPIInstanceMIFT& ft) {
                            return ft.getInstance(mi, r.context(), r.result(), r.reference(path),
                                                  r.properties(properties));
                        }),
                                  properties, m_broker->flavor());
}

Response Host::createInstance(const ObjectPath& cp, const Instance& instance,
                              const CallOptions& o) {
    return toInstanceMI(*m_broker, m_module.get(), o, cp.nameSpace,
                        [&](Request& r, CMPIInstanceMI* mi, const CMPIInstanceMIFT& ft) {
                            return ft.createInstance(mi, r.context(), r.result(), r.reference(cp),
                                                     r.instance(instance));
                        });
}

Response Host::modifyInstance(const ObjectPath& path, const Instance& instance,
                              const PropertyList& properties, const CallOptions& o) {
    return toInstanceMI(*m_broker, m_module.get(), o, path.nameSpace,
                        [&](Request& r, CMPIInstanceMI* mi, const CMPIInstanceMIFT& ft) {
                            return ft.modifyInstance(mi, r.context(), r.result(),
                                                     r.reference(path), r.instance(instance),
                                                     r.properties(properties));
                        });
}

Response Host::deleteInstance(const ObjectPath& path, const CallOptions& o) {
    return toInstanceMI(*m_broker, m_module.get(), o, path.nameSpace,
                        [&](Request& r, CMPIInstanceMI* mi, const CMPIInstanceMIFT& ft) {
                            return ft.deleteInstance(mi, r.context(), r.result(),
                                                     r.reference(path));
                        });
}

Response Host::execQuery(const ObjectPath& cp, const OptString& query, const OptString& language,
                         const CallOptions& o) {
    return toInstanceMI(*m_broker, m_module.get(), o, cp.nameSpace,
                        [&](Request& r, CMPIInstanceMI* mi, const CMPIInstanceMIFT& ft) {
                            return ft.execQuery(mi, r.context(), r.result(), r.reference(cp),
                                                r.text(query), r.text(language));
                        });
}

}  // namespace cmpihost

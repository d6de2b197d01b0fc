// Requests to the indication MI.
#include "Dispatch.h"

namespace cmpihost {

using detail::dispatch;
using detail::Request;

namespace {

template <class Body>
Response toIndicationMI(detail::Broker& b, detail::ProviderModule* m, const CallOptions& o,
                        const std::string& ns, Body&& body) {
    return dispatch<CMPIIndicationMI>(b, m, MIKind::Indication, o, ns, std::forward<Body>(body));
}

}  // namespace

Response Host::authorizeFilter(const Filter& filter, const OptString& className,
                               const ObjectPath& path, const OptString& owner,
                               const CallOptions& o) {
    return toIndicationMI(*m_broker, m_module.get(), o, path.nameSpace,
                          [&](Request& r, CMPIIndicationMI* mi, const CMPIIndicationMIFT& ft) {
                              return ft.authorizeFilter(mi, r.context(), r.filter(filter),
                                                        r.text(className), r.reference(path),
                                                        r.text(owner));
                          });
}

Response Host::mustPoll(const Filter& filter, const OptString& className,
                        const ObjectPath& classPath, const CallOptions& o) {
    return toIndicationMI(*m_broker, m_module.get(), o, classPath.nameSpace,
                          [&](Request& r, CMPIIndicationMI* mi, const CMPIIndicationMIFT& ft) {
                              return ft.mustPoll(mi, r.context(), r.filter(filter),
                                                 r.text(className), r.reference(classPath));
                          });
}

Response Host::activateFilter(const Filter& filter, const OptString& className,
                              const ObjectPath& classPath, bool firstActivation,
                              const CallOptions& o) {
    return toIndicationMI(*m_broker, m_module.get(), o, classPath.nameSpace,
                          [&](Request& r, CMPIIndicationMI* mi, const CMPIIndicationMIFT& ft) {
                              return ft.activateFilter(mi, r.context(), r.filter(filter),
                                                       r.text(className), r.reference(classPath),
                                                       firstActivation ? 1 : 0);
                          });
}

Response Host::deActivateFilter(const Filter& filter, const OptString& className,
                                const ObjectPath& classPath, bool lastActivation,
                                const CallOptions& o) {
    return toIndicationMI(*m_broker, m_module.get(), o, classPath.nameSpace,
                          [&](Request& r, CMPIIndicationMI* mi, const CMPIIndicationMIFT& ft) {
                              return ft.deActivateFilter(mi, r.context(), r.filter(filter),
                                                         r.text(className),
                                                         r.reference(classPath),
                                                         lastActivation ? 1 : 0);
                          });
}

Response Host::enableIndications(const CallOptions& o) {
    return toIndicationMI(*m_broker, m_module.get(), o, "",
                          [&](Request& r, CMPIIndicationMI* mi, const CMPIIndicationMIFT& ft) {
                              return ft.enableIndications(mi, r.context());
                          });
}

Response Host::disableIndications(const CallOptions& o) {
    return toIndicationMI(*m_broker, m_module.get(), o, "",
                          [&](Request& r, CMPIIndicationMI* mi, const CMPIIndicationMIFT& ft) {
                              return ft.disableIndications(mi, r.context());
                          });
}

}  // namespace cmpihost

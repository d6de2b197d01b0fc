// Requests to the association MI.
#include "Dispatch.h"
#include "PropertyFilter.h"

namespace cmpihost {

using detail::dispatch;
using detail::Request;

namespace {

template <class Body>
Response toAssociationMI(detail::Broker& b, detail::ProviderModule* m, const CallOptions& o,
                         const std::string& ns, Body&& body) {
    return dispatch<CMPIAssociationMI>(b, m, MIKind::Association, o, ns,
                                       std::forward<Body>(body));
}

}  // namespace

Response Host::associators(const ObjectPath& path, const OptString& assocClass,
                           const OptString& resultClass, const OptString& role,
                           const OptString& resultRole, const PropertyList& properties,
                           const CallOptions& o) {
    return detail::filteredAnswer(toAssociationMI(
        *m_broker, m_module.get(), o, path.nameSpace,
        [&](Request& r, CMPIAssociationMI* mi, const CMPIAssociationMIFT& ft) {
            return ft.associators(mi, r.context(), r.result(), r.reference(path), r.text(assocClass),
                                  r.text(resultClass), r.text(role), r.text(resultRole),
                                  r.properties(properties));
        }),
        properties, m_broker->flavor());
}

Response Host::associatorNames(const ObjectPath& path, const OptString& assocClass,
                               const OptString& resultClass, const OptString& role,
                               const OptString& resultRole, const CallOptions& o) {
    return toAssociationMI(
        *m_broker, m_module.get(), o, path.nameSpace,
        [&](Request& r, CMPIAssociationMI* mi, const CMPIAssociationMIFT& ft) {
            return ft.associatorNames(mi, r.context(), r.result(), r.reference(path),
                                      r.text(assocClass), r.text(resultClass), r.text(role),
                                      r.text(resultRole));
        });
}

Response Host::references(const ObjectPath& path, const OptString& resultClass,
                          const OptString& role, const PropertyList& properties,
                          const CallOptions& o) {
    return detail::filteredAnswer(toAssociationMI(
        *m_broker, m_module.get(), o, path.nameSpace,
        [&](Request& r, CMPIAssociationMI* mi, const CMPIAssociationMIFT& ft) {
            return ft.references(mi, r.context(), r.result(), r.reference(path),
                                 r.text(resultClass), r.text(role), r.properties(properties));
        }),
        properties, m_broker->flavor());
}

Response Host::referenceNames(const ObjectPath& path, const OptString& resultClass,
                              const OptString& role, const CallOptions& o) {
    return toAssociationMI(
        *m_broker, m_module.get(), o, path.nameSpace,
        [&](Request& r, CMPIAssociationMI* mi, const CMPIAssociationMIFT& ft) {
            return ft.referenceNames(mi, r.context(), r.result(), r.reference(path),
                                     r.text(resultClass), r.text(role));
        });
}

}  // namespace cmpihost

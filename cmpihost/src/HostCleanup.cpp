// cleanup() of each MI kind, by request and at unload.
#include "Dispatch.h"

namespace cmpihost {

namespace detail {

namespace {

template <class MI>
CMPIStatus cleanupAs(void* real, bool passNull, const CMPIContext* ctx, bool terminating) {
    MI* mi = static_cast<MI*>(real);
    return mi->ft->cleanup(passNull ? nullptr : mi, ctx, terminating ? 1 : 0);
}

CMPIStatus callCleanup(MIKind kind, void* mi, bool passNull, const CMPIContext* ctx,
                       bool terminating) {
    switch (kind) {
    case MIKind::Instance: return cleanupAs<CMPIInstanceMI>(mi, passNull, ctx, terminating);
    case MIKind::Association: return cleanupAs<CMPIAssociationMI>(mi, passNull, ctx, terminating);
    case MIKind::Method: return cleanupAs<CMPIMethodMI>(mi, passNull, ctx, terminating);
    default: return cleanupAs<CMPIIndicationMI>(mi, passNull, ctx, terminating);
    }
}

}  // namespace

// A terminating cleanup that succeeded settles the MI; an MI that answered
// otherwise will be asked again at unload.
Response cleanupOne(Broker& broker, ProviderModule& module, MIKind kind, void* mi,
                    bool terminating, const CallOptions& options) {
    Request request(broker, options, "");
    Response r = request.finish(
        callCleanup(kind, mi, request.nullMI(), request.context(), terminating));
    if (terminating && r.ok() && !request.nullMI()) {
        module.settle(kind, mi);
    }
    return r;
}

}  // namespace detail

Response Host::cleanup(MIKind kind, bool terminating, const CallOptions& o) {
    Status failure;
    void* mi = nullptr;
    if (m_module && m_module->calls(kind) > 0) {
        mi = m_module->ensure(kind, m_broker->handle(), nullptr, failure);
    }
    if (mi == nullptr) {
        return detail::refused(m_module.get(), kind, failure);
    }
    return detail::cleanupOne(*m_broker, *m_module, kind, mi, terminating, o);
}

void Host::unload() {
    if (!m_module) {
        return;
    }
    for (const auto& pending : m_module->unsettled()) {
        detail::cleanupOne(*m_broker, *m_module, pending.first, pending.second, true, {});
    }
    m_module.reset();
}

}  // namespace cmpihost

#include "cmpihost/Host.h"

#include "Broker.h"
#include "Dispatch.h"
#include "ProviderModule.h"

namespace cmpihost {

using detail::Broker;
using detail::ProviderModule;

Host::Host(HostConfig config) : m_broker(std::make_unique<Broker>(config)) {}

Host::~Host() { unload(); }

Flavor Host::flavor() const { return m_broker->flavor(); }
void Host::setPrincipal(Principal principal) { m_broker->setPrincipal(std::move(principal)); }
ClassHierarchy& Host::classes() { return m_broker->classes(); }
InstanceRepository& Host::repository() { return m_broker->repository(); }
IndicationCollector& Host::indications() { return m_broker->indications(); }
std::vector<Upcall> Host::upcalls() const { return m_broker->upcalls(); }
void Host::clearUpcalls() { m_broker->clearUpcalls(); }
const CMPIBroker* Host::broker() const { return m_broker->handle(); }
std::size_t Host::liveObjects() const { return m_broker->liveObjects(); }
std::size_t Host::hostOwnedObjects() const { return m_broker->hostArena().size(); }

Status Host::load(const std::string& path, const std::string& providerName, LoadOptions options) {
    if (m_module) {
        return Status{CMPI_RC_ERR_FAILED, "a provider is loaded already: " + m_module->library().file()};
    }
    std::string error;
    auto library = detail::Library::open(path, options.globalSymbols, options.freshLife, error);
    if (!library) {
        return Status{CMPI_RC_ERR_FAILED, error};
    }
    auto module = std::make_unique<ProviderModule>(std::move(library), providerName);
    if (!module->hasAnyFactory()) {
        return Status{CMPI_RC_ERR_FAILED,
                      "no " + providerName + "_Create_<Kind>MI factory in " + path};
    }
    m_module = std::move(module);
    Status status;
    for (MIKind kind : {MIKind::Instance, MIKind::Association, MIKind::Method, MIKind::Indication}) {
        if (options.createAll && hasFactory(kind) && status.ok()) {
            status = createMI(kind);
        }
    }
    return status;
}

bool Host::loaded() const { return m_module != nullptr; }

bool Host::hasFactory(MIKind kind) const { return m_module && m_module->hasFactory(kind); }

std::string Host::openedFile() const { return m_module ? m_module->library().file() : ""; }

Status Host::createMI(MIKind kind, const CallOptions& o) {
    if (!m_module) {
        return Status{CMPI_RC_ERR_FAILED, "no provider loaded"};
    }
    const CMPIContext* ctx = o.isNull(Arg::Context) ? nullptr : detail::factoryContext(*m_broker);
    return m_module->create(kind, m_broker->handle(), ctx);
}

int Host::factoryCalls(MIKind kind) const { return m_module ? m_module->calls(kind) : 0; }

namespace detail {

Response refused(const ProviderModule* module, MIKind kind, const Status& failure) {
    Response r;
    if (module == nullptr) {
        r.status = Status{CMPI_RC_ERR_FAILED, "no provider loaded"};
    } else if (!failure.ok()) {
        r.status = failure;
    } else {
        r.status = Status{CMPI_RC_ERR_NOT_SUPPORTED,
                          std::string("the provider has no ") + kindName(kind) + " MI"};
    }
    return r;
}

}  // namespace detail

}  // namespace cmpihost

// CMPIBrokerFT: thread attachment, indication delivery and the client
// operations a provider may call. Instance names and instances are answered
// from the host's InstanceRepository; the other operations are not
// supported. Every call is written to the up-call log.
#include <thread>

#include "Broker.h"
#include "BrokerTables.h"
#include "ContextObject.h"
#include "EnumerationObject.h"
#include "InstanceObject.h"
#include "PathObject.h"
#include "Status.h"

namespace cmpihost::detail {

namespace {

// The broker of a call whose context must be a host-made one.
Broker* caller(const CMPIBroker* mb, const CMPIContext* ctx, const char* function,
               const CMPIObjectPath* op = nullptr) {
    Broker* b = Broker::of(mb);
    if (b == nullptr) {
        return nullptr;
    }
    PathObject* path = objectOf<PathObject>(op);
    b->recordUpcall(function, path ? path->path() : ObjectPath());
    return objectOf<ContextObject>(ctx) != nullptr ? b : nullptr;
}

CMPIContext* prepareAttachThread(const CMPIBroker* mb, const CMPIContext* ctx) {
    Broker* b = caller(mb, ctx, "prepareAttachThread");
    if (b == nullptr) {
        return nullptr;
    }
    return b->makeHostOwned<ContextObject>(objectOf<ContextObject>(ctx)->entries())->handle();
}

CMPIStatus attachThread(const CMPIBroker* mb, const CMPIContext* ctx) {
    Broker* b = caller(mb, ctx, "attachThread");
    if (b == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    b->attachThisThread();
    return status(CMPI_RC_OK);
}

CMPIStatus detachThread(const CMPIBroker* mb, const CMPIContext* ctx) {
    Broker* b = caller(mb, ctx, "detachThread");
    if (b == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    return status(b->detachThisThread() ? CMPI_RC_OK : CMPI_RC_ERR_FAILED);
}

CMPIStatus deliverIndication(const CMPIBroker* mb, const CMPIContext* ctx, const char* ns,
                             const CMPIInstance* ind) {
    InstanceObject* inst = objectOf<InstanceObject>(ind);
    Broker* b = caller(mb, ctx, "deliverIndication");
    if (b == nullptr || inst == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    if (ns == nullptr) {
        return status(CMPI_RC_ERR_INVALID_PARAMETER);
    }
    DeliveredIndication d{ns, inst->instance(), std::this_thread::get_id(),
                          b->thisThreadAttached()};
    return status(b->indications().deliver(std::move(d)));
}

// Registered instances of the class path's class (and subclasses).
std::vector<Instance> lookup(Broker& b, const CMPIObjectPath* op, CMPIrc& rc) {
    PathObject* path = objectOf<PathObject>(op);
    if (path == nullptr) {
        rc = CMPI_RC_ERR_INVALID_HANDLE;
        return {};
    }
    const ClassHierarchy& classes = b.classes();
    return b.repository().find(
        path->path().nameSpace, path->path().className,
        [&](const std::string& c, const std::string& a) { return classes.isA(c, a); }, rc);
}

CMPIEnumeration* enumerateInstanceNames(const CMPIBroker* mb, const CMPIContext* ctx,
                                        const CMPIObjectPath* op, CMPIStatus* rc) {
    Broker* b = caller(mb, ctx, "enumerateInstanceNames", op);
    CMPIrc found = CMPI_RC_ERR_INVALID_HANDLE;
    std::vector<Value> names;
    for (Instance& inst : b ? lookup(*b, op, found) : std::vector<Instance>()) {
        names.push_back(Value::ref(std::move(inst.path)));
    }
    setStatus(rc, found);
    return found == CMPI_RC_OK ? b->make<EnumerationObject>(CMPI_ref, std::move(names))->handle()
                               : nullptr;
}

CMPIEnumeration* enumerateInstances(const CMPIBroker* mb, const CMPIContext* ctx,
                                    const CMPIObjectPath* op, const char**, CMPIStatus* rc) {
    Broker* b = caller(mb, ctx, "enumerateInstances", op);
    CMPIrc found = CMPI_RC_ERR_INVALID_HANDLE;
    std::vector<Value> instances;
    for (Instance& inst : b ? lookup(*b, op, found) : std::vector<Instance>()) {
        instances.push_back(Value::instance(std::move(inst)));
    }
    setStatus(rc, found);
    return found == CMPI_RC_OK
               ? b->make<EnumerationObject>(CMPI_instance, std::move(instances))->handle()
               : nullptr;
}

// The client operations the host does not serve: logged, then answered
// with CMPI_RC_ERR_NOT_SUPPORTED.
void unsupported(const CMPIBroker* mb, const char* function, const CMPIObjectPath* op,
                 CMPIStatus* rc) {
    Broker* b = Broker::of(mb);
    PathObject* path = objectOf<PathObject>(op);
    if (b != nullptr) {
        b->recordUpcall(function, path ? path->path() : ObjectPath());
    }
    setStatus(rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

CMPIInstance* getInstance(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                          const char**, CMPIStatus* rc) {
    unsupported(mb, "getInstance", op, rc);
    return nullptr;
}
CMPIObjectPath* createInstance(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                               const CMPIInstance*, CMPIStatus* rc) {
    unsupported(mb, "createInstance", op, rc);
    return nullptr;
}
CMPIStatus modifyInstance(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                          const CMPIInstance*, const char**) {
    unsupported(mb, "modifyInstance", op, nullptr);
    return status(CMPI_RC_ERR_NOT_SUPPORTED);
}
CMPIStatus deleteInstance(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op) {
    unsupported(mb, "deleteInstance", op, nullptr);
    return status(CMPI_RC_ERR_NOT_SUPPORTED);
}
CMPIEnumeration* execQuery(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                           const char*, const char*, CMPIStatus* rc) {
    unsupported(mb, "execQuery", op, rc);
    return nullptr;
}
CMPIEnumeration* associators(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                             const char*, const char*, const char*, const char*, const char**,
                             CMPIStatus* rc) {
    unsupported(mb, "associators", op, rc);
    return nullptr;
}
CMPIEnumeration* associatorNames(const CMPIBroker* mb, const CMPIContext*,
                                 const CMPIObjectPath* op, const char*, const char*, const char*,
                                 const char*, CMPIStatus* rc) {
    unsupported(mb, "associatorNames", op, rc);
    return nullptr;
}
CMPIEnumeration* references(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                            const char*, const char*, const char**, CMPIStatus* rc) {
    unsupported(mb, "references", op, rc);
    return nullptr;
}
CMPIEnumeration* referenceNames(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                                const char*, const char*, CMPIStatus* rc) {
    unsupported(mb, "referenceNames", op, rc);
    return nullptr;
}
CMPIData invokeMethod(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                      const char*, const CMPIArgs*, CMPIArgs*, CMPIStatus* rc) {
    unsupported(mb, "invokeMethod", op, rc);
    return nullData(CMPI_null, CMPI_notFound);
}
CMPIStatus setProperty(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                       const char*, const CMPIValue*, CMPIType) {
    unsupported(mb, "setProperty", op, nullptr);
    return status(CMPI_RC_ERR_NOT_SUPPORTED);
}
CMPIData getProperty(const CMPIBroker* mb, const CMPIContext*, const CMPIObjectPath* op,
                     const char*, CMPIStatus* rc) {
    unsupported(mb, "getProperty", op, rc);
    return nullData(CMPI_null, CMPI_notFound);
}

// What the real brokers report: OpenPegasus 2.14.4 0x81FF (no query execution
// in that build), sfcb 1.4.10 0x1BF.
constexpr unsigned kPegasusCapabilities =
    CMPI_MB_Supports_Extended_Error | CMPI_MB_InstanceManipulation | CMPI_MB_AssociationTraversal |
    CMPI_MB_QueryNormalization | CMPI_MB_Indications | CMPI_MB_BasicQualifierSupport |
    CMPI_MB_OSEncapsulationSupport;
constexpr unsigned kSfcbCapabilities = CMPI_MB_Class_2 | CMPI_MB_AssociationTraversal |
                                       CMPI_MB_QueryExecution | CMPI_MB_QueryNormalization |
                                       CMPI_MB_Indications | CMPI_MB_OSEncapsulationSupport;

#define VEX_HOST_BROKER_FT(caps, version, name)                                                 \
    {caps, version, name, prepareAttachThread, attachThread, detachThread, deliverIndication, \
     enumerateInstanceNames, getInstance, createInstance, modifyInstance, deleteInstance,     \
     execQuery, enumerateInstances, associators, associatorNames, references, referenceNames, \
     invokeMethod, setProperty, getProperty}

CMPIBrokerFT g_pegasus = VEX_HOST_BROKER_FT(kPegasusCapabilities, CMPIVersion200, "Pegasus");
// sfcb 1.4 reports brokerVersion 0 and calls its broker "RequestHandler".
CMPIBrokerFT g_sfcb = VEX_HOST_BROKER_FT(kSfcbCapabilities, 0, "RequestHandler");

#undef VEX_HOST_BROKER_FT

}  // namespace

CMPIBrokerFT* brokerServices(Flavor flavor) {
    return flavor == Flavor::Sfcb14 ? &g_sfcb : &g_pegasus;
}

}  // namespace cmpihost::detail

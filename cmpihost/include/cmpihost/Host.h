// Host: an in-process CIMOM for one CMPI provider.
//
// The host owns a CMPI broker (imitating OpenPegasus 2.14 or sfcb 1.4, see
// HostConfig), loads a provider shared object, calls its MI factories and
// sends it requests as plain method calls. Every request runs with its own
// memory arena: whatever the broker makes for it (context, result, the
// provider's new strings, instances, ...) is released when the call
// returns, and what the provider handed back is already converted to host
// values in the Response. Objects made outside any request (by an unattached
// provider thread, clones, contexts from prepareAttachThread) belong to the
// host until they are released or the host is destroyed.
//
// Requests may be issued from many threads at once. Configuration (flavor)
// is fixed at construction; principal, class hierarchy, repository and
// indication collector may be changed at any time.
//
//   cmpihost::Host host(cmpihost::HostConfig::sfcb14());
//   host.load("/path/libProv.so", "Prov");
//   auto r = host.enumerateInstances("root/ns", "Prov_Class");
#ifndef CMPIHOST_HOST_H
#define CMPIHOST_HOST_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cmpihost/CallOptions.h"
#include "cmpihost/ClassHierarchy.h"
#include "cmpihost/HostConfig.h"
#include "cmpihost/IndicationCollector.h"
#include "cmpihost/Instance.h"
#include "cmpihost/InstanceRepository.h"
#include "cmpihost/ObjectPath.h"
#include "cmpihost/Response.h"
#include "cmpihost/Status.h"
#include "cmpihost/Upcall.h"
#include "cmpihost/Value.h"

namespace cmpihost {

namespace detail {
class Broker;
class ProviderModule;
}  // namespace detail

enum class MIKind { Instance, Association, Method, Indication };

struct LoadOptions {
    // dlopen with RTLD_GLOBAL (as sfcb does) instead of RTLD_LOCAL.
    bool globalSymbols = false;
    // dlopen a private copy of the file, so that this load gets its own,
    // fresh static state even if the same file is loaded elsewhere in the
    // process. The copy is removed at unload.
    bool freshLife = false;
    // Call every factory the provider exports right away; otherwise each MI
    // is created by the first request that needs it (or by createMI).
    bool createAll = false;
};

using OptString = std::optional<std::string>;
using PropertyList = std::optional<std::vector<std::string>>;

// An indication filter as the provider sees it: a CMPISelectExp.
struct Filter {
    std::string query;
    std::string language = "WQL";
};

class Host {
public:
    explicit Host(HostConfig config = {});
    // Unloads the provider (see unload).
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    // --- environment -----------------------------------------------------
    Flavor flavor() const;
    void setPrincipal(Principal principal);
    ClassHierarchy& classes();
    InstanceRepository& repository();
    IndicationCollector& indications();
    // Every CMPIBrokerFT call the provider made, in order.
    std::vector<Upcall> upcalls() const;
    void clearUpcalls();
    const CMPIBroker* broker() const;

    // Host-made CMPI objects alive now; those owned by the host itself
    // (not by a request or an attached thread).
    std::size_t liveObjects() const;
    std::size_t hostOwnedObjects() const;

    // --- provider --------------------------------------------------------
    // Loads the shared object and looks up <providerName>_Create_<Kind>MI.
    // On failure rc is CMPI_RC_ERR_FAILED with the loader's message.
    Status load(const std::string& path, const std::string& providerName, LoadOptions options = {});
    // Calls cleanup(terminating = true) on every MI not yet cleaned up, then
    // dlcloses the provider. Requests must have finished.
    void unload();
    bool loaded() const;
    bool hasFactory(MIKind kind) const;
    // The file actually opened (the private copy for a fresh life).
    std::string openedFile() const;
    // Calls the factory once more (safe from many threads at once); the MI
    // it returns serves the following requests of its kind.
    Status createMI(MIKind kind, const CallOptions& options = {});
    // Number of factory calls that returned an MI, for this kind.
    int factoryCalls(MIKind kind) const;

    // --- instance MI -----------------------------------------------------
    Response enumerateInstanceNames(const ObjectPath& classPath, const CallOptions& o = {});
    Response enumerateInstances(const ObjectPath& classPath, const PropertyList& properties = {},
                                const CallOptions& o = {});
    Response getInstance(const ObjectPath& path, const PropertyList& properties = {},
                         const CallOptions& o = {});
    Response createInstance(const ObjectPath& classPath, const Instance& instance,
                            const CallOptions& o = {});
    Response modifyInstance(const ObjectPath& path, const Instance& instance,
                            const PropertyList& properties, const CallOptions& o = {});
    Response deleteInstance(const ObjectPath& path, const CallOptions& o = {});
    Response execQuery(const ObjectPath& classPath, const OptString& query,
                       const OptString& language, const CallOptions& o = {});

    // --- association MI --------------------------------------------------
    Response associators(const ObjectPath& path, const OptString& assocClass,
                         const OptString& resultClass, const OptString& role,
                         const OptString& resultRole, const PropertyList& properties = {},
                         const CallOptions& o = {});
    Response associatorNames(const ObjectPath& path, const OptString& assocClass,
                             const OptString& resultClass, const OptString& role,
                             const OptString& resultRole, const CallOptions& o = {});
    Response references(const ObjectPath& path, const OptString& resultClass,
                        const OptString& role, const PropertyList& properties = {},
                        const CallOptions& o = {});
    Response referenceNames(const ObjectPath& path, const OptString& resultClass,
                            const OptString& role, const CallOptions& o = {});

    // --- method MI -------------------------------------------------------
    // The return value is Response::returnValue(), the out arguments
    // Response::outArgs.
    Response invokeMethod(const ObjectPath& path, const OptString& method,
                          const NamedValues& in = {}, const CallOptions& o = {});

    // --- indication MI ---------------------------------------------------
    Response authorizeFilter(const Filter& filter, const OptString& className,
                             const ObjectPath& path, const OptString& owner,
                             const CallOptions& o = {});
    Response mustPoll(const Filter& filter, const OptString& className,
                      const ObjectPath& classPath, const CallOptions& o = {});
    Response activateFilter(const Filter& filter, const OptString& className,
                            const ObjectPath& classPath, bool firstActivation,
                            const CallOptions& o = {});
    Response deActivateFilter(const Filter& filter, const OptString& className,
                              const ObjectPath& classPath, bool lastActivation,
                              const CallOptions& o = {});
    Response enableIndications(const CallOptions& o = {});
    Response disableIndications(const CallOptions& o = {});

    // --- every MI --------------------------------------------------------
    // With terminating true and rc OK the MI counts as cleaned up and unload
    // will not clean it up again.
    Response cleanup(MIKind kind, bool terminating, const CallOptions& o = {});

    // --- direct use of the broker ---------------------------------------
    // Runs body as a request (with its own arena and context): for driving
    // the broker's objects directly, e.g. to test conversion code.
    void runInRequest(const std::function<void(const CMPIBroker*, const CMPIContext*)>& body,
                      const CallOptions& o = {});
    // Host values -> new CMPI objects of the current request (or owned by
    // the host when called outside one).
    CMPIObjectPath* makePath(const ObjectPath& path);
    CMPIInstance* makeInstance(const Instance& instance);
    CMPIArgs* makeArgs(const NamedValues& args);
    // CMPI data -> host values; the handles must be the host's own
    // (std::invalid_argument otherwise).
    static Value readData(const CMPIData& data);
    static ObjectPath readPath(const CMPIObjectPath* path);
    static Instance readInstance(const CMPIInstance* instance);
    static NamedValues readArgs(const CMPIArgs* args);

private:
    std::unique_ptr<detail::Broker> m_broker;
    std::unique_ptr<detail::ProviderModule> m_module;
};

}  // namespace cmpihost

#endif

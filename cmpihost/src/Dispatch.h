// dispatch: the common shape of every request - find (or make) the MI of
// the kind, open a Request, call the MI function through its table, and
// collect the Response.
#ifndef CMPIHOST_SRC_DISPATCH_H
#define CMPIHOST_SRC_DISPATCH_H

#include <string>

#include "Broker.h"
#include "ContextObject.h"
#include "ProviderModule.h"
#include "Request.h"
#include "cmpihost/Host.h"

namespace cmpihost::detail {

// The context given to a factory: owned by the host, since a provider may
// keep it.
inline const CMPIContext* factoryContext(Broker& broker) {
    return newRequestContext(broker, broker.principal(), 0, "", {}, true)->handle();
}

// The answer when there is no MI to send a request to.
Response refused(const ProviderModule* module, MIKind kind, const Status& failure);

// body(Request&, MI* passed (NULL when CallOptions say so), const MIFT&)
// returns the MI function's CMPIStatus.
template <class MI, class Body>
Response dispatch(Broker& broker, ProviderModule* module, MIKind kind, const CallOptions& options,
                  const std::string& nameSpace, Body&& body) {
    Status failure;
    void* found = module ? module->ensure(kind, broker.handle(),
                                          [&] { return factoryContext(broker); }, failure)
                         : nullptr;
    if (found == nullptr) {
        return refused(module, kind, failure);
    }
    MI* mi = static_cast<MI*>(found);
    Request request(broker, options, nameSpace);
    return request.finish(body(request, request.nullMI() ? nullptr : mi, *mi->ft));
}

}  // namespace cmpihost::detail

#endif

// Request: one call into a provider. It owns the request's arena (current on
// the calling thread while it lives), makes the context, result and
// argument objects the MI function receives - NULL or hollow where the
// CallOptions say so - and turns the outcome into a Response.
#ifndef CMPIHOST_SRC_REQUEST_H
#define CMPIHOST_SRC_REQUEST_H

#include <cmpift.h>

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "Arena.h"
#include "cmpihost/Host.h"

namespace cmpihost::detail {

class ArgsObject;
class Broker;
class ContextObject;
class ResultObject;

class Request {
public:
    Request(Broker& broker, const CallOptions& options, const std::string& nameSpace);
    ~Request();
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;

    const CMPIContext* context();
    const CMPIResult* result();
    const CMPIObjectPath* reference(const ObjectPath& path);
    const CMPIInstance* instance(const Instance& instance);
    const CMPIArgs* inArgs(const NamedValues& args);
    CMPIArgs* outArgs();
    const CMPISelectExp* filter(const Filter& filter);
    // NULL for std::nullopt; otherwise a NULL-terminated list that lives as
    // long as the request.
    const char** properties(const PropertyList& list);
    const char* text(const OptString& text);
    bool nullMI() const { return m_options.isNull(Arg::MI); }

    // The status copied out, plus what went through the result and the
    // out arguments.
    Response finish(const CMPIStatus& status);

private:
    template <class Face>
    Face* pass(Arg arg, Face* real);

    Broker& m_broker;
    const CallOptions m_options;
    Response m_response;  // outlives the arena: the result object writes into it
    Arena m_arena;
    ArenaScope m_scope;
    ContextObject* m_context;
    ResultObject* m_result;
    ArgsObject* m_out = nullptr;
    std::deque<std::string> m_texts;
    std::deque<std::vector<const char*>> m_lists;
    std::vector<std::shared_ptr<void>> m_hollow;
};

// The entries every request context starts with: "CMPIPrincipal" (as the
// principal says), "CMPIInvocationFlags", "CMPIInitNameSpace", then the
// extra ones.
ContextObject* newRequestContext(Broker& broker, const Principal& principal, CMPIFlags flags,
                                 const std::string& nameSpace, const NamedValues& extra,
                                 bool hostOwned);

}  // namespace cmpihost::detail

#endif

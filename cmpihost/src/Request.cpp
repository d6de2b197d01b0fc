#include "Request.h"

#include "ArgsObject.h"
#include "Broker.h"
#include "ContextObject.h"
#include "InstanceObject.h"
#include "PathObject.h"
#include "ResultObject.h"
#include "SelectExpObject.h"
#include "StringObject.h"

namespace cmpihost::detail {

ContextObject* newRequestContext(Broker& broker, const Principal& principal, CMPIFlags flags,
                                 const std::string& nameSpace, const NamedValues& extra,
                                 bool hostOwned) {
    std::vector<ContextObject::Entry> entries;
    if (principal.kind == Principal::Kind::Name) {
        entries.push_back({CMPIPrincipal, Value::string(principal.name), false});
    } else if (principal.kind == Principal::Kind::NullChars) {
        entries.push_back({CMPIPrincipal, Value::null(CMPI_string), true});
    }
    entries.push_back({CMPIInvocationFlags, Value::uint32(flags), false});
    entries.push_back({CMPIInitNameSpace, Value::string(nameSpace), false});
    for (const NamedValue& e : extra) {
        entries.push_back({e.name, e.value, false});
    }
    return hostOwned ? broker.makeHostOwned<ContextObject>(std::move(entries))
                     : broker.make<ContextObject>(std::move(entries));
}

Request::Request(Broker& broker, const CallOptions& options, const std::string& nameSpace)
    : m_broker(broker), m_options(options), m_arena(broker.id()), m_scope(m_arena) {
    const Principal principal = options.principal ? *options.principal : broker.principal();
    m_context = newRequestContext(broker, principal, options.invocationFlags, nameSpace,
                                  options.contextEntries, false);
    m_context->pin();
    m_result = broker.make<ResultObject>(m_response);
    m_result->pin();
}

Request::~Request() = default;

template <class Face>
Face* Request::pass(Arg arg, Face* real) {
    if (m_options.isNull(arg)) {
        return nullptr;
    }
    if (m_options.isHollow(arg)) {
        auto hollow = std::make_shared<Face>(Face{nullptr, real->ft});
        m_hollow.push_back(hollow);
        return hollow.get();
    }
    return real;
}

const CMPIContext* Request::context() { return pass(Arg::Context, m_context->handle()); }

const CMPIResult* Request::result() { return pass(Arg::Result, m_result->handle()); }

const CMPIObjectPath* Request::reference(const ObjectPath& path) {
    PathObject* p = m_broker.make<PathObject>(path);
    p->pin();
    return pass(Arg::Reference, p->handle());
}

const CMPIInstance* Request::instance(const Instance& instance) {
    InstanceObject* i = m_broker.make<InstanceObject>(instance);
    i->pin();
    return pass(Arg::Instance, i->handle());
}

const CMPIArgs* Request::inArgs(const NamedValues& args) {
    ArgsObject* a = m_broker.make<ArgsObject>(args);
    a->pin();
    return pass(Arg::InArgs, a->handle());
}

CMPIArgs* Request::outArgs() {
    m_out = m_broker.make<ArgsObject>(NamedValues());
    m_out->pin();
    return pass(Arg::OutArgs, m_out->handle());
}

const CMPISelectExp* Request::filter(const Filter& filter) {
    SelectExpObject* f = m_broker.make<SelectExpObject>(filter.query, filter.language);
    f->pin();
    return pass(Arg::Filter, f->handle());
}

const char** Request::properties(const PropertyList& list) {
    if (!list) {
        return nullptr;
    }
    std::vector<const char*>& pointers = m_lists.emplace_back();
    for (const std::string& name : *list) {
        pointers.push_back(m_texts.emplace_back(name).c_str());
    }
    pointers.push_back(nullptr);
    return pointers.data();
}

const char* Request::text(const OptString& text) {
    return text ? m_texts.emplace_back(*text).c_str() : nullptr;
}

Response Request::finish(const CMPIStatus& status) {
    m_response.status.rc = status.rc;
    m_response.status.message = status.msg ? stringText(status.msg) : std::nullopt;
    if (m_out != nullptr) {
        m_response.outArgs = m_out->args();
    }
    return std::move(m_response);
}

}  // namespace cmpihost::detail

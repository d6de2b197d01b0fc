// ai, ain, ri and rin: the association operations. As an object manager
// does, vexraid asks each registered association class that can link the
// source object, one after the other, naming it in the request (OpenPegasus);
// with --cimom sfcb the provider is asked once, with the association class as
// the client gave it (none, or a DMTF superclass), as sfcb does.
#include <memory>
#include <optional>

#include "BuiltinSchema.h"
#include "Commands.h"
#include "Gathered.h"
#include "PathText.h"
#include "Routing.h"

namespace vexraid {

namespace {

using cmpihost::ObjectPath;
using cmpihost::OptString;

struct Query {
    std::string source;
    OptString assocClass;  // for references: the association class filter (ResultClass)
    OptString resultClass;
    OptString role;
    OptString resultRole;
    std::vector<std::string> properties;
};

enum class Kind { Associators, AssociatorNames, References, ReferenceNames };

cmpihost::Response ask(Session& session, Kind kind, const ObjectPath& source, const OptString& assoc,
                       const Query& q) {
    const cmpihost::PropertyList props = q.properties.empty() ? cmpihost::PropertyList() : cmpihost::PropertyList(q.properties);
    cmpihost::Host& host = session.host();
    switch (kind) {
        case Kind::Associators: return host.associators(source, assoc, q.resultClass, q.role, q.resultRole, props);
        case Kind::AssociatorNames: return host.associatorNames(source, assoc, q.resultClass, q.role, q.resultRole);
        case Kind::References: return host.references(source, assoc, q.role, props);
        default: return host.referenceNames(source, assoc, q.role);
    }
}

void addQuery(CLI::App& app, Cli& cli, const char* name, Kind kind, const char* description) {
    auto q = std::make_shared<Query>();
    CLI::App* sub = app.add_subcommand(name, description);
    sub->add_option("path", q->source, "source object [namespace:]Class.Key=\"value\",...")->required();
    const bool associators = kind == Kind::Associators || kind == Kind::AssociatorNames;
    sub->add_option(associators ? "-a,--assoc-class" : "-r,--result-class", q->assocClass,
                    "only associations of this class (or derived from it)");
    sub->add_option("--role", q->role, "the source's role in the association");
    if (associators) {
        sub->add_option("-r,--result-class", q->resultClass, "only results of this class");
        sub->add_option("--result-role", q->resultRole, "the result's role in the association");
    }
    if (kind == Kind::Associators || kind == Kind::References) {
        sub->add_option("-p,--property", q->properties, "only these properties")->delimiter(',');
    }
    sub->callback([&cli, q, kind] {
        const ObjectPath source = parseObjectPath(q->source, cli.options.nameSpace);
        const std::vector<std::string> classes =
            associationClasses(vex::mof::builtinSchema(), source, q->assocClass, q->role);
        const bool once = cli.options.cimom == "sfcb";
        cli.action = [source, classes, q, kind, once](Session& session, Printer& printer) {
            Gathered all;
            if (once && !classes.empty()) {
                all.add(q->assocClass.value_or(classes.front()), ask(session, kind, source, q->assocClass, *q));
            }
            for (const std::string& cls : classes) {
                if (!once) all.add(cls, ask(session, kind, source, cls, *q));
            }
            if (kind == Kind::Associators || kind == Kind::References) {
                printer.instances(all.instances);
            } else {
                printer.paths(all.paths);
            }
            return all.exitCode();
        };
    });
}

}  // namespace

void addAssociationCommands(CLI::App& app, Cli& cli) {
    addQuery(app, cli, "ai", Kind::Associators, "instances associated with an object");
    addQuery(app, cli, "ain", Kind::AssociatorNames, "paths of the instances associated with an object");
    addQuery(app, cli, "ri", Kind::References, "association instances that refer to an object");
    addQuery(app, cli, "rin", Kind::ReferenceNames, "paths of the association instances that refer to an object");
}

}  // namespace vexraid

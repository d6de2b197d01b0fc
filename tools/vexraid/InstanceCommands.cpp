// ei, ein, gi and mi: the instance operations.
#include <memory>

#include "BuiltinSchema.h"
#include "Commands.h"
#include "Errors.h"
#include "Gathered.h"
#include "PathText.h"
#include "Routing.h"
#include "SchemaTypes.h"
#include "TypedValue.h"

namespace vexraid {

namespace {

using cmpihost::ObjectPath;
using vex::mof::builtinSchema;

struct Target {
    std::string text;
    std::vector<std::string> properties;
};

cmpihost::PropertyList propertyList(const std::vector<std::string>& names) {
    return names.empty() ? cmpihost::PropertyList() : cmpihost::PropertyList(names);
}

void addEnumerate(CLI::App& app, Cli& cli, const char* name, bool namesOnly) {
    auto target = std::make_shared<Target>();
    CLI::App* sub = app.add_subcommand(name, namesOnly ? "enumerate instance names of a class"
                                                       : "enumerate instances of a class (of a DMTF class: "
                                                         "of every provider class derived from it)");
    sub->add_option("class", target->text, "[namespace:]Class")->required();
    if (!namesOnly) sub->add_option("-p,--property", target->properties, "only these properties")->delimiter(',');
    sub->callback([&cli, target, namesOnly] {
        const ObjectPath classPath = parseClassPath(target->text, cli.options.nameSpace);
        const std::vector<std::string> classes = enumerationClasses(builtinSchema(), classPath);
        cli.action = [classPath, classes, target, namesOnly](Session& session, Printer& printer) {
            Gathered all;
            for (const std::string& cls : classes) {
                const ObjectPath path(classPath.nameSpace, cls);
                all.add(cls, namesOnly ? session.host().enumerateInstanceNames(path)
                                       : session.host().enumerateInstances(path, propertyList(target->properties)));
            }
            if (namesOnly) printer.paths(all.paths); else printer.instances(all.instances);
            return all.exitCode();
        };
    });
}

void addGet(CLI::App& app, Cli& cli) {
    auto target = std::make_shared<Target>();
    CLI::App* sub = app.add_subcommand("gi", "get one instance");
    sub->add_option("path", target->text, "[namespace:]Class.Key=\"value\",...")->required();
    sub->add_option("-p,--property", target->properties, "only these properties")->delimiter(',');
    sub->callback([&cli, target] {
        const ObjectPath path = parseObjectPath(target->text, cli.options.nameSpace);
        requireServedClass(builtinSchema(), path);
        cli.action = [path, target](Session& session, Printer& printer) {
            const cmpihost::Response r = session.host().getInstance(path, propertyList(target->properties));
            requireOk(r);
            if (r.instances.empty()) throw CimError(CMPI_RC_ERR_NOT_FOUND, "no instance " + pathText(path));
            printer.instance(r.instances.front());
            return 0;
        };
    });
}

// The type of an untyped value: that of the property as the instance has
// it now, else as the schema declares it.
CMPIType typeFor(const Assignment& a, const cmpihost::Instance& current, const vex::mof::ClassDecl& cls) {
    if (a.type) return *a.type;
    const cmpihost::Value* now = current.property(a.name);
    if (now != nullptr && now->type() != CMPI_null) return now->type();
    if (const vex::mof::Property* declared = cls.property(a.name)) return cmpiTypeOf(*declared);
    throw UsageError(cls.name + " has no property " + a.name + "; write " + a.name + "=type:value");
}

struct Modification {
    std::string text;
    std::vector<std::string> assignments;
};

void addModify(CLI::App& app, Cli& cli) {
    auto m = std::make_shared<Modification>();
    CLI::App* sub = app.add_subcommand("mi", "modify properties of an instance (Prop=[type:]value ...)");
    sub->add_option("path", m->text, "[namespace:]Class.Key=\"value\",...")->required();
    sub->add_option("properties", m->assignments, "Prop=value or Prop=type:value")->required();
    sub->callback([&cli, m] {
        const ObjectPath path = parseObjectPath(m->text, cli.options.nameSpace);
        const vex::mof::ClassDecl& cls = requireServedClass(builtinSchema(), path);
        std::vector<Assignment> changes;
        for (const std::string& text : m->assignments) changes.push_back(parseAssignment(text));
        cli.action = [path, &cls, changes](Session& session, Printer& printer) {
            cmpihost::Response current = session.host().getInstance(path);
            requireOk(current);
            cmpihost::Instance changed(path);
            std::vector<std::string> names;
            for (const Assignment& a : changes) {
                const CMPIType type = typeFor(a, current.instances.empty() ? changed : current.instances.front(), cls);
                changed.set(a.name, valueFromText(type, a.text, path.nameSpace));
                names.push_back(a.name);
            }
            requireOk(session.host().modifyInstance(path, changed, names));
            if (!printer.json()) printer.out() << "modified " << pathText(path) << "\n";
            return 0;
        };
    });
}

}  // namespace

void addInstanceCommands(CLI::App& app, Cli& cli) {
    addEnumerate(app, cli, "ei", false);
    addEnumerate(app, cli, "ein", true);
    addGet(app, cli);
    addModify(app, cli);
}

}  // namespace vexraid

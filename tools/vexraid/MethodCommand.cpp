// cm: invokes an extrinsic method with typed arguments, and with --follow
// shows the progress of the job it starts.
#include <unistd.h>

#include <iostream>
#include <memory>

#include "BuiltinSchema.h"
#include "Commands.h"
#include "Errors.h"
#include "Jobs.h"
#include "PathText.h"
#include "Routing.h"
#include "SchemaTypes.h"
#include "TypedValue.h"

namespace vexraid {

namespace {

using cmpihost::ObjectPath;

struct Call {
    std::string path;
    std::string method;
    std::vector<std::string> arguments;
    bool follow = false;
    double wait = 10;
};

// An argument as the method receives it: written with a type, or typed as
// the schema declares the parameter.
cmpihost::NamedValue argumentOf(const std::string& text, const vex::mof::Method& method, const std::string& ns) {
    const Assignment a = parseAssignment(text);
    CMPIType type = CMPI_null;
    if (a.type) {
        type = *a.type;
    } else if (const vex::mof::Parameter* p = method.parameter(a.name)) {
        type = cmpiTypeOf(p->type);
    } else {
        throw UsageError("method " + method.name + " has no parameter " + a.name + "; write " + a.name + "=type:value");
    }
    return {a.name, valueFromText(type, a.text, ns)};
}

// Jobs the method named in its output arguments (references to a job class).
std::vector<ObjectPath> jobsNamed(const cmpihost::NamedValues& outArgs, const vex::mof::ProviderSchema& schema) {
    std::vector<ObjectPath> jobs;
    for (const cmpihost::NamedValue& arg : outArgs) {
        if (arg.value.type() == CMPI_ref && !arg.value.isNull() &&
            schema.isA(arg.value.asRef().className, "CIM_ConcreteJob")) {
            jobs.push_back(arg.value.asRef());
        }
    }
    return jobs;
}

int follow(Session& session, const std::set<std::string>& before, const cmpihost::NamedValues& outArgs, double wait) {
    std::vector<ObjectPath> jobs = jobsNamed(outArgs, session.schema());
    if (jobs.empty()) jobs = newJobs(session, before, wait);
    if (jobs.empty()) {
        std::cerr << "vexraid: no job started within " << wait << " s\n";
        return 0;
    }
    FollowOptions options;
    options.terminal = isatty(STDERR_FILENO) != 0;
    return followJobs(session, jobs, options, std::cerr);
}

}  // namespace

void addMethodCommand(CLI::App& app, Cli& cli) {
    auto call = std::make_shared<Call>();
    CLI::App* sub = app.add_subcommand("cm", "invoke a method: cm PATH Method [Name=[type:]value ...]");
    sub->add_option("path", call->path, "target [namespace:]Class.Key=\"value\",...")->required();
    sub->add_option("method", call->method, "method name")->required();
    sub->add_option("arguments", call->arguments, "Name=type:value (type optional where the schema declares it)");
    sub->add_flag("-f,--follow", call->follow, "show the progress of the job the method starts");
    sub->add_option("--wait", call->wait, "seconds to wait for that job to appear")->capture_default_str();
    sub->callback([&cli, call] {
        const ObjectPath path = parseObjectPath(call->path, cli.options.nameSpace);
        const vex::mof::Method& method = requireMethod(requireServedClass(vex::mof::builtinSchema(), path), call->method);
        cmpihost::NamedValues in;
        for (const std::string& text : call->arguments) in.push_back(argumentOf(text, method, path.nameSpace));
        cli.action = [path, in, call](Session& session, Printer& printer) {
            const std::set<std::string> before = call->follow ? pathTexts(runningJobs(session)) : std::set<std::string>{};
            const cmpihost::Response r = session.host().invokeMethod(path, call->method, in);
            requireOk(r);
            printer.methodResult(r.returnValue(), r.outArgs);
            return call->follow ? follow(session, before, r.outArgs, call->wait) : 0;
        };
    });
}

}  // namespace vexraid

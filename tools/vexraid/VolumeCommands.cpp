// The everyday storage tasks by name, each one controller routine through
// the provider: volume create/delete, spare assign/remove, verify, locate.
// A refusal prints what the return code means and exits with 2. Return codes
// other than 0, 5, 6, 24 and 25 reach a client only as CIM_ERR_FAILED.
#include <unistd.h>

#include <iostream>
#include <memory>
#include <sstream>

#include "Commands.h"
#include "Errors.h"
#include "Jobs.h"

namespace vexraid {

namespace {

using cmpihost::NamedValues;
using cmpihost::ObjectPath;
using cmpihost::Value;

constexpr int kRefusedExit = 2;

// What a completed call's return code tells an administrator.
const char* refusalText(std::uint64_t code) {
    switch (code) {
    case 5: return "the provider cannot reach the controllers";
    case 6: return "the controller refused the request (the drive or logical drive is in use, busy, or "
                   "in a state that forbids it)";
    default: return "the operation failed";
    }
}

ObjectPath controllerPath(unsigned int controller, const std::string& ns) {
    ObjectPath path(ns, "VEX_ControllerComputerSystem");
    path.addKey("CreationClassName", Value::string("VEX_ControllerComputerSystem"));
    path.addKey("Name", Value::string("vexController_" + std::to_string(controller)));
    return path;
}

ObjectPath extentPath(const std::string& drive, const std::string& ns) {
    ObjectPath path(ns, "VEX_PrimordialStorageExtent");
    path.addKey("DeviceID", Value::string(drive));
    return path;
}

ObjectPath poolPath(const std::string& pool, const std::string& ns) {
    ObjectPath path(ns, "VEX_ConcreteStoragePool");
    path.addKey("InstanceID", Value::string(pool));
    return path;
}

// The controller number of a "c_ch_d" or "c_l" identifier.
unsigned int controllerOf(const std::string& id) {
    const std::size_t end = id.find('_');
    if (id.empty() || end == 0 || id.find_first_not_of("0123456789_") != std::string::npos) {
        throw UsageError("malformed identifier " + id + " (drives: controller_channel_device, "
                         "logical drives: controller_id)");
    }
    return static_cast<unsigned int>(std::stoul(id.substr(0, end)));
}

std::vector<std::string> splitList(const std::string& text) {
    std::vector<std::string> items;
    std::stringstream in(text);
    for (std::string item; std::getline(in, item, ',');) {
        if (!item.empty()) items.push_back(item);
    }
    return items;
}

Value textArray(const std::vector<std::string>& items) {
    Value::Array values;
    for (const std::string& item : items) values.push_back(Value::string(item));
    return Value::array(CMPI_string, values);
}

struct Task {
    std::string routine;
    NamedValues in;
    ObjectPath target;
    bool follow = false;
};

// Runs the routine; prints its result, or the refusal; with follow, the job it starts.
int run(Session& session, Printer& printer, const Task& task) {
    const std::set<std::string> before = task.follow ? pathTexts(runningJobs(session)) : std::set<std::string>{};
    const cmpihost::Response r = session.host().invokeMethod(task.target, task.routine, task.in);
    if (r.status.rc == CMPI_RC_ERR_FAILED) {
        // Return values other than 0, 5, 6, 24 and 25 reach a client as this failure.
        std::cerr << "vexraid: " << task.routine << " refused: the request is malformed or the controller cannot "
                     "satisfy it (not enough drives or space, a migration it does not offer, a missing value; "
                     "the provider log tells which)\n";
        return kRefusedExit;
    }
    requireOk(r);
    const std::uint64_t code = r.returnValue().isNull() ? 0 : r.returnValue().asUnsigned();
    printer.methodResult(r.returnValue(), r.outArgs);
    if (code != 0) {
        std::cerr << "vexraid: " << task.routine << " refused: " << refusalText(code) << " (code " << code << ")\n";
        return kRefusedExit;
    }
    if (!task.follow) return 0;
    const std::vector<ObjectPath> jobs = newJobs(session, before, 10);
    if (jobs.empty()) {
        std::cerr << "vexraid: no job started within 10 s\n";
        return 0;
    }
    FollowOptions options;
    options.terminal = isatty(STDERR_FILENO) != 0;
    return followJobs(session, jobs, options, std::cerr);
}

void deferred(CLI::App* sub, Cli& cli, std::function<Task(const std::string& ns)> build) {
    sub->callback([&cli, build] {
        const Task task = build(cli.options.nameSpace);
        cli.action = [task](Session& session, Printer& printer) { return run(session, printer, task); };
    });
}

void addVolume(CLI::App& app, Cli& cli) {
    CLI::App* volume = app.add_subcommand("volume", "create or delete a logical drive (volume)");
    volume->require_subcommand(1);

    struct Create {
        std::string level;
        std::string drives;
        unsigned int controller = 0;
        unsigned int members = 0;
        unsigned long long sizeMB = 0;
        std::string name;
        unsigned int stripeKB = 0;
        bool follow = false;
    };
    auto c = std::make_shared<Create>();
    CLI::App* create = volume->add_subcommand("create", "create a logical drive and follow its build");
    create->add_option("--level", c->level, "RAID0, RAID1, RAID1E, RAID5, RAID6, RAID10, RAID50, RAID60, SIMPLEVOLUME")
        ->required();
    create->add_option("--drives", c->drives, "member drives, c_ch_d[,c_ch_d...]; default: chosen by the controller");
    create->add_option("--controller", c->controller, "controller number (with chosen drives)");
    create->add_option("--members", c->members, "how many drives to choose (default: the level's minimum)");
    create->add_option("--size", c->sizeMB, "data size in MB (default: as large as the drives allow)");
    create->add_option("--name", c->name, "name of the logical drive");
    create->add_option("--stripe", c->stripeKB, "stripe size in KB");
    create->add_flag("-f,--follow", c->follow, "show the progress of the build");
    deferred(create, cli, [c](const std::string& ns) {
        Task t{"CreateVD", {{"RaidLevel", Value::string(c->level)}}, controllerPath(c->controller, ns), c->follow};
        const std::vector<std::string> drives = splitList(c->drives);
        if (!drives.empty()) {
            t.target = controllerPath(controllerOf(drives.front()), ns);
            t.in.push_back({"InChunkSpec", textArray(drives)});
        }
        if (c->members) t.in.push_back({"MemberCount", Value::uint32(c->members)});
        if (c->sizeMB) t.in.push_back({"Size", Value::uint64(c->sizeMB)});
        if (!c->name.empty()) t.in.push_back({"VDName", Value::string(c->name)});
        if (c->stripeKB) t.in.push_back({"StripeSize", Value::uint32(c->stripeKB)});
        return t;
    });

    auto pool = std::make_shared<std::string>();
    CLI::App* del = volume->add_subcommand("delete", "delete a logical drive");
    del->add_option("logicalDrive", *pool, "the logical drive, controller_id (SPInstanceID)")->required();
    deferred(del, cli, [pool](const std::string& ns) {
        const std::string id = pool->substr(pool->find('_') == std::string::npos ? 0 : pool->find('_') + 1);
        return Task{"DeleteVD", {{"PoolID", Value::string(id)}}, controllerPath(controllerOf(*pool), ns), false};
    });
}

void addSpare(CLI::App& app, Cli& cli) {
    CLI::App* spare = app.add_subcommand("spare", "assign or remove a hot spare");
    spare->require_subcommand(1);
    struct Spare {
        std::string drive;
        std::string dedicatedTo;
    };
    auto s = std::make_shared<Spare>();
    CLI::App* assign = spare->add_subcommand("assign", "make a drive a global spare, or dedicated with --to");
    assign->add_option("drive", s->drive, "the drive, c_ch_d (DDDeviceID)")->required();
    assign->add_option("--to", s->dedicatedTo, "the logical drive it is dedicated to, controller_id");
    deferred(assign, cli, [s](const std::string& ns) {
        Task t{"AssignSpares", {{"InExtents", Value::array(CMPI_ref, {Value::ref(extentPath(s->drive, ns))})}},
               controllerPath(controllerOf(s->drive), ns), false};
        if (!s->dedicatedTo.empty()) t.in.push_back({"Pool", Value::ref(poolPath(s->dedicatedTo, ns))});
        return t;
    });
    auto r = std::make_shared<std::string>();
    CLI::App* remove = spare->add_subcommand("remove", "release a spare drive");
    remove->add_option("drive", *r, "the drive, c_ch_d")->required();
    deferred(remove, cli, [r](const std::string& ns) {
        return Task{"UnassignSpares", {{"InExtents", Value::array(CMPI_ref, {Value::ref(extentPath(*r, ns))})}},
                    controllerPath(controllerOf(*r), ns), false};
    });
}

void addVerifyAndLocate(CLI::App& app, Cli& cli) {
    struct Verify {
        std::string logicalDrive;
        bool fix = false;
        bool follow = false;
    };
    auto v = std::make_shared<Verify>();
    CLI::App* verify = app.add_subcommand("verify", "check (and with --fix repair) a logical drive's redundancy");
    verify->add_option("logicalDrive", v->logicalDrive, "controller_id (SPInstanceID)")->required();
    verify->add_flag("--fix", v->fix, "repair what the check finds");
    verify->add_flag("-f,--follow", v->follow, "show the progress of the check");
    deferred(verify, cli, [v](const std::string& ns) {
        return Task{"VerifyVD", {{"SPInstanceID", Value::string(v->logicalDrive)}, {"bFix", Value::boolean(v->fix)}},
                    controllerPath(controllerOf(v->logicalDrive), ns), v->follow};
    });

    struct Locate {
        std::string drive;
        bool off = false;
    };
    auto l = std::make_shared<Locate>();
    CLI::App* locate = app.add_subcommand("locate", "blink a drive's locate light (or stop with --off)");
    locate->add_option("drive", l->drive, "the drive, c_ch_d (DDDeviceID)")->required();
    locate->add_flag("--off", l->off, "stop blinking");
    deferred(locate, cli, [l](const std::string& ns) {
        return Task{"LocatePhysicalDisk", {{"DDDeviceID", Value::string(l->drive)}, {"locateIN", Value::boolean(!l->off)}},
                    controllerPath(controllerOf(l->drive), ns), false};
    });
}

}  // namespace

void addVolumeCommands(CLI::App& app, Cli& cli) {
    addVolume(app, cli);
    addSpare(app, cli);
    addVerifyAndLocate(app, cli);
}

}  // namespace vexraid

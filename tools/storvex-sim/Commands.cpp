#include "Commands.h"

#include "AddrArg.h"
#include "Show.h"

#include <storlib/Simulator.h>
#include <storlib/SystemGenerator.h>

#include <fstream>
#include <iostream>
#include <memory>

namespace storvexsim {
namespace {

using namespace storlib;

int report(const Ret& r) {
    if (r) return 0;
    std::cerr << "storvex-sim: " << r.getReason() << "\n";
    return 1;
}

Addr deviceArg(const std::string& s) {
    auto a = parseDeviceAddr(s);
    if (!a) throw CLI::ValidationError("address", "expected CONTROLLER:CHANNEL:DEVICE, got " + s);
    return *a;
}

// A command on one device address: storvex-sim NAME C:CH:DEV [--restore]
void deviceCommand(CLI::App& app, Action& chosen, const char* name, const char* help,
                   std::function<Ret(Simulator&, const Addr&, bool)> run, const char* flagHelp = nullptr) {
    auto* cmd = app.add_subcommand(name, help);
    auto addr = std::make_shared<std::string>();
    auto flag = std::make_shared<bool>(false);
    cmd->add_option("address", *addr, "CONTROLLER:CHANNEL:DEVICE")->required();
    if (flagHelp) cmd->add_flag("--restore,--new", *flag, flagHelp);
    cmd->callback([&chosen, addr, flag, run] {
        Addr a = deviceArg(*addr);
        chosen = [a, flag, run](StorLib& lib) {
            Simulator sim(lib);
            return report(run(sim, a, *flag));
        };
    });
}

// A command on an enclosure element: NAME C:CH:DEV INDEX [--restore]
void elementCommand(CLI::App& app, Action& chosen, const char* name, const char* help,
                    std::function<Ret(Simulator&, const Addr&, uint32_t, bool)> run) {
    auto* cmd = app.add_subcommand(name, help);
    auto addr = std::make_shared<std::string>();
    auto index = std::make_shared<uint32_t>(0);
    auto restore = std::make_shared<bool>(false);
    cmd->add_option("enclosure", *addr, "CONTROLLER:CHANNEL:DEVICE of the enclosure")->required();
    cmd->add_option("index", *index, "element index")->required();
    cmd->add_flag("--restore", *restore, "make it work again");
    cmd->callback([&chosen, addr, index, restore, run] {
        Addr a = deviceArg(*addr);
        chosen = [a, index, restore, run](StorLib& lib) {
            Simulator sim(lib);
            return report(run(sim, a, *index, !*restore));
        };
    });
}

void showCommand(CLI::App& app, Action& chosen) {
    auto* cmd = app.add_subcommand("show", "show the controllers, drives, logical drives, enclosures and tasks");
    auto controller = std::make_shared<int>(-1);
    cmd->add_option("-c,--controller", *controller, "only this controller");
    cmd->callback([&chosen, controller] {
        chosen = [controller](StorLib& lib) {
            auto config = lib.getSystemConfig();
            if (!config) return report(lib.getLastError());
            showSystem(*config, std::cout, *controller);
            return 0;
        };
    });
}

void eventsCommand(CLI::App& app, Action& chosen) {
    auto* cmd = app.add_subcommand("events", "list the last events of each controller");
    auto count = std::make_shared<size_t>(20);
    auto controller = std::make_shared<int>(-1);
    cmd->add_option("-n,--count", *count, "how many events per controller");
    cmd->add_option("-c,--controller", *controller, "only this controller");
    cmd->callback([&chosen, count, controller] {
        chosen = [count, controller](StorLib& lib) {
            unsigned long n = 0;
            if (Ret r = lib.getControllerCount(n); !r) return report(r);
            for (unsigned long i = 0; i < n; ++i) {
                if (*controller >= 0 && static_cast<unsigned long>(*controller) != i) continue;
                StorEventCollection events;
                if (Ret r = lib.getEventHistory(static_cast<uint32_t>(i), *count, events); !r) return report(r);
                std::cout << "Controller " << i << ":\n";
                showEvents(events, std::cout);
            }
            return 0;
        };
    });
}

void clockCommands(CLI::App& app, Action& chosen) {
    auto* adv = app.add_subcommand("advance", "move the controller clock forward");
    auto seconds = std::make_shared<double>(0);
    adv->add_option("seconds", *seconds, "controller seconds")->required()->check(CLI::Range(0.0, 1e9));
    adv->callback([&chosen, seconds] {
        chosen = [seconds](StorLib& lib) { Simulator sim(lib); return report(sim.advanceTime(*seconds)); };
    });
    auto* clk = app.add_subcommand("clock", "show the controller clock, or set its scale");
    auto scale = std::make_shared<double>(-1);
    clk->add_option("--scale", *scale, "controller seconds per wall-clock second; 0 stops the clock")
        ->check(CLI::Range(0.0, 1e6));
    clk->callback([&chosen, scale] {
        chosen = [scale](StorLib& lib) {
            Simulator sim(lib);
            if (*scale >= 0)
                if (Ret r = sim.setTimeScale(*scale); !r) return report(r);
            double now = 0, s = 0;
            if (Ret r = sim.getTime(now, s); !r) return report(r);
            std::cout << "controller clock " << static_cast<long long>(now) << " s, scale " << s << "\n";
            return 0;
        };
    });
}

void taskCommands(CLI::App& app, Action& chosen) {
    auto* cmd = app.add_subcommand("finish-task", "complete a running task at once");
    auto task = std::make_shared<std::string>();
    auto all = std::make_shared<bool>(false);
    cmd->add_option("task", *task, "CONTROLLER:Tid, as shown by 'show'");
    cmd->add_flag("--all", *all, "complete every running task");
    cmd->callback([&chosen, task, all] {
        auto a = parseTaskAddr(*task);
        if (!*all && !a) throw CLI::ValidationError("task", "expected CONTROLLER:Tid or --all");
        chosen = [a, all](StorLib& lib) {
            Simulator sim(lib);
            return report(*all ? sim.finishAllTasks() : sim.finishTask(*a));
        };
    });
}

void controllerCommands(CLI::App& app, Action& chosen) {
    auto* bat = app.add_subcommand("fail-battery", "fail the battery or super-capacitor of a controller");
    auto ctl = std::make_shared<uint32_t>(0);
    auto restore = std::make_shared<bool>(false);
    bat->add_option("controller", *ctl, "controller index")->required();
    bat->add_flag("--restore", *restore, "make it work again");
    bat->callback([&chosen, ctl, restore] {
        chosen = [ctl, restore](StorLib& lib) { Simulator s(lib); return report(s.setBatteryFailed(*ctl, !*restore)); };
    });
    auto* temp = app.add_subcommand("controller-temp", "set the temperature of a controller");
    auto tempCtl = std::make_shared<uint32_t>(0);
    auto celsius = std::make_shared<int32_t>(45);
    temp->add_option("controller", *tempCtl, "controller index")->required();
    temp->add_option("celsius", *celsius, "temperature")->required();
    temp->callback([&chosen, tempCtl, celsius] {
        chosen = [tempCtl, celsius](StorLib& lib) {
            Simulator s(lib);
            return report(s.setControllerTemperature(*tempCtl, *celsius));
        };
    });
    auto* status = app.add_subcommand("controller-status", "set the status of a controller (0: usable)");
    auto statusCtl = std::make_shared<uint32_t>(0);
    auto value = std::make_shared<uint32_t>(0);
    status->add_option("controller", *statusCtl, "controller index")->required();
    status->add_option("status", *value, "status, 0 usable")->required();
    status->callback([&chosen, statusCtl, value] {
        chosen = [statusCtl, value](StorLib& lib) {
            Simulator s(lib);
            return report(s.setControllerStatus(*statusCtl, *value));
        };
    });
    auto* rm = app.add_subcommand("remove-controller", "take a controller out of the host");
    auto rmIndex = std::make_shared<uint32_t>(0);
    rm->add_option("controller", *rmIndex, "controller index")->required();
    rm->callback([&chosen, rmIndex] {
        chosen = [rmIndex](StorLib& lib) { Simulator s(lib); return report(s.removeController(*rmIndex)); };
    });
    app.add_subcommand("add-controller", "put back the first removed controller")->callback([&chosen] {
        chosen = [](StorLib& lib) { Simulator s(lib); return report(s.addController()); };
    });
    app.add_subcommand("reset", "start again from the system description")->callback([&chosen] {
        chosen = [](StorLib& lib) { Simulator s(lib); return report(s.reset()); };
    });
}

void generateCommand(CLI::App& app, Action& chosen) {
    auto* cmd = app.add_subcommand("generate", "write a large system description");
    auto p = std::make_shared<GeneratorParams>();
    auto file = std::make_shared<std::string>();
    cmd->add_option("--controllers", p->controllers, "controllers")->check(CLI::Range(0, 16));
    cmd->add_option("--drives", p->drivesPerController, "drives per controller")->check(CLI::Range(0, 256));
    cmd->add_option("--volumes", p->volumesPerController, "logical drives per controller")->check(CLI::Range(0, 256));
    cmd->add_option("--spares", p->sparesPerController, "global spares per controller")->check(CLI::Range(0, 16));
    cmd->add_option("-o,--output", *file, "output file")->required();
    cmd->callback([&chosen, p, file] {
        chosen = [p, file](StorLib&) {
            std::ofstream out(*file);
            out << generateSystemDescription(*p) << "\n";
            if (!out) {
                std::cerr << "storvex-sim: cannot write " << *file << "\n";
                return 1;
            }
            return 0;
        };
    });
}

}  // namespace

void addCommands(CLI::App& app, Action& chosen) {
    showCommand(app, chosen);
    eventsCommand(app, chosen);
    deviceCommand(app, chosen, "fail", "fail a drive", [](Simulator& s, const Addr& a, bool) { return s.failDrive(a); });
    deviceCommand(app, chosen, "pull", "pull a drive out of its slot",
                  [](Simulator& s, const Addr& a, bool) { return s.pullDrive(a); });
    deviceCommand(app, chosen, "insert", "put a pulled drive back (--new: a new blank drive)",
                  [](Simulator& s, const Addr& a, bool asNew) { return s.insertDrive(a, asNew); },
                  "insert a new blank drive instead");
    deviceCommand(app, chosen, "smart", "trip (or with --restore clear) a drive's failure prediction",
                  [](Simulator& s, const Addr& a, bool clear) { return s.setSmartError(a, !clear); }, "clear it");
    elementCommand(app, chosen, "fail-fan", "fail an enclosure fan",
                   [](Simulator& s, const Addr& a, uint32_t i, bool f) { return s.setFanFailed(a, i, f); });
    elementCommand(app, chosen, "fail-psu", "fail an enclosure power supply",
                   [](Simulator& s, const Addr& a, uint32_t i, bool f) { return s.setPowerSupplyFailed(a, i, f); });
    auto* temp = app.add_subcommand("set-temp", "set an enclosure temperature sensor");
    auto encl = std::make_shared<std::string>();
    auto sensor = std::make_shared<uint32_t>(0);
    auto celsius = std::make_shared<int32_t>(25);
    temp->add_option("enclosure", *encl, "CONTROLLER:CHANNEL:DEVICE of the enclosure")->required();
    temp->add_option("sensor", *sensor, "sensor index")->required();
    temp->add_option("celsius", *celsius, "temperature")->required();
    temp->callback([&chosen, encl, sensor, celsius] {
        Addr a = deviceArg(*encl);
        chosen = [a, sensor, celsius](StorLib& lib) {
            Simulator s(lib);
            return report(s.setTemperature(a, *sensor, *celsius));
        };
    });
    controllerCommands(app, chosen);
    clockCommands(app, chosen);
    taskCommands(app, chosen);
    generateCommand(app, chosen);
}

}  // namespace storvexsim

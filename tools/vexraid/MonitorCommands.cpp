// health and metrics: the RAID state for monitoring systems. health gives
// a monitoring-plugin verdict (exit 0 OK, 1 WARNING, 2 CRITICAL, 3
// UNKNOWN); metrics the Prometheus text format, on standard output or
// atomically into a file for node_exporter's textfile collector.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>

#include "Commands.h"
#include "Errors.h"
#include "Health.h"
#include "JsonText.h"
#include "Metrics.h"
#include "RaidState.h"
#include "RegistrationPlan.h"
#include "Watchdog.h"

namespace vexraid {

namespace {

struct MonitorOptions {
    HealthOptions health;
    double timeout = 30;
    std::optional<std::string> output;
};

// A state directory that exists but cannot be used: the simulator would
// show no controllers at all, which must not pass for a healthy host.
void checkStateDirectory(const Options& options) {
    const char* env = std::getenv("STORVEX_STATE_DIR");
    const std::string dir = options.stateDir ? *options.stateDir : env != nullptr ? env : "";
    if (dir.empty()) return;
    std::error_code error;
    if (!std::filesystem::exists(dir, error)) return;  // created on first use
    if (!std::filesystem::is_directory(dir, error) || access(dir.c_str(), R_OK | W_OK | X_OK) != 0) {
        throw StateUnknown("simulator state directory " + dir + " is not readable");
    }
}

RaidState readThroughProvider(const Options& options) {
    checkStateDirectory(options);
    std::unique_ptr<Session> session;
    try {
        session = std::make_unique<Session>(options);
    } catch (const std::exception& e) {
        throw StateUnknown(std::string("provider cannot be loaded: ") + e.what());
    }
    return readRaidState([&](const std::string& className) -> std::optional<std::vector<cmpihost::Instance>> {
        const cmpihost::Response r =
            session->host().enumerateInstances(cmpihost::ObjectPath(vex::mof::kImplementationNamespace, className));
        if (r.ok()) return r.instances;
        if (r.status.rc == CMPI_RC_ERR_INVALID_CLASS) return std::nullopt;  // not served by this provider
        throw StateUnknown(className + ": " + rcName(r.status.rc) + ": " + r.status.message.value_or(""));
    });
}

void printVerdict(Printer& printer, const Verdict& verdict, const RaidState* state) {
    printer.out() << (printer.json() ? jsonText(verdictJson(verdict, state), true) : verdictLine(verdict)) << "\n";
}

int health(const Options& options, const MonitorOptions& monitor, Printer& printer) {
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%g", monitor.timeout);
    const std::string late = std::string("RAID UNKNOWN - no answer within ") + seconds + " s";
    Watchdog watchdog(monitor.timeout,
                      printer.json() ? jsonText(verdictJson(unknownVerdict(late.substr(15)), nullptr), true) + "\n" : late + "\n",
                      static_cast<int>(Level::Unknown));
    try {
        const RaidState state = readThroughProvider(options);
        const Verdict verdict = judge(state, monitor.health);
        printVerdict(printer, verdict, &state);
        return static_cast<int>(verdict.level);
    } catch (const std::exception& e) {
        printVerdict(printer, unknownVerdict(e.what()), nullptr);
        return static_cast<int>(Level::Unknown);
    }
}

int metrics(const Options& options, const MonitorOptions& monitor, Printer& printer) {
    const auto start = std::chrono::steady_clock::now();
    auto elapsed = [&] { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(); };
    Watchdog watchdog(monitor.timeout, failedMetricsText(monitor.timeout), 1);
    try {
        const std::string text = metricsText(readThroughProvider(options), elapsed());
        if (!monitor.output) {
            printer.out() << text;
            return 0;
        }
        writeFileAtomically(*monitor.output, text);
        return 0;
    } catch (const std::exception& e) {
        std::cerr << "vexraid: metrics: " << e.what() << "\n";
        printer.out() << failedMetricsText(elapsed());
        return 1;
    }
}

void addTimeout(CLI::App* sub, MonitorOptions& monitor) {
    sub->add_option("--timeout", monitor.timeout, "give up after this many seconds (0: never)")
        ->check(CLI::Range(0.0, 86400.0))
        ->capture_default_str();
}

}  // namespace

void addMonitorCommands(CLI::App& app, Cli& cli) {
    auto monitor = std::make_shared<MonitorOptions>();
    CLI::App* h = app.add_subcommand("health", "RAID health as a Nagios/Icinga check: one line, exit 0 OK, 1 WARNING, "
                                               "2 CRITICAL, 3 UNKNOWN (--json: the same verdict as data)");
    h->add_option("--warn-temp", monitor->health.warnTemp, "a temperature at or above this (Celsius) is a warning")
        ->capture_default_str();
    h->add_option("--crit-temp", monitor->health.critTemp, "a temperature at or above this (Celsius) is critical")
        ->capture_default_str();
    h->add_option("--ignore", monitor->health.ignore,
                  "leave a kind (controller, volume, drive, battery, enclosure, fan, psu, sensor, element) or a class "
                  "(VEX_Battery) out of the verdict; repeatable")
        ->check([](const std::string& word) {
            try {
                checkIgnoreWords({word});
            } catch (const std::invalid_argument& e) {
                return std::string(e.what());
            }
            return std::string();
        });
    h->add_flag("--require-spare", monitor->health.requireSpare,
                "warn about every redundant volume without a spare, also on controllers that have none");
    addTimeout(h, *monitor);
    h->callback([&cli, monitor] {
        cli.localAction = [&cli, monitor](Printer& printer) { return health(cli.options, *monitor, printer); };
    });

    CLI::App* m = app.add_subcommand("metrics", "RAID state in the Prometheus text format (node_exporter textfile collector)");
    m->add_option("-o,--output", monitor->output,
                  "write to this file atomically (temporary file in its directory, then renamed); a failed reading "
                  "leaves it untouched");
    addTimeout(m, *monitor);
    m->callback([&cli, monitor] {
        cli.localAction = [&cli, monitor](Printer& printer) { return metrics(cli.options, *monitor, printer); };
    });
}

}  // namespace vexraid

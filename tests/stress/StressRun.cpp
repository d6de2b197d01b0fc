// The stress run: the provider loaded through cmpihost on a generated system,
// request threads making every kind of request (Workload.h), a fault
// injector changing the simulated hardware underneath, and a watchdog. It
// fails on a torn enumeration, on a request thread stuck past the watchdog's
// limit, on memory growth beyond a bound between the end of the warm-up and
// the end, and - under a sanitizer build - on any report (the sanitizers end
// the process). It prints requests per second and p50/p99 latencies per kind.
//
//   vex_stress [--seconds N] [--threads N] [--max-growth-mb N] [--stuck-seconds N]
#include <CLI/CLI.hpp>
#include <stdlib.h>
#include <storlib/Simulator.h>
#include <storlib/StorLib.h>
#include <storlib/SystemGenerator.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>
#include <vector>

#include "Latencies.h"
#include "Options.h"
#include "Session.h"
#include "Workload.h"

namespace {

using Clock = std::chrono::steady_clock;

// Memory a sanitizer keeps back on purpose (ASan's quarantine of freed
// blocks, TSan's shadow) grows the resident size without being a leak.
#if defined(__SANITIZE_ADDRESS__)
constexpr double kDefaultGrowthMb = 384;
#elif defined(__SANITIZE_THREAD__)
constexpr double kDefaultGrowthMb = 256;
#else
constexpr double kDefaultGrowthMb = 64;
#endif

struct Settings {
    double seconds = 600;
    unsigned threads = 8;
    double maxGrowthMb = kDefaultGrowthMb;
    double stuckSeconds = 120;
};

double residentMb() {
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

double since(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

std::string makeSystem(const std::string& dir) {
    storlib::GeneratorParams params;
    params.controllers = 4;
    params.drivesPerController = 48;
    params.volumesPerController = 12;
    std::filesystem::create_directories(dir);
    std::ofstream(dir + "/system.json") << storlib::generateSystemDescription(params);
    return dir + "/system.json";
}

// Faults that change the hardware's state but not which objects exist:
// temperatures, fans, SMART trips, batteries, each set and cleared in turn.
void injectFaults(const std::atomic<bool>& stop) {
    storlib::StorLib library;
    if (!library.open().ok()) {
        std::fprintf(stderr, "fault injector: the controller library did not open\n");
        return;
    }
    storlib::Simulator sim(library);
    for (unsigned round = 0; !stop; ++round) {
        const bool set = round % 2 == 0;
        const uint32_t adapter = (round / 2) % 4;
        sim.setControllerTemperature(adapter, set ? 78 : 45);
        sim.setBatteryFailed(adapter, set);
        sim.setSmartError(storlib::Addr(adapter, 0, round % 48), set);
        std::this_thread::sleep_for(std::chrono::milliseconds(150));
    }
}

// Request threads publish when their current request started (0: idle).
struct Worker {
    std::atomic<long long> busySince{0};
    std::atomic<unsigned> kind{0};
};

long long nowTicks() { return Clock::now().time_since_epoch().count(); }

// The worker of the calling request thread: each finished request restarts
// its watchdog clock.
thread_local Worker* t_worker = nullptr;
void heartbeat() {
    if (t_worker != nullptr) t_worker->busySince = nowTicks();
}

}  // namespace

int main(int argc, char** argv) {
    Settings settings;
    CLI::App app("stress run of vexRAIDProvider15 through cmpihost");
    app.add_option("--seconds", settings.seconds, "how long the requests run");
    app.add_option("--threads", settings.threads, "request threads");
    app.add_option("--max-growth-mb", settings.maxGrowthMb, "allowed resident growth after the warm-up");
    app.add_option("--stuck-seconds", settings.stuckSeconds, "a request running longer is a deadlock");
    CLI11_PARSE(app, argc, argv);

    char pattern[] = "/tmp/vex-stress-XXXXXX";
    if (mkdtemp(pattern) == nullptr) return 1;
    // The RAID event monitor keeps its files with the run's system, not in /var/log.
    setenv("VEX_NRM_DIR", pattern, 1);
    vexraid::Options options;
    options.provider = vexraid::defaultProviderPath();
    options.system = makeSystem(pattern);
    options.stateDir = std::string(pattern) + "/state";
    options.timeScale = 60;  // tasks move on while the run lasts
    options.user = "root";
    auto session = std::make_unique<vexraid::Session>(options);
    vex::stress::Workload workload(*session);
    workload.setHeartbeat(heartbeat);
    vex::stress::Latencies latencies;

    std::atomic<bool> stop{false}, torn{false};
    std::atomic<unsigned> running{settings.threads};
    std::vector<Worker> workers(settings.threads);
    std::vector<std::thread> threads;
    const Clock::time_point start = Clock::now();
    for (unsigned t = 0; t < settings.threads; ++t) {
        threads.emplace_back([&, t] {
            std::mt19937 random(t + 1);
            t_worker = &workers[t];
            for (unsigned n = t; !stop; ++n) {
                const unsigned kind = n % vex::stress::Workload::kKinds;
                workers[t].kind = kind;
                const Clock::time_point begun = Clock::now();
                workers[t].busySince = nowTicks();
                try {
                    workload.run(kind, random);
                } catch (const vex::stress::Inconsistency& e) {
                    std::fprintf(stderr, "torn answer: %s\n", e.what());
                    torn = true;
                    stop = true;
                }
                workers[t].busySince = 0;
                latencies.record(vex::stress::Workload::kindName(kind), since(begun));
            }
            --running;
        });
    }
    threads.emplace_back(injectFaults, std::cref(stop));

    const double warmUp = std::min(60.0, settings.seconds / 6);
    double warmResident = 0;
    // The watchdog also watches the request threads finish their last
    // requests after the end: a deadlocked one never does.
    while (running > 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
        if (since(start) >= settings.seconds) stop = true;
        if (warmResident == 0 && since(start) >= warmUp) warmResident = residentMb();
        for (unsigned t = 0; t < settings.threads; ++t) {
            const long long busy = workers[t].busySince;
            const double stuck = busy == 0 ? 0 : std::chrono::duration<double>(Clock::duration(nowTicks() - busy)).count();
            if (stuck > settings.stuckSeconds) {
                std::fprintf(stderr, "deadlock: request thread %u in %s for %.0f s\n", t,
                             vex::stress::Workload::kindName(workers[t].kind), stuck);
                std::fflush(nullptr);
                _exit(3);
            }
        }
    }
    stop = true;
    for (std::thread& thread : threads) thread.join();
    const double elapsed = since(start), endResident = residentMb();
    latencies.print(elapsed);
    std::printf("%zu requests in %.0f s (%.1f per s) on %u threads; %zu answered with an error status\n",
                latencies.total(), elapsed, static_cast<double>(latencies.total()) / elapsed, settings.threads,
                workload.failedRequests());
    for (const std::string& sample : workload.errorSamples()) {
        std::printf("  e.g. %s\n", sample.c_str());
    }
    std::printf("resident: %.1f MiB after the warm-up, %.1f MiB at the end (bound +%.0f MiB)\n", warmResident,
                endResident, settings.maxGrowthMb);
    session.reset();
    std::error_code ignored;
    std::filesystem::remove_all(pattern, ignored);
    if (torn) return 1;
    if (warmResident > 0 && endResident - warmResident > settings.maxGrowthMb) {
        std::fprintf(stderr, "memory grew by %.1f MiB\n", endResident - warmResident);
        return 1;
    }
    return 0;
}

// Memory of the object cache on generated systems of 1, 4 and 16 controllers,
// each with 256 drives and 256 volumes, filled by the controller interface
// as the provider start and the refresh thread fill it.
//
// Each size is measured in a child process of its own, so that one size's
// freed memory does not flatter the next. Printed per size:
//   instances        cached instances in the served repository (all types)
//   bytes_per_inst   heap held by the cache (both repositories, the pooled
//                    values included) divided by the instances
//   cache_MiB        that heap
//   rss_MiB          resident size after the start and one refresh
//   peak_MiB         highest resident size during a further refresh
//   peak_ratio       peak_MiB / rss_MiB
//   base_MiB         resident size before the cache was filled (process and
//                    libraries; the controller simulator's own model is
//                    loaded later and counts in rss_MiB)
//   pooled_per_inst  distinct pooled property values per instance
//   start_s          seconds of the provider start's cache build
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <storlib/SystemGenerator.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "controller/VexCacheManager.h"
#include "controller/cache/PropertyPool.h"
#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf::bench {
namespace {

struct Figures {
    double instances = 0;
    double cacheBytes = 0;
    double rss = 0;
    double peak = 0;
    double base = 0;
    double startSeconds = 0;
    double pooled = 0;
};

// "VmRSS" or "VmHWM" of this process, in bytes.
double statusBytes(const char* field) {
    std::ifstream status("/proc/self/status");
    std::string name;
    while (status >> name) {
        if (name == std::string(field) + ":") {
            double kib = 0;
            status >> kib;
            return kib * 1024.0;
        }
        status.ignore(4096, '\n');
    }
    return 0;
}

void useSystem(const std::string& dir, unsigned controllers) {
    storlib::GeneratorParams params;
    params.controllers = controllers;
    params.drivesPerController = 256;
    params.volumesPerController = 256;
    const std::string file = dir + "/system.json";
    std::ofstream(file) << storlib::generateSystemDescription(params);
    setenv("STORVEX_SYSTEM", file.c_str(), 1);
    setenv("STORVEX_STATE_DIR", dir.c_str(), 1);
    setenv("STORVEX_TIME_SCALE", "0", 1);
}

void refresh(VexFSAInterface& fsa) {
    VexCacheManager::initCacheUpdate();
    fsa.initialize(false, false, true, false);
    VexCacheManager::exitCacheUpdate();
}

double cachedInstances() {
    double count = 0;
    for (int type = 0; type <= VEX_OBJ_CONCRETE_SETTING; ++type) {
        std::vector<CIMInstance> list;
        VexCacheManager::getInstance(true)->getRepositoryObject(static_cast<_eVEXObjectType>(type), "", {},
                                                               false, list);
        count += static_cast<double>(list.size());
    }
    return count;
}

Figures measure(unsigned controllers) {
    char pattern[] = "/tmp/vex-cache-resident-XXXXXX";
    const std::string dir = mkdtemp(pattern);
    useSystem(dir, controllers);
    Figures figures;
    VexFSAInterface& fsa = *VexFSAInterface::getInstance();
    malloc_trim(0);
    figures.base = statusBytes("VmRSS");
    const auto start = std::chrono::steady_clock::now();
    fsa.initialize(true, true, false, false);
    figures.startSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    refresh(fsa);
    malloc_trim(0);
    figures.rss = statusBytes("VmRSS");
    const double heapFilled = static_cast<double>(mallinfo2().uordblks);
    std::ofstream("/proc/self/clear_refs") << "5";  // restarts VmHWM from the current size
    refresh(fsa);
    figures.peak = statusBytes("VmHWM");
    figures.instances = cachedInstances();
    figures.pooled = static_cast<double>(cache::PropertyPool::instance().entryCount());
    VexCacheManager::getInstance(true)->flushCache();
    VexCacheManager::getInstance(false)->flushCache();
    figures.cacheBytes = heapFilled - static_cast<double>(mallinfo2().uordblks);
    fsa.terminate();
    std::filesystem::remove_all(dir);
    return figures;
}

void BM_CacheResident(benchmark::State& state) {
    int channel[2];
    if (pipe(channel) != 0) {
        state.SkipWithError("pipe failed");
        return;
    }
    const pid_t child = fork();
    if (child == 0) {
        close(channel[0]);
        const Figures figures = measure(static_cast<unsigned>(state.range(0)));
        const ssize_t written = write(channel[1], &figures, sizeof figures);
        _exit(written == static_cast<ssize_t>(sizeof figures) ? 0 : 1);
    }
    close(channel[1]);
    Figures figures;
    const bool complete = read(channel[0], &figures, sizeof figures) == static_cast<ssize_t>(sizeof figures);
    close(channel[0]);
    int status = 0;
    waitpid(child, &status, 0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(figures);
    }
    if (!complete) {
        state.SkipWithError("measuring child failed");
        return;
    }
    constexpr double kMiB = 1024.0 * 1024.0;
    state.counters["instances"] = figures.instances;
    state.counters["bytes_per_inst"] = figures.cacheBytes / figures.instances;
    state.counters["cache_MiB"] = figures.cacheBytes / kMiB;
    state.counters["rss_MiB"] = figures.rss / kMiB;
    state.counters["peak_MiB"] = figures.peak / kMiB;
    state.counters["peak_ratio"] = figures.peak / figures.rss;
    state.counters["base_MiB"] = figures.base / kMiB;
    state.counters["start_s"] = figures.startSeconds;
    state.counters["pooled_per_inst"] = figures.pooled / figures.instances;
}

BENCHMARK(BM_CacheResident)->Arg(1)->Arg(4)->Arg(16)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vex::cim::fwf::bench

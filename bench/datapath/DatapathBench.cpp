// Data-path benchmarks on generated systems.
//
//   Plugin/<class>   one enumeration through the facade and the plug-in, in
//                    process: cache read, de-prefixing, paths; no CMPI.
//   Cmpi/<class>     the same request through cmpihost and the built
//                    provider: adds the conversion to CMPI and back.
//   DriveScaling/<n> a VEX_DiskDrive enumeration with n drives per
//                    controller (8 controllers): growth with the drives.
// Each system lives in a private state directory with the clock stopped.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cmpihost/Host.h>
#include <storlib/SystemGenerator.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <fstream>
#include <memory>
#include <string>

#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"
#include "framework/CIMNamespaces.h"
#include "framework/FrameworkFacade.h"
#include "providers/storage/CachedClassTable.h"

namespace {

using vex::cim::fwf::CIMInstance;
using vex::cim::fwf::CIMObjectPath;
using vex::cim::fwf::FrameworkFacade;

constexpr unsigned kControllers = 8;
constexpr unsigned kDrives = 256;
constexpr unsigned kVolumes = 64;

std::string gDir;

// Writes a generated description and points the library at it (a new state
// directory per description).
void useSystem(unsigned drivesPerController) {
    storlib::GeneratorParams params;
    params.controllers = kControllers;
    params.drivesPerController = drivesPerController;
    params.volumesPerController = kVolumes;
    const std::string name = gDir + "/system-" + std::to_string(drivesPerController);
    std::filesystem::create_directories(name);
    std::ofstream(name + ".json") << storlib::generateSystemDescription(params);
    setenv("STORVEX_SYSTEM", (name + ".json").c_str(), 1);
    setenv("STORVEX_STATE_DIR", (name + "/state").c_str(), 1);
    setenv("STORVEX_TIME_SCALE", "0", 1);
}

double secondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Rebuilds the in-process cache from the current system, as the refresh
// thread does (registered as the update thread, so that readers keep the
// served repository until the new one is complete).
void rebuildInProcess() {
    vex::cim::fwf::VexFSAInterface* fsa = vex::cim::fwf::VexFSAInterface::getInstance();
    fsa->terminate();  // drops the library handle: the next start opens the current system
    vex::cim::fwf::VexCacheManager::initCacheUpdate();
    fsa->initialize(true, true, false, false);
    vex::cim::fwf::VexCacheManager::exitCacheUpdate();
}

std::size_t enumerateInProcess(const std::string& className) {
    CIMObjectPath path("", vex::cim::fwf::kImplementationNameSpace, className, {});
    std::vector<CIMInstance> instances;
    FrameworkFacade::getInstance()->enumerateInstances(path, instances);
    return instances.size();
}

void reportInstances(benchmark::State& state, std::size_t count) {
    state.counters["instances"] = static_cast<double>(count);
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
}

void BM_Plugin(benchmark::State& state, const std::string& className) {
    std::size_t count = 0;
    for (auto _ : state) {
        count = enumerateInProcess(className);
    }
    reportInstances(state, count);
}

std::unique_ptr<cmpihost::Host> gHost;

void BM_Cmpi(benchmark::State& state, const std::string& className) {
    std::size_t count = 0;
    for (auto _ : state) {
        count = gHost->enumerateInstances({vex::cim::fwf::kImplementationNameSpace, className}).instances.size();
    }
    reportInstances(state, count);
}

void BM_DriveScaling(benchmark::State& state) {
    static long built = -1;
    if (built != state.range(0)) {
        useSystem(static_cast<unsigned>(state.range(0)));
        rebuildInProcess();
        built = state.range(0);
    }
    std::size_t count = 0;
    for (auto _ : state) {
        count = enumerateInProcess("VEX_DiskDrive");
    }
    reportInstances(state, count);
    state.counters["per_drive"] = benchmark::Counter(
        static_cast<double>(count), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void registerBenchmarks() {
    for (const vex::cim::fwf::CachedClassRow& row : vex::cim::fwf::kCachedClasses) {
        const std::string name = row.className;
        benchmark::RegisterBenchmark(("Plugin/" + name).c_str(), BM_Plugin, name)->Unit(benchmark::kMillisecond);
    }
    for (const vex::cim::fwf::CachedClassRow& row : vex::cim::fwf::kCachedClasses) {
        const std::string name = row.className;
        benchmark::RegisterBenchmark(("Cmpi/" + name).c_str(), BM_Cmpi, name)->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("DriveScaling", BM_DriveScaling)
        ->Arg(32)->Arg(64)->Arg(128)->Arg(256)->Unit(benchmark::kMillisecond);
}

}  // namespace

int main(int argc, char** argv) {
    char pattern[] = "/tmp/vex-datapath-bench-XXXXXX";
    if (mkdtemp(pattern) == nullptr) {
        return 1;
    }
    gDir = pattern;
    useSystem(kDrives);
    const double start = secondsOf([] { FrameworkFacade::getInstance()->initialize(); });
    gHost = std::make_unique<cmpihost::Host>();
    cmpihost::LoadOptions options;
    options.freshLife = true;
    options.createAll = true;
    const double load = secondsOf([&] { gHost->load(VEX_PROVIDER_SO, "vexRAIDProvider15", options); });
    std::printf("provider start on %ux%ux%u: in process %.2f s, through cmpihost %.2f s\n", kControllers, kDrives,
                kVolumes, start, load);
    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    gHost.reset();
    std::error_code ignored;
    std::filesystem::remove_all(gDir, ignored);
    return 0;
}

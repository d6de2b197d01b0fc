// A full cache build from the controller simulator on a generated system:
// 8 controllers with the drive count as argument (a quarter as many volumes,
// one 24-slot enclosure per 24 drives). Items are drives, so the rate shows
// whether the build grows linearly with them.
#include <benchmark/benchmark.h>

#include <storlib/SystemGenerator.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf::bench {
namespace {

constexpr uint32_t kControllers = 8;

// A generated system in a private state directory; the interface opened on it.
class GeneratedSystem {
public:
    explicit GeneratedSystem(uint32_t drivesPerController) {
        char pattern[] = "/tmp/fsa-bench-XXXXXX";
        m_dir = mkdtemp(pattern);
        storlib::GeneratorParams params;
        params.controllers = kControllers;
        params.drivesPerController = drivesPerController;
        params.volumesPerController = drivesPerController / 4;
        const std::string file = m_dir + "/system.json";
        std::ofstream(file) << storlib::generateSystemDescription(params);
        setenv("STORVEX_SYSTEM", file.c_str(), 1);
        setenv("STORVEX_STATE_DIR", m_dir.c_str(), 1);
        setenv("STORVEX_TIME_SCALE", "0", 1);
        VexFSAInterface::getInstance()->terminate();
    }
    ~GeneratedSystem() {
        VexFSAInterface::getInstance()->terminate();
        std::filesystem::remove_all(m_dir);
    }

private:
    std::string m_dir;
};

void report(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0) * kControllers);
    std::vector<CIMInstance> drives;
    VexCacheManager::getInstance(true)->getRepositoryObject(VEX_OBJ_PHYSICAL_DRIVE, "", {}, false, drives);
    state.counters["devices"] = static_cast<double>(drives.size());
}

// The provider start: everything flushed and read.
void BM_InitializeAtStart(benchmark::State& state) {
    const GeneratedSystem system(static_cast<uint32_t>(state.range(0)));
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    for (auto _ : state) {
        if (fsa->initialize(true, true, false, false) != 0) {
            state.SkipWithError("initialize failed");
            break;
        }
    }
    report(state);
}

// The refresh cycle of the cache-update thread (full rebuild).
void BM_RefreshCycle(benchmark::State& state) {
    const GeneratedSystem system(static_cast<uint32_t>(state.range(0)));
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    fsa->initialize(true, true, false, false);
    for (auto _ : state) {
        VexCacheManager::initCacheUpdate();
        const unsigned int result = fsa->initialize(false, false, true, false);
        VexCacheManager::exitCacheUpdate();
        if (result != 0) {
            state.SkipWithError("refresh failed");
            break;
        }
    }
    report(state);
}

BENCHMARK(BM_InitializeAtStart)->RangeMultiplier(2)->Range(32, 256)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RefreshCycle)->RangeMultiplier(2)->Range(32, 256)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vex::cim::fwf::bench

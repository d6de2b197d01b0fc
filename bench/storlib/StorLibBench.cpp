// Loading a large generated system and reading all of it through the API.
// Both are parameterised by the number of drives (8 controllers, one
// logical drive per four drives) and report their complexity in it.
#include <storlib/Adapter.h>
#include <storlib/Chunk.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/StorLib.h>
#include <storlib/SystemGenerator.h>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

constexpr uint32_t kControllers = 8;

struct BenchSystem {
    std::string dir, file;
    explicit BenchSystem(uint32_t drivesPerController) {
        std::string tmpl = (std::filesystem::temp_directory_path() / "storlib-bench-XXXXXX").string();
        if (!mkdtemp(tmpl.data())) std::abort();
        dir = tmpl;
        storlib::GeneratorParams p;
        p.controllers = kControllers;
        p.drivesPerController = drivesPerController;
        p.volumesPerController = drivesPerController / 4;
        file = dir + "/large.json";
        std::ofstream(file) << storlib::generateSystemDescription(p);
    }
    ~BenchSystem() {
        std::error_code ec;
        std::filesystem::remove_all(dir, ec);
    }
    storlib::Options options(const std::string& stateDir) const {
        storlib::Options o;
        o.systemFile = file;
        o.stateDir = stateDir;
        o.timeScale = 0;
        return o;
    }
};

// Every property group a provider reads: adapters, drives with their chunks,
// logical drives with their members.
uint64_t readEverything(const storlib::SystemConfig& config) {
    uint64_t sum = 0;
    for (size_t a = 0; a < config.getAdapterCount(); ++a) {
        const storlib::Adapter& ad = *config.getAdapter(a);
        sum += ad.getAdapterData().maxLogicalDrives + ad.getSerialNumber().size();
        for (const storlib::RaidObject* o : storlib::FilterCollection(ad, "HardDrive")) {
            const auto* d = o->as<storlib::HardDrive>();
            sum += d->getSizeMB() + d->getSerialNumber().size() + static_cast<uint32_t>(d->getState());
            for (const storlib::RaidObject* c : storlib::FilterCollection(*d, "Chunk")) sum += c->as<storlib::Chunk>()->getSizeMB();
        }
        for (const storlib::RaidObject* o : storlib::FilterCollection(ad, "LogicalDrive")) {
            const auto* l = o->as<storlib::LogicalDrive>();
            sum += l->getDataSizeMB() + l->getName().size() + storlib::FilterCollection(*l, "Chunk").size();
        }
    }
    return sum;
}

void BM_LoadLargeSystem(benchmark::State& state) {
    BenchSystem sys(static_cast<uint32_t>(state.range(0)));
    int round = 0;
    for (auto _ : state) {
        storlib::StorLib lib;  // a fresh state directory: description checked, state written
        if (!lib.open(sys.options(sys.dir + "/s" + std::to_string(round++)))) state.SkipWithError("open failed");
        benchmark::DoNotOptimize(lib.getSystemConfig());
    }
    state.SetComplexityN(state.range(0) * kControllers);
}
BENCHMARK(BM_LoadLargeSystem)->RangeMultiplier(2)->Range(32, 256)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

void BM_FullReadAfterChange(benchmark::State& state) {
    BenchSystem sys(static_cast<uint32_t>(state.range(0)));
    storlib::StorLib lib;
    if (!lib.open(sys.options(sys.dir + "/state"))) state.SkipWithError("open failed");
    bool on = false;
    for (auto _ : state) {
        state.PauseTiming();
        lib.setHardDriveWriteCache(storlib::Addr(0, 0, 0), on = !on);  // forces a new snapshot
        state.ResumeTiming();
        auto config = lib.getSystemConfig();
        benchmark::DoNotOptimize(readEverything(*config));
    }
    state.SetComplexityN(state.range(0) * kControllers);
}
BENCHMARK(BM_FullReadAfterChange)->RangeMultiplier(2)->Range(32, 256)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

void BM_FullReadUnchanged(benchmark::State& state) {
    BenchSystem sys(static_cast<uint32_t>(state.range(0)));
    storlib::StorLib lib;
    if (!lib.open(sys.options(sys.dir + "/state"))) state.SkipWithError("open failed");
    for (auto _ : state) {
        auto config = lib.getSystemConfig();
        benchmark::DoNotOptimize(readEverything(*config));
    }
    state.SetComplexityN(state.range(0) * kControllers);
}
BENCHMARK(BM_FullReadUnchanged)->RangeMultiplier(2)->Range(32, 256)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

}  // namespace

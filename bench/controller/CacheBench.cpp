// Object cache benchmarks on a large content; the argument is the number of
// controllers (256 drives, 64 volumes and 64 pools each).
#include <benchmark/benchmark.h>
#include <malloc.h>

#include "CacheContent.h"

namespace vex::cim::fwf::bench {
namespace {

using Cache = VexCacheManager;

void countInstances(benchmark::State& state, std::size_t perIteration) {
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * perIteration));
}

// The rebuild's copy of everything into the other repository.
void BM_CopyNewCachetoOldCache(benchmark::State& state) {
    const ContentSize size = fillCache(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Cache::copyNewCachetoOldCache();
    }
    countInstances(state, size.instances);
}

// The copy as it was done before: flush, then one add per instance, each
// comparing with all instances added so far. For comparison only; built on
// the public operations, it also pays for reading the source out.
void BM_CopyByRepeatedAdds(benchmark::State& state) {
    const ContentSize size = fillCache(static_cast<int>(state.range(0)));
    Cache* from = Cache::getInstance(true);
    Cache* to = Cache::getInstance(false);
    std::vector<CIMInstance> list;
    for (auto _ : state) {
        to->flushCache();
        for (_eVEXObjectType type : {VEX_OBJ_PHYSICAL_DRIVE, VEX_OBJ_STORAGE_VOLUME,
                                     VEX_OBJ_CONCRETE_POOL}) {
            from->getRepositoryObject(type, "", {}, false, list);
            for (const CIMInstance& instance : list) {
                to->addObjInstance(type, instance);
            }
        }
    }
    countInstances(state, size.instances);
}

void enumerateDrives(benchmark::State& state, const std::string& prefix) {
    const int controllers = static_cast<int>(state.range(0));
    fillCache(controllers);
    for (auto _ : state) {
        std::vector<CIMInstance> out;
        Cache::getInstance(true)->getRepositoryObject(VEX_OBJ_PHYSICAL_DRIVE, prefix, {}, false, out);
        benchmark::DoNotOptimize(out.data());
    }
    countInstances(state, static_cast<std::size_t>(controllers) * kDrivesPerController);
}

void BM_EnumerateDrives(benchmark::State& state) { enumerateDrives(state, ""); }
void BM_EnumerateDriveView(benchmark::State& state) { enumerateDrives(state, "DD"); }

// A get of one drive through its view class, as a plug-in's getInstance does
// (the last drive: the scan goes over the whole list).
void BM_GetDriveByKey(benchmark::State& state) {
    const int controllers = static_cast<int>(state.range(0));
    fillCache(controllers);
    const std::vector<CIMProperty> keys{CIMProperty(
        "DeviceID", CIMValue<std::string>(driveId(controllers - 1, kDrivesPerController - 1)),
        true, CIM_STRING, false)};
    for (auto _ : state) {
        std::vector<CIMInstance> out;
        Cache::getInstance(true)->getRepositoryObject(VEX_OBJ_PHYSICAL_DRIVE, "DD", keys, false, out);
        benchmark::DoNotOptimize(out.data());
    }
}

// Heap taken by one filled repository (malloc's own view, overhead included).
void BM_CacheMemory(benchmark::State& state) {
    fillCache(1);
    Cache::getInstance(false)->flushCache();
    Cache::getInstance(true)->flushCache();
    malloc_trim(0);
    const std::size_t before = mallinfo2().uordblks;
    const ContentSize size = fillCache(static_cast<int>(state.range(0)));
    const std::size_t used = mallinfo2().uordblks - before;
    for (auto _ : state) {
        benchmark::DoNotOptimize(used);
    }
    state.counters["instances"] = static_cast<double>(size.instances);
    state.counters["properties"] = static_cast<double>(size.properties);
    state.counters["cache_MiB"] = static_cast<double>(used) / (1024.0 * 1024.0);
    state.counters["bytes_per_property"] = static_cast<double>(used) / static_cast<double>(size.properties);
}

BENCHMARK(BM_CopyNewCachetoOldCache)->RangeMultiplier(2)->Range(1, 16)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CopyByRepeatedAdds)->RangeMultiplier(2)->Range(1, 8)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EnumerateDrives)->RangeMultiplier(2)->Range(1, 16)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EnumerateDriveView)->RangeMultiplier(2)->Range(1, 8)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_GetDriveByKey)->RangeMultiplier(2)->Range(1, 8)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_CacheMemory)->Arg(1)->Arg(8)->Iterations(1);

}  // namespace
}  // namespace vex::cim::fwf::bench

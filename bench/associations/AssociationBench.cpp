// Association requests the way the association base computes them (every
// pair of the two end enumerations compared) against the family's join, on a
// generated system of 8 controllers x 128 drives x 16 volumes:
//
//   <class>/enumerate/{cross,join}    the whole association
//   <class>/associators/{cross,join}  AssociatorNames from one end instance
//
// for VEX_MediaPresent, VEX_StorageVolumeAllocatedFromConcretePool and
// VEX_DiskDriveViewSystemDeviceViewView (a class not served by this build is
// left out), and prints the cross/join ratio of each at the end.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <storlib/SystemGenerator.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>

#include "CrossProductReference.h"
#include "framework/CIMNamespaces.h"
#include "framework/FrameworkFacade.h"
#include "framework/TableAssociation.h"

namespace {

using vex::cim::fwf::AbstractAssociationProviderPlugin;
using vex::cim::fwf::CIMInstance;
using vex::cim::fwf::CIMObjectPath;
using vex::cim::fwf::FrameworkFacade;

const char* const kClasses[] = {"VEX_MediaPresent", "VEX_StorageVolumeAllocatedFromConcretePool",
                                "VEX_DiskDriveViewSystemDeviceViewView"};

std::map<std::string, double> gBest;  // benchmark name -> fastest iteration, seconds

void useGeneratedSystem(const std::string& dir) {
    storlib::GeneratorParams params;
    params.controllers = 8;
    params.drivesPerController = 128;
    params.volumesPerController = 16;
    std::filesystem::create_directories(dir);
    std::ofstream(dir + "/system.json") << storlib::generateSystemDescription(params);
    setenv("STORVEX_SYSTEM", (dir + "/system.json").c_str(), 1);
    setenv("STORVEX_STATE_DIR", (dir + "/state").c_str(), 1);
    setenv("STORVEX_TIME_SCALE", "0", 1);
}

CIMObjectPath classPath(const std::string& className) {
    return CIMObjectPath("", vex::cim::fwf::kImplementationNameSpace, className, {});
}

// The first end's instance in the middle of its enumeration.
CIMObjectPath oneSource(AbstractAssociationProviderPlugin& member) {
    std::string first = member.getAntecedent();
    first = first.substr(0, first.find(','));
    CIMObjectPath path = classPath(first);
    std::vector<CIMInstance> all;
    FrameworkFacade::getInstance()->enumerateInstances(path, all);
    return all.empty() ? path : all[all.size() / 2].getPath();
}

template <typename Work>
void timed(benchmark::State& state, const std::string& name, Work work) {
    double best = 1e9;
    std::size_t count = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        count = work();
        best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    state.counters["results"] = static_cast<double>(count);
    gBest[name] = best;
}

void BM_Enumerate(benchmark::State& state, AbstractAssociationProviderPlugin* plugin, std::string name) {
    timed(state, name, [&] {
        CIMObjectPath path = classPath(name.substr(0, name.find('/')));
        std::vector<CIMInstance> out;
        plugin->enumerateInstances(path, out, false);
        return out.size();
    });
}

void BM_Associators(benchmark::State& state, AbstractAssociationProviderPlugin* plugin, std::string name,
                    CIMObjectPath source) {
    timed(state, name, [&] {
        std::string assoc = name.substr(0, name.find('/')), none;
        std::vector<CIMObjectPath> out;
        plugin->associatorNames(source, assoc, out, none, none, none);
        return out.size();
    });
}

std::vector<std::unique_ptr<vex::assoctest::CrossProductReference>> gReferences;

void registerClass(const std::string& className) {
    auto* member = dynamic_cast<vex::cim::fwf::TableAssociation*>(
        FrameworkFacade::getInstance()->getPlugIn(className));
    if (member == nullptr) {
        std::printf("%s: not served by this build, left out\n", className.c_str());
        return;
    }
    gReferences.push_back(std::make_unique<vex::assoctest::CrossProductReference>(*member));
    AbstractAssociationProviderPlugin* cross = gReferences.back().get();
    const CIMObjectPath source = oneSource(*member);
    for (auto [kind, plugin] : {std::pair<const char*, AbstractAssociationProviderPlugin*>{"cross", cross},
                                {"join", member}}) {
        const std::string e = className + "/enumerate/" + kind, a = className + "/associators/" + kind;
        benchmark::RegisterBenchmark(e.c_str(), BM_Enumerate, plugin, e)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(a.c_str(), BM_Associators, plugin, a, source)->Unit(benchmark::kMillisecond);
    }
}

void printRatios() {
    std::printf("\n%-56s %12s %12s %10s\n", "request (8 x 128 drives)", "cross ms", "join ms", "ratio");
    for (const char* className : kClasses) {
        for (const char* request : {"enumerate", "associators"}) {
            const std::string base = std::string(className) + "/" + request + "/";
            if (gBest.count(base + "cross") == 0 || gBest.count(base + "join") == 0) {
                continue;
            }
            const double cross = gBest[base + "cross"], join = gBest[base + "join"];
            std::printf("%-56s %12.2f %12.2f %9.1fx\n", (std::string(className) + " " + request).c_str(),
                        cross * 1e3, join * 1e3, cross / join);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    char pattern[] = "/tmp/vex-association-bench-XXXXXX";
    if (mkdtemp(pattern) == nullptr) {
        return 1;
    }
    useGeneratedSystem(pattern);
    if (!FrameworkFacade::getInstance()->initialize()) {
        std::fprintf(stderr, "the provider did not start\n");
        return 1;
    }
    for (const char* className : kClasses) {
        registerClass(className);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    printRatios();
    std::error_code ignored;
    std::filesystem::remove_all(pattern, ignored);
    return 0;
}

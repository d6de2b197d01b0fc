// Requests and factory calls from many threads at once (run under TSan).
#include <atomic>
#include <filesystem>
#include <thread>
#include <vector>

#include "ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::MIKind;

TEST(ProviderConcurrencyTest, FactoriesAndRequestsOnManyThreads) {
    const std::string stateDir = useSimulatedSystem("none.json");
    clearLog();
    cmpihost::Host host;
    loadProvider(host);

    constexpr int kThreads = 6;
    constexpr int kRounds = 15;
    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            const MIKind kinds[] = {MIKind::Instance, MIKind::Association, MIKind::Method,
                                    MIKind::Indication};
            if (!host.createMI(kinds[t % 4]).ok()) {
                ++failures;
            }
            cmpihost::ObjectPath profiles(kInteropNs, "VEX_RegisteredProfile");
            for (int i = 0; i < kRounds; ++i) {
                auto names = host.enumerateInstanceNames(profiles);
                auto all = host.enumerateInstances(profiles, std::vector<std::string>{"ElementName"});
                auto linked = host.referenceNames(names.paths.empty() ? profiles : names.paths[0],
                                                  {}, {});
                auto denied = host.invokeMethod({kImplNs, "VEX_HostComputerSystem"}, "M", {},
                                                cmpihost::CallOptions().as(
                                                    cmpihost::Principal::user("nobody")));
                if (!names.ok() || !all.ok() || !linked.ok() ||
                    denied.status.rc != CMPI_RC_ERR_ACCESS_DENIED) {
                    ++failures;
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(failures.load(), 0);
    EXPECT_EQ(countLines("CMPIMI : Provider Initialized successfully"), 1);
    host.unload();
    std::filesystem::remove_all(stateDir);
}

}  // namespace
}  // namespace vex::cmpitest

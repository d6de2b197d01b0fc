// Many threads at once: factory calls at start-up, requests of every kind,
// up-calls and an indication thread, all against one host. Meant to run
// under ThreadSanitizer as well.
#include "TestSupport.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace cmpihost::test {
namespace {

using namespace std::chrono_literals;

constexpr int kThreads = 4;
constexpr int kRounds = 25;

// One round of mixed requests; returns the number of wrong answers.
int oneRound(Host& host, int id) {
    int wrong = 0;
    const NamedValues in = {{"Id", Value::sint32(id)},
                            {"Path", Value::ref(ObjectPath("n", "C", {{"K", Value::sint32(id)}}))}};
    Response echo = call(host, "Echo", in);
    wrong += !(echo.ok() && echo.outArgs == in);
    Response all = host.enumerateInstances(classPath("HT_AllTypes"));
    wrong += !(all.ok() && all.instances.size() == 1);
    Response up = call(host, "Upcall");
    wrong += !(up.ok() && up.returnValue() == Value::uint32(1));
    Response assoc = host.associatorNames(classPath("HT_Source"), "A", "R", std::nullopt,
                                          std::nullopt);
    wrong += !(assoc.ok() && assoc.paths.size() == 1);
    Response principal = call(host, "Principal", {}, CallOptions().as(Principal::user(std::to_string(id))));
    wrong += principal.returnValue() != Value::string(std::to_string(id));
    wrong += !call(host, "Counter").ok();
    return wrong;
}

TEST(Concurrency, StartUpRequestsUpcallsAndIndicationsFromManyThreads) {
    auto host = loadedHost();
    host->repository().addPath(ObjectPath("root/PG_InterOp", "PG_RegisteredProfile",
                                          {{"InstanceID", Value::string("p")}}));
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            wrong += !host->createMI(MIKind::Instance).ok();
            for (int i = 0; i < kRounds; ++i) {
                wrong += oneRound(*host, t * 1000 + i);
            }
        });
    }
    threads.emplace_back([&] {
        call(*host, "StartIndications", {{"Count", Value::uint32(20)}});
        wrong += !host->indications().waitFor(20, 10s);
    });
    for (auto& th : threads) {
        th.join();
    }
    call(*host, "JoinIndications");
    EXPECT_EQ(wrong.load(), 0);
    EXPECT_EQ(host->factoryCalls(MIKind::Method), 1) << "first use makes the MI once";
    EXPECT_GE(host->factoryCalls(MIKind::Instance), kThreads);
    EXPECT_EQ(call(*host, "Counter").returnValue(), Value::uint32(kThreads * kRounds + 1));
    EXPECT_EQ(host->indications().count(), 20u);
    EXPECT_EQ(host->liveObjects(), host->hostOwnedObjects());
}

TEST(Concurrency, HostsWithFreshLivesRunSideBySide) {
    std::vector<std::thread> threads;
    std::atomic<int> wrong{0};
    for (int t = 0; t < 3; ++t) {
        threads.emplace_back([&, t] {
            auto host = loadedHost(t % 2 ? HostConfig::sfcb14() : HostConfig::pegasus214());
            for (CMPIUint32 i = 1; i <= 10; ++i) {
                wrong += call(*host, "Counter").returnValue() != Value::uint32(i);
            }
        });
    }
    for (auto& th : threads) {
        th.join();
    }
    EXPECT_EQ(wrong.load(), 0);
}

}  // namespace
}  // namespace cmpihost::test

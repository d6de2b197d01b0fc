// One life per load: the first factory call initialises, the terminating
// cleanup that balances the last factory call tears down, idle cleanups are
// refused, and nothing initialises the provider again.
#include <dlfcn.h>

#include "ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::MIKind;

constexpr MIKind kAllKinds[] = {MIKind::Instance, MIKind::Association, MIKind::Method,
                                MIKind::Indication};

class ProviderLifeCycleTest : public ProviderTest {
protected:
    // A request that reaches the adapter while the provider lives.
    cmpihost::Response probe() {
        return cimom().enumerateInstanceNames({kInteropNs, "VEX_RegisteredProfile"});
    }
};

TEST_F(ProviderLifeCycleTest, FourFactoryCallsInitialiseOnceAndTheLastCleanupTearsDown) {
    start(cmpihost::HostConfig::pegasus214(), true);
    EXPECT_TRUE(loggedAt(4, "Ref count = 1"));
    EXPECT_TRUE(loggedAt(4, "Ref count = 4"));
    EXPECT_EQ(countLines("CMPIMI : Provider Initialized successfully"), 1);
    EXPECT_EQ(countLines("Provider Initialization already done"), 3);

    for (int i = 0; i < 3; ++i) {
        clearLog();
        cmpihost::Response r = cimom().cleanup(kAllKinds[i], true);
        EXPECT_TRUE(hasStatus(r, CMPI_RC_OK, ""));
        EXPECT_TRUE(loggedAt(4, "Ref count at cleanup = " + std::to_string(3 - i)));
        EXPECT_TRUE(loggedAt(5, "Provider CleanUp already done"));
        EXPECT_TRUE(probe().ok()) << "still serving after cleanup " << i;
    }
    clearLog();
    EXPECT_TRUE(hasStatus(cimom().cleanup(MIKind::Indication, true), CMPI_RC_OK, ""));
    EXPECT_TRUE(loggedAt(4, "Ref count at cleanup = 0"));
    EXPECT_FALSE(logged("Provider CleanUp already done"));
    EXPECT_TRUE(traced("CleanUp routein called due to cimserver shutdown"));

    cmpihost::Response after = probe();
    EXPECT_TRUE(hasStatus(after, CMPI_RC_ERR_FAILED, kNoAdapter));
    EXPECT_TRUE(loggedAt(1, kNoAdapter));
}

TEST_F(ProviderLifeCycleTest, IdleCleanupIsRefusedWithoutCounting) {
    start();
    ASSERT_TRUE(cimom().createMI(MIKind::Instance).ok());
    for (int i = 0; i < 3; ++i) {
        cmpihost::Response r = cimom().cleanup(MIKind::Instance, false);
        EXPECT_TRUE(hasStatus(r, CMPI_RC_NEVER_UNLOAD, ""));
    }
    EXPECT_TRUE(traced("CleanUp routein called due to inactivity of provider and zero indication "
                       "subscription"));
    EXPECT_TRUE(traced("Preventing provider from unloading this time"));
    EXPECT_FALSE(logged("Ref count at cleanup = 0"));
    EXPECT_TRUE(probe().ok());

    // Still exactly one factory call to balance.
    clearLog();
    EXPECT_TRUE(cimom().cleanup(MIKind::Instance, true).ok());
    EXPECT_TRUE(loggedAt(4, "Ref count at cleanup = 0"));
    EXPECT_TRUE(hasStatus(probe(), CMPI_RC_ERR_FAILED, kNoAdapter));
}

TEST_F(ProviderLifeCycleTest, FactoryAfterTheFinalCleanupDoesNotInitialiseAgain) {
    start();
    ASSERT_TRUE(cimom().createMI(MIKind::Instance).ok());
    ASSERT_TRUE(cimom().cleanup(MIKind::Instance, true).ok());
    clearLog();
    ASSERT_TRUE(cimom().createMI(MIKind::Association).ok());
    EXPECT_TRUE(traced("Leaving CMPIMI VexInitialize()"));
    EXPECT_FALSE(logged("Ref count = 1"));
    EXPECT_FALSE(logged("CMPIMI : Provider Initialized successfully"));
    cmpihost::Response r = cimom().referenceNames({kInteropNs, "VEX_RegisteredProfile"}, {}, {});
    EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_FAILED, kNoAdapter));
}

TEST_F(ProviderLifeCycleTest, FinalCleanupWithoutContextWarnsAndStillTearsDown) {
    start();
    ASSERT_TRUE(cimom().createMI(MIKind::Indication).ok());
    cmpihost::Response r =
        cimom().cleanup(MIKind::Indication, true, cmpihost::withNull(cmpihost::Arg::Context));
    EXPECT_TRUE(hasStatus(r, CMPI_RC_OK, "Warning : The input parameters are invalid"));
    EXPECT_TRUE(loggedAt(5, kInvalidParameters));
    EXPECT_TRUE(hasStatus(probe(), CMPI_RC_ERR_FAILED, kNoAdapter));
}

// The tables the object manager reads before calling anything.
TEST_F(ProviderLifeCycleTest, MiTablesCarryTheirNames) {
    start();
    ASSERT_TRUE(cimom().createMI(MIKind::Instance).ok());
    void* library = dlopen(cimom().openedFile().c_str(), RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(library, nullptr);
    using Factory = CMPIInstanceMI* (*)(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
    const std::pair<const char*, const char*> expected[] = {
        {"Instance", "instancevexRAIDProvider15"},
        {"Association", "associationvexRAIDProvider15"},
        {"Method", "methodvexRAIDProvider15"},
        {"Indication", "IndicationvexRAIDProvider15"}};
    cimom().runInRequest([&](const CMPIBroker* broker, const CMPIContext* ctx) {
        for (const auto& [kind, miName] : expected) {
            std::string symbol = std::string("vexRAIDProvider15_Create_") + kind + "MI";
            auto factory = reinterpret_cast<Factory>(dlsym(library, symbol.c_str()));
            ASSERT_NE(factory, nullptr) << symbol;
            // Every MI table starts with the same three fields and cleanup.
            CMPIInstanceMI* mi = factory(broker, ctx, nullptr);
            EXPECT_EQ(mi->hdl, nullptr);
            EXPECT_EQ(mi->ft->ftVersion, 200);
            EXPECT_EQ(mi->ft->miVersion, 200);
            EXPECT_STREQ(mi->ft->miName, miName);
            EXPECT_TRUE(mi->ft->cleanup(mi, ctx, 1).rc == CMPI_RC_OK);
        }
    });
    dlclose(library);
    EXPECT_TRUE(probe().ok()) << "the host's own factory call is still unbalanced";
}

}  // namespace
}  // namespace vex::cmpitest

// Loading a provider: by path, failures with the loader's message, fresh
// lives with their own static state, factories and their records.
#include <sys/stat.h>

#include "TestSupport.h"

namespace cmpihost::test {
namespace {

TEST(Load, FindsAllFourFactoriesOfTheNamedProvider) {
    Host host;
    Status st = host.load(providerPath(), providerName());
    ASSERT_TRUE(st.ok()) << st.toString();
    EXPECT_TRUE(host.hasFactory(MIKind::Instance));
    EXPECT_TRUE(host.hasFactory(MIKind::Association));
    EXPECT_TRUE(host.hasFactory(MIKind::Method));
    EXPECT_TRUE(host.hasFactory(MIKind::Indication));
    EXPECT_EQ(host.openedFile(), providerPath());
}

TEST(Load, MissingFileGivesTheLoadersMessage) {
    for (bool fresh : {false, true}) {
        Host host;
        LoadOptions options;
        options.freshLife = fresh;
        Status st = host.load("/nonexistent/libNothing.so", "Nothing", options);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_FAILED);
        ASSERT_TRUE(st.message);
        EXPECT_NE(st.message->find("/nonexistent/libNothing.so"), std::string::npos) << *st.message;
        EXPECT_NE(st.message->find("No such file or directory"), std::string::npos) << *st.message;
        EXPECT_FALSE(host.loaded());
    }
}

TEST(Load, WrongProviderNameFindsNoFactory) {
    Host host;
    Status st = host.load(providerPath(), "SomeoneElse");
    EXPECT_EQ(st.rc, CMPI_RC_ERR_FAILED);
    EXPECT_NE(st.message->find("SomeoneElse_Create_"), std::string::npos);
    EXPECT_FALSE(host.loaded());
    Response r = host.enumerateInstances(classPath("HT_AllTypes"));
    EXPECT_EQ(r.status.rc, CMPI_RC_ERR_FAILED);
}

TEST(Load, FreshLivesHaveTheirOwnStaticsAndTheCopyIsRemoved) {
    std::string copy;
    for (int life = 0; life < 2; ++life) {
        auto host = loadedHost();
        copy = host->openedFile();
        EXPECT_NE(copy, providerPath());
        struct stat sb;
        EXPECT_EQ(::stat(copy.c_str(), &sb), 0);
        EXPECT_EQ(call(*host, "Counter").returnValue(), Value::uint32(1));
        EXPECT_EQ(call(*host, "Counter").returnValue(), Value::uint32(2));
    }
    struct stat sb;
    EXPECT_NE(::stat(copy.c_str(), &sb), 0) << "private copy left behind: " << copy;
}

TEST(Load, TwoPlainLoadsOfOneFileShareTheirStatics) {
    Host first;
    Host second;
    ASSERT_TRUE(first.load(providerPath(), providerName()).ok());
    LoadOptions global;
    global.globalSymbols = true;
    ASSERT_TRUE(second.load(providerPath(), providerName(), global).ok());
    const auto before = call(first, "Counter").returnValue().asUnsigned();
    EXPECT_EQ(call(second, "Counter").returnValue().asUnsigned(), before + 1);
    // The provider's broker pointer is shared as well and now names the
    // second host, which goes first: point it back at the survivor.
    EXPECT_TRUE(first.createMI(MIKind::Method).ok());
}

TEST(Load, FactoriesRunOnFirstUseOnceAndOnEveryExplicitCall) {
    auto host = loadedHost();
    EXPECT_EQ(host->factoryCalls(MIKind::Method), 0);
    EXPECT_EQ(call(*host, "FactoryCalls").returnValue(), Value::uint32(1));
    EXPECT_EQ(call(*host, "FactoryCalls").returnValue(), Value::uint32(1));
    EXPECT_TRUE(host->createMI(MIKind::Instance).ok());
    EXPECT_TRUE(host->createMI(MIKind::Instance).ok());
    EXPECT_EQ(host->factoryCalls(MIKind::Instance), 2);
    EXPECT_EQ(call(*host, "FactoryCalls").returnValue(), Value::uint32(3));
}

TEST(Load, CreateAllCallsEveryFactoryAtLoad) {
    Host host;
    LoadOptions options;
    options.freshLife = true;
    options.createAll = true;
    ASSERT_TRUE(host.load(providerPath(), providerName(), options).ok());
    for (MIKind k : {MIKind::Instance, MIKind::Association, MIKind::Method, MIKind::Indication}) {
        EXPECT_EQ(host.factoryCalls(k), 1);
    }
}

TEST(Load, FactoryCanBeHandedANullContext) {
    auto host = loadedHost();
    EXPECT_TRUE(host->createMI(MIKind::Method, withNull(Arg::Context)).ok());
    EXPECT_EQ(call(*host, "FactoryContextNull").returnValue(), Value::uint32(1));
}

TEST(Load, TerminatingCleanupSettlesOneFactoryCall) {
    auto host = loadedHost();
    ASSERT_TRUE(host->createMI(MIKind::Instance).ok());
    ASSERT_TRUE(host->createMI(MIKind::Instance).ok());
    Response idle = host->cleanup(MIKind::Instance, false);
    EXPECT_EQ(idle.status.rc, CMPI_RC_NEVER_UNLOAD);
    Response term = host->cleanup(MIKind::Instance, true);
    EXPECT_TRUE(term.ok());
    EXPECT_EQ(term.status.message, std::optional<std::string>("cleanup instance"));
    EXPECT_EQ(host->cleanup(MIKind::Method, true).status.rc, CMPI_RC_ERR_NOT_SUPPORTED)
        << "no method MI was made, so there is nothing to clean up";
    host->unload();  // the second instance MI is cleaned up here
    EXPECT_FALSE(host->loaded());
}

}  // namespace
}  // namespace cmpihost::test

// What the provider sees of the imitated CIMOM: broker name, version and
// capabilities, the CMPI 2.0 functions each leaves NULL, the principal of each
// mode and the object manager's own registered profiles.
#include "TestSupport.h"

#include <cmpihost/CimomProfiles.h>

namespace cmpihost::test {
namespace {

bool fact(const Response& r, const char* name) { return findNamed(r.outArgs, name)->asBool(); }

TEST(Flavor, Pegasus214HasTheCmpi20AdditionsButLeavesItsOwnSlotsNull) {
    auto host = loadedHost(HostConfig::pegasus214());
    Response r = call(*host, "Broker");
    EXPECT_EQ(*findNamed(r.outArgs, "Version"), Value::uint32(200));
    EXPECT_EQ(*findNamed(r.outArgs, "Name"), Value::string("Pegasus"));
    EXPECT_EQ(host->broker()->bft->brokerCapabilities, 0x81FFu);
    EXPECT_TRUE(fact(r, "NewCMPIError"));
    EXPECT_TRUE(fact(r, "MemoryTable"));
    EXPECT_TRUE(fact(r, "ReturnError"));
    EXPECT_TRUE(fact(r, "SetPropertyWithOrigin"));
    EXPECT_EQ(host->broker()->xft->timedCondWait, nullptr);
    EXPECT_EQ(host->broker()->xft->signalCondition, nullptr);
}

TEST(Flavor, Sfcb14ReportsVersion0AndLacksThe20Additions) {
    auto host = loadedHost(HostConfig::sfcb14());
    EXPECT_EQ(host->broker()->bft->brokerVersion, 0u);
    EXPECT_STREQ(host->broker()->bft->brokerName, "RequestHandler");
    EXPECT_EQ(host->broker()->bft->brokerCapabilities, 0x1BFu);
    EXPECT_NE(host->broker()->xft->timedCondWait, nullptr);
    EXPECT_EQ(host->broker()->eft->openMessageFile, nullptr);
    EXPECT_EQ(host->broker()->eft->closeMessageFile, nullptr);
    EXPECT_EQ(host->broker()->eft->getMessage2, nullptr);
    Response r = call(*host, "Broker");
    EXPECT_EQ(*findNamed(r.outArgs, "Version"), Value::uint32(0));
    EXPECT_FALSE(fact(r, "NewCMPIError"));
    EXPECT_FALSE(fact(r, "MemoryTable"));
    EXPECT_FALSE(fact(r, "ReturnError"));
    EXPECT_FALSE(fact(r, "SetPropertyWithOrigin"));
}

TEST(Flavor, ExtendedErrorsTravelOnlyWhereTheBrokerHasThem) {
    auto pegasus = loadedHost();
    Response r = call(*pegasus, "Error");
    EXPECT_EQ(r.status.rc, CMPI_RC_ERR_FAILED);
    ASSERT_EQ(r.errors.size(), 1u);
    const ErrorInfo& e = r.errors[0];
    EXPECT_EQ(e.owningEntity, "HostTest");
    EXPECT_EQ(e.messageId, "HT001");
    EXPECT_EQ(e.message, "disk on fire");
    EXPECT_EQ(e.severity, ErrorSevHigh);
    EXPECT_EQ(e.probableCause, Fire_Detected);
    EXPECT_EQ(e.cimStatusCode, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(e.errorSource, "slot 3");

    auto sfcb = loadedHost(HostConfig::sfcb14());
    EXPECT_EQ(call(*sfcb, "Error").status.rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

std::string principalSeen(Host& host, const CallOptions& o = {}) {
    return call(host, "Principal", {}, o).returnValue().asString();
}

TEST(Flavor, PrincipalOfEachMode) {
    EXPECT_EQ(principalSeen(*loadedHost(HostConfig::pegasus214("alice"))), "alice");
    EXPECT_EQ(principalSeen(*loadedHost(HostConfig::pegasus214WithoutAuth())), "");
    EXPECT_EQ(principalSeen(*loadedHost(HostConfig::sfcb14())), "<null chars>");
    EXPECT_EQ(principalSeen(*loadedHost(HostConfig::sfcb14(true, "bob"))), "bob");
}

TEST(Flavor, PrincipalCanBeChangedPerHostAndPerRequest) {
    auto host = loadedHost();
    EXPECT_EQ(principalSeen(*host), "root");
    host->setPrincipal(Principal::user("carol"));
    EXPECT_EQ(principalSeen(*host), "carol");
    EXPECT_EQ(principalSeen(*host, CallOptions().as(Principal::absent())), "<missing>");
    EXPECT_EQ(principalSeen(*host, CallOptions().as(Principal::nullChars())), "<null chars>");
    EXPECT_EQ(principalSeen(*host, CallOptions().as(Principal::user("dave"))), "dave");
    EXPECT_EQ(principalSeen(*host), "carol");
}

// A provider that looks for the object manager's profiles finds OpenPegasus'
// PG_RegisteredProfile instances (none of them SMI-S 1.5.0) in
// root/PG_InterOp, and in sfcb no PG_ class at all.
TEST(Flavor, EachObjectManagerHasItsOwnProfilesInItsOwnInteropNamespace) {
    const auto isA = [](const std::string& cls, const std::string& ancestor) { return cls == ancestor; };
    CMPIrc rc = CMPI_RC_OK;
    InstanceRepository pegasus;
    addCimomProfiles(pegasus, Flavor::Pegasus214);
    const auto pg = pegasus.find("root/PG_InterOp", "PG_RegisteredProfile", isA, rc);
    EXPECT_EQ(pg.size(), 5u);
    for (const Instance& profile : pg) {
        EXPECT_EQ(profile.path.key("InstanceID")->asString().find("1.5.0"), std::string::npos);
    }
    InstanceRepository sfcb;
    addCimomProfiles(sfcb, Flavor::Sfcb14);
    EXPECT_TRUE(sfcb.find("root/interop", "PG_RegisteredProfile", isA, rc).empty());
    EXPECT_EQ(sfcb.find("root/interop", "SFCB_RegisteredProfile", isA, rc).size(), 2u);
    EXPECT_STREQ(interopNamespace(Flavor::Sfcb14), "root/interop");
    EXPECT_STREQ(interopNamespace(Flavor::Pegasus214), "root/PG_InterOp");
}

}  // namespace
}  // namespace cmpihost::test

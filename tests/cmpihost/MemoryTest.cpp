// Who owns what: request objects go with their request, attached threads'
// objects with their detach, and clones, prepared contexts and objects of
// unattached threads stay with the host until released or destroyed.
#include "TestSupport.h"

#include <cmpimacs.h>

namespace cmpihost::test {
namespace {

// Everything alive belongs to the host itself: nothing of a request or an
// attachment is left over.
void expectOnlyHostOwned(const Host& host) {
    EXPECT_EQ(host.liveObjects(), host.hostOwnedObjects());
}

TEST(Memory, RequestsLeaveNothingBehind) {
    auto host = loadedHost();
    const std::size_t before = host->hostOwnedObjects();
    host->enumerateInstances(classPath("HT_AllTypes"));
    host->getInstance(ObjectPath(testNs(), "C", {{"K", Value::uint8(1)}}));
    call(*host, "Echo", {{"A", Value::array(CMPI_string, {Value::string("x")})}});
    call(*host, "Upcall");
    call(*host, "Message");
    host->associators(classPath("C"), std::nullopt, std::nullopt, std::nullopt, std::nullopt);
    expectOnlyHostOwned(*host);
    // Only the factory calls made anything of the host's own.
    EXPECT_EQ(host->hostOwnedObjects(), before + 3 * 2)
        << "per factory call (instance, method, association): its context and the provider's string";
}

TEST(Memory, ClonesStayWithTheHostUntilReleased) {
    auto host = loadedHost();
    call(*host, "Counter");
    const std::size_t base = host->hostOwnedObjects();
    call(*host, "CloneRelease");
    EXPECT_EQ(host->hostOwnedObjects(), base);
    call(*host, "CloneKeep");
    EXPECT_EQ(host->hostOwnedObjects(), base + 1);
    expectOnlyHostOwned(*host);
}

TEST(Memory, ThreadObjectsGoWithDetachOrStayWithTheHost) {
    auto host = loadedHost();
    call(*host, "Counter");
    const std::size_t base = host->hostOwnedObjects();
    call(*host, "StartIndications", {{"Count", Value::uint32(3)}});
    call(*host, "JoinIndications");
    EXPECT_EQ(host->hostOwnedObjects(), base + 1) << "only the prepared context";
    expectOnlyHostOwned(*host);
    call(*host, "UnattachedIndication");
    EXPECT_GT(host->hostOwnedObjects(), base + 1) << "made without an arena of its own";
    expectOnlyHostOwned(*host);
}

TEST(Memory, MarkAndReleaseFreeWhatCameAfterTheMark) {
    Host host;
    host.runInRequest([&](const CMPIBroker* b, const CMPIContext*) {
        CMNewString(b, "kept", nullptr);
        const std::size_t alive = host.liveObjects();
        CMPIGcStat* mark = b->mft->mark(b, nullptr);
        CMNewString(b, "a", nullptr);
        CMNewArray(b, 3, CMPI_string, nullptr);
        EXPECT_EQ(b->mft->release(b, mark).rc, CMPI_RC_OK);
        EXPECT_EQ(host.liveObjects(), alive);
        CMPIString* early = CMNewString(b, "b", nullptr);
        b->mft->freeString(b, early);
        EXPECT_EQ(host.liveObjects(), alive);
    });
    EXPECT_EQ(host.liveObjects(), 0u);
}

TEST(Memory, ObjectsMadeOutsideRequestsAreTheHostsAndPinnedOnesSurviveRelease) {
    Host host;
    CMPIObjectPath* op = host.makePath(ObjectPath("n", "C"));
    EXPECT_EQ(host.hostOwnedObjects(), 1u);
    EXPECT_EQ(CMRelease(op).rc, CMPI_RC_OK);
    EXPECT_EQ(host.liveObjects(), 0u);
    host.runInRequest([](const CMPIBroker*, const CMPIContext* ctx) {
        EXPECT_EQ(CMRelease(const_cast<CMPIContext*>(ctx)).rc, CMPI_RC_OK);
        EXPECT_EQ(CMGetContextEntryCount(ctx, nullptr), 3u) << "the request's context is still there";
    });
}

}  // namespace
}  // namespace cmpihost::test

// Indications delivered from provider threads and the collector's wait.
#include "TestSupport.h"

#include <algorithm>
#include <chrono>

namespace cmpihost::test {
namespace {

using namespace std::chrono_literals;

std::vector<std::string> functionsCalled(const Host& host) {
    std::vector<std::string> names;
    for (const Upcall& u : host.upcalls()) {
        names.push_back(u.function);
    }
    return names;
}

TEST(Indications, AttachedThreadDeliveriesCanBeAwaited) {
    auto host = loadedHost();
    ASSERT_EQ(call(*host, "StartIndications", {{"Count", Value::uint32(5)}}).returnValue(),
              Value::uint32(0));
    ASSERT_TRUE(host->indications().waitFor(5, 5s));
    EXPECT_FALSE(host->indications().waitFor(6, 20ms));
    call(*host, "JoinIndications");
    const auto all = host->indications().all();
    ASSERT_EQ(all.size(), 5u);
    for (CMPIUint32 i = 0; i < 5; ++i) {
        EXPECT_EQ(all[i].nameSpace, "root/ht");
        EXPECT_EQ(all[i].indication.className(), "HT_Indication");
        EXPECT_EQ(*all[i].indication.property("Seq"), Value::uint32(i));
        EXPECT_TRUE(all[i].attached);
        EXPECT_NE(all[i].thread, std::this_thread::get_id());
    }
    const auto names = functionsCalled(*host);
    const std::vector<std::string> expected = {"prepareAttachThread", "attachThread",
                                               "deliverIndication"};
    EXPECT_TRUE(std::search(names.begin(), names.end(), expected.begin(), expected.end()) !=
                names.end());
    EXPECT_EQ(names.back(), "detachThread");
}

TEST(Indications, DeliveryFromAnUnattachedThreadIsMarkedSo) {
    auto host = loadedHost();
    call(*host, "UnattachedIndication");
    ASSERT_TRUE(host->indications().waitFor(1, 1s));
    EXPECT_FALSE(host->indications().all()[0].attached);
}

TEST(Indications, RefusedDeliveriesAreNotKept) {
    auto host = loadedHost();
    host->indications().setAnswer(CMPI_RC_ERR_FAILED);
    call(*host, "StartIndications", {{"Count", Value::uint32(2)}});
    call(*host, "JoinIndications");
    EXPECT_EQ(host->indications().count(), 0u);
    host->indications().setAnswer(CMPI_RC_OK);
    call(*host, "UnattachedIndication");
    EXPECT_EQ(host->indications().count(), 1u);
    host->indications().clear();
    EXPECT_EQ(host->indications().count(), 0u);
}

}  // namespace
}  // namespace cmpihost::test

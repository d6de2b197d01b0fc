// Indications delivered from provider threads, the collector's wait, and
// the enumerateInstanceNames up-call answered from the repository.
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

ObjectPath profile(const std::string& cls, const std::string& id) {
    return ObjectPath("root/PG_InterOp", cls, {{"InstanceID", Value::string(id)}});
}

TEST(Indications, RegisteredProfilesAnswerTheProvidersUpcallWithSubclasses) {
    auto host = loadedHost();
    host->classes().add("PG_RegisteredSubProfile", "PG_RegisteredProfile");
    host->repository().addPath(profile("PG_RegisteredProfile", "SNIA+SMI-S+1.5.0"));
    host->repository().addPath(profile("pg_registeredsubprofile", "SNIA+Server+1.5.0"));
    host->repository().addPath(profile("CIM_Other", "ignored"));
    host->repository().addPath(ObjectPath("root/elsewhere", "PG_RegisteredProfile",
                                          {{"InstanceID", Value::string("ignored")}}));
    Response r = call(*host, "Upcall");
    ASSERT_TRUE(r.ok()) << r.status.toString();
    EXPECT_EQ(r.returnValue(), Value::uint32(2));
    EXPECT_EQ(*findNamed(r.outArgs, "Ids"),
              Value::array(CMPI_string, {Value::string("SNIA+SMI-S+1.5.0"),
                                         Value::string("SNIA+Server+1.5.0")}));
    const Upcall last = host->upcalls().back();
    EXPECT_EQ(last.function, "enumerateInstanceNames");
    EXPECT_EQ(last.path.toString(), "root/PG_InterOp:PG_RegisteredProfile");
}

TEST(Indications, UpcallsCanBeMadeToFail) {
    auto host = loadedHost();
    host->repository().setFailure("root/PG_InterOp", "PG_RegisteredProfile",
                                  CMPI_RC_ERR_INVALID_NAMESPACE);
    EXPECT_EQ(call(*host, "Upcall").status.rc, CMPI_RC_ERR_INVALID_NAMESPACE);
    host->repository().clear();
    EXPECT_EQ(call(*host, "Upcall").returnValue(), Value::uint32(0));
}

TEST(Indications, ClassPathIsAFollowsTheGivenHierarchy) {
    auto host = loadedHost();
    host->classes().add("VEX_StorageVolume", "CIM_StorageVolume");
    host->classes().add("CIM_StorageVolume", "CIM_StorageExtent");
    auto isA = [&](const char* cls, const char* parent) {
        return call(*host, "IsA", {{"Class", Value::string(cls)}, {"Parent", Value::string(parent)}})
            .returnValue()
            .asBool();
    };
    EXPECT_TRUE(isA("VEX_StorageVolume", "cim_storageextent"));
    EXPECT_TRUE(isA("vex_storagevolume", "VEX_StorageVolume"));
    EXPECT_FALSE(isA("CIM_StorageExtent", "CIM_StorageVolume"));
    EXPECT_FALSE(isA("Unknown", "CIM_StorageVolume"));
}

}  // namespace
}  // namespace cmpihost::test

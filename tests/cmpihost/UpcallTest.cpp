// The provider's calls into the broker answered from what the test gave the
// host: registered instance names and the class hierarchy.
#include "TestSupport.h"

namespace cmpihost::test {
namespace {

ObjectPath profile(const std::string& cls, const std::string& id) {
    return ObjectPath("root/PG_InterOp", cls, {{"InstanceID", Value::string(id)}});
}

TEST(Upcalls, RegisteredProfilesAnswerTheProvidersUpcallWithSubclasses) {
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

TEST(Upcalls, CanBeMadeToFail) {
    auto host = loadedHost();
    host->repository().setFailure("root/PG_InterOp", "PG_RegisteredProfile",
                                  CMPI_RC_ERR_INVALID_NAMESPACE);
    EXPECT_EQ(call(*host, "Upcall").status.rc, CMPI_RC_ERR_INVALID_NAMESPACE);
    host->repository().clear();
    EXPECT_EQ(call(*host, "Upcall").returnValue(), Value::uint32(0));
}

TEST(Upcalls, ClassPathIsAFollowsTheGivenHierarchy) {
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

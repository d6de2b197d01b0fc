// Object paths between CMPI and the framework: address, host default and the
// key bindings in both directions.
#include "HelperFixture.h"
#include "cmpi/CMPIHelper.h"

namespace vex::cmpitest {
namespace {

using cmpihost::ObjectPath;
using cmpihost::Value;
using vex::cim::adap::cmpi::CMPIHelper;

constexpr const char* kNs = "root/tkz/vex/smi_15";

// A path whose getters the test controls: namespace and class name come
// from these variables; the host is always absent.
struct FakePath {
    static inline CMPIString* nameSpace = nullptr;
    static inline CMPIrc nameSpaceRc = CMPI_RC_OK;
    static inline CMPIString* className = nullptr;
    static inline CMPIrc classNameRc = CMPI_RC_OK;

    static CMPIString* answer(CMPIStatus* rc, CMPIrc code, CMPIString* value) {
        if (rc != nullptr) {
            rc->rc = code;
            rc->msg = nullptr;
        }
        return value;
    }
    static CMPIString* getNameSpace(const CMPIObjectPath*, CMPIStatus* rc) {
        return answer(rc, nameSpaceRc, nameSpace);
    }
    static CMPIString* getHostname(const CMPIObjectPath*, CMPIStatus* rc) {
        return answer(rc, CMPI_RC_OK, nullptr);
    }
    static CMPIString* getClassName(const CMPIObjectPath*, CMPIStatus* rc) {
        return answer(rc, classNameRc, className);
    }
    static CMPIObjectPathFT* table() {
        static CMPIObjectPathFT ft = [] {
            CMPIObjectPathFT t{};
            t.getNameSpace = getNameSpace;
            t.getHostname = getHostname;
            t.getClassName = getClassName;
            return t;
        }();
        return &ft;
    }
    CMPIObjectPath path{this, table()};
};

class HelperPathTest : public HelperTest {};

class HelperPathKeepTypesTest : public HelperTest {
protected:
    HelperPathKeepTypesTest() : HelperTest(config()) {}
    static cmpihost::HostConfig config() {
        cmpihost::HostConfig c = cmpihost::HostConfig::pegasus214();
        c.keepKeyTypes = true;
        return c;
    }
};


TEST_F(HelperPathTest, PathWithoutHostGetsTheLocalHostAndNoKeysUnlessAsked) {
    ObjectPath source(kNs, "VEX_StorageVolume");
    source.addKey("DeviceID", Value::string("0:1"));
    inRequest([&](const CMPIBroker*) {
        fwf::CIMObjectPath withoutKeys;
        CMPIHelper::CMPIObjectPathToFrameworkObjectPath(host.makePath(source), false, withoutKeys);
        EXPECT_EQ(withoutKeys.getHostName(), localHostName());
        EXPECT_EQ(withoutKeys.getNameSpace(), kNs);
        EXPECT_EQ(withoutKeys.getClassName(), "VEX_StorageVolume");
        EXPECT_TRUE(withoutKeys.getKeyBindings().empty());

        source.host = "cimom.example";
        fwf::CIMObjectPath withKeys;
        CMPIHelper::CMPIObjectPathToFrameworkObjectPath(host.makePath(source), true, withKeys);
        EXPECT_EQ(withKeys.getHostName(), "cimom.example");
        ASSERT_EQ(withKeys.getKeyBindings().size(), 1u);
    });
}

// sfcb hands keys back in the type they were added with: any integer
// becomes the key integer (signed 64-bit).
TEST_F(HelperPathKeepTypesTest, KeysArriveInTheFourKeyTypes) {
    ObjectPath inner(kNs, "VEX_ControllerComputerSystem");
    inner.addKey("Name", Value::string("ctrl0"));
    ObjectPath source(kNs, "VEX_Realizes");
    source.addKey("Text", Value::string("a b"))
        .addKey("Number", Value::uint16(42))
        .addKey("Flag", Value::boolean(true))
        .addKey("Antecedent", Value::ref(inner));
    inRequest([&](const CMPIBroker*) {
        fwf::CIMObjectPath path;
        CMPIHelper::CMPIObjectPathToFrameworkObjectPath(host.makePath(source), true, path);
        auto keys = path.getKeyBindings();
        ASSERT_EQ(keys.size(), 4u);
        EXPECT_EQ(keys[0].getType(), fwf::CIM_STRING);
        EXPECT_EQ(keys[0].getStringValue().getValues().at(0), "a b");
        EXPECT_EQ(keys[1].getType(), fwf::CIM_SINT64);
        EXPECT_EQ(keys[1].getSint64Value().getValues().at(0), 42);
        EXPECT_EQ(keys[2].getType(), fwf::CIM_BOOLEAN);
        EXPECT_TRUE(keys[2].getBoolValue().getValues().at(0));
        EXPECT_EQ(keys[3].getType(), fwf::CIM_REFERENCE);
        fwf::CIMObjectPath nested = keys[3].getObjectPathValue().getValues().at(0);
        EXPECT_EQ(nested.getClassName(), "VEX_ControllerComputerSystem");
        ASSERT_EQ(nested.getKeyBindings().size(), 1u);
        EXPECT_EQ(nested.getKeyBindings()[0].getStringValue().getValues().at(0), "ctrl0");
        for (const auto& key : keys) {
            EXPECT_TRUE(key.isKey()) << key.getName();
        }
    });
}

TEST_F(HelperPathTest, NullNamesAreLoggedAndUnreadableNamesRefused) {
    inRequest([&](const CMPIBroker* broker) {
        FakePath fake;
        FakePath::nameSpace = nullptr;
        FakePath::className = nullptr;
        FakePath::nameSpaceRc = CMPI_RC_OK;
        FakePath::classNameRc = CMPI_RC_OK;
        fwf::CIMObjectPath path;
        CMPIHelper::CMPIObjectPathToFrameworkObjectPath(&fake.path, false, path);
        EXPECT_TRUE(path.getClassName().empty());
        EXPECT_TRUE(path.getNameSpace().empty());
        EXPECT_TRUE(loggedAt(2, "CMPIHelper::CMPIObjectPathToFrameworkObjectPath() - ClassName is NULL"));
        EXPECT_TRUE(loggedAt(2, "CMPIHelper::CMPIObjectPathToFrameworkObjectPath() - NameSpace is NULL"));

        FakePath::nameSpace = broker->eft->newString(broker, kNs, nullptr);
        FakePath::classNameRc = CMPI_RC_ERR_FAILED;
        auto e = thrownBy([&] { CMPIHelper::CMPIObjectPathToFrameworkObjectPath(&fake.path, false, path); });
        ASSERT_TRUE(e.has_value());
        EXPECT_EQ(e->getErrCode(), 5u);
        EXPECT_EQ(e->getErrMessage(), " :: Invalid class");

        FakePath::nameSpaceRc = CMPI_RC_ERR_FAILED;
        e = thrownBy([&] { CMPIHelper::CMPIObjectPathToFrameworkObjectPath(&fake.path, false, path); });
        ASSERT_TRUE(e.has_value());
        EXPECT_EQ(e->getErrCode(), 3u);
        EXPECT_EQ(e->getErrMessage(), " :: Invalid namespace");
    });
}

TEST_F(HelperPathKeepTypesTest, FrameworkKeysGetTheCmpiTypeOfTheirTag) {
    fwf::CIMObjectPath inner("", kNs, "VEX_DiskDrive", {text("DeviceID", "d0", true)});
    fwf::CIMObjectPath path(
        "", kNs, "VEX_Thing",
        {text("Name", "n", true), prop<unsigned short>("Slot", 3, fwf::CIM_UINT16, true),
         prop<long long>("Offset", -5, fwf::CIM_SINT64, true), prop<bool>("On", true, fwf::CIM_BOOLEAN, true),
         prop<unsigned char>("Small", 200, fwf::CIM_UINT8, true),
         prop<fwf::CIMObjectPath>("Drive", inner, fwf::CIM_REFERENCE, true)});
    inRequest([&](const CMPIBroker* broker) {
        ObjectPath out = cmpihost::Host::readPath(CMPIHelper::FrameworkObjectPathToCMPIObjectPath(path, broker));
        EXPECT_EQ(out.host, "");
        EXPECT_EQ(out.nameSpace, kNs);
        EXPECT_EQ(out.className, "VEX_Thing");
        ASSERT_EQ(out.keys.size(), 6u);
        EXPECT_EQ(*out.key("Name"), Value::string("n"));
        EXPECT_EQ(*out.key("Slot"), Value::uint16(3));
        EXPECT_EQ(*out.key("Offset"), Value::sint64(-5));
        EXPECT_EQ(*out.key("On"), Value::boolean(true));
        EXPECT_EQ(*out.key("Small"), Value::uint8(200));
        ObjectPath expectedInner(kNs, "VEX_DiskDrive");
        expectedInner.addKey("DeviceID", Value::string("d0"));
        EXPECT_EQ(*out.key("Drive"), Value::ref(expectedInner));
        EXPECT_TRUE(logged(" string property Name"));
    });
}

}  // namespace
}  // namespace vex::cmpitest

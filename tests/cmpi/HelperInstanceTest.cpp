// Instances between CMPI and the framework: the type table, property-list
// filtering, datetimes and the failures that fail a whole instance.
#include "HelperFixture.h"
#include "cmpi/CMPIHelper.h"

namespace vex::cmpitest {
namespace {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using cmpihost::Value;
using vex::cim::adap::cmpi::CMPIHelper;

constexpr const char* kNs = "root/tkz/vex/smi_15";

fwf::CIMInstance volume() {
    fwf::CIMInstance inst;
    inst.setPath(fwf::CIMObjectPath("", kNs, "VEX_StorageVolume", {}));
    inst.addCimKeyBinding(text("DeviceID", "0:1", true));
    inst.addProperty(text("ElementName", "data"));
    inst.addProperty(prop<unsigned long long>("BlockSize", 512, fwf::CIM_UINT64));
    inst.addProperty(arrayProp<unsigned short>("OperationalStatus", {2, 32768},
                                               fwf::CIM_UINT16_ARRAY));
    inst.addProperty(prop<bool>("IsBasedOnUnderlyingRedundancy", false, fwf::CIM_BOOLEAN));
    inst.addProperty(prop<int>("Delta", -3, fwf::CIM_SINT32));
    inst.addProperty(arrayProp<std::string>("Names", {"a", "b"}, fwf::CIM_STRING_ARRAY));
    return inst;
}

class HelperInstanceTest : public HelperTest {
protected:
    Instance convert(const fwf::CIMInstance& inst, std::vector<const char*> list) {
        Instance out;
        inRequest([&](const CMPIBroker* broker) {
            const char** properties = nullptr;
            if (!list.empty()) {
                list.push_back(nullptr);
                properties = list.data();
            }
            CMPIInstance* ci = CMPIHelper::FrameworkInstanceToCMPIInstance(inst, broker, properties);
            if (ci != nullptr) {
                out = cmpihost::Host::readInstance(ci);
            }
        });
        return out;
    }
};

TEST_F(HelperInstanceTest, EveryPropertyGoesOutWithTheCmpiTypeOfItsTag) {
    Instance out = convert(volume(), {});
    EXPECT_EQ(out.className(), "VEX_StorageVolume");
    EXPECT_EQ(*out.path.key("DeviceID"), Value::string("0:1"));
    EXPECT_EQ(*out.property("DeviceID"), Value::string("0:1"));
    EXPECT_EQ(*out.property("ElementName"), Value::string("data"));
    EXPECT_EQ(*out.property("BlockSize"), Value::uint64(512));
    EXPECT_EQ(*out.property("OperationalStatus"),
              Value::array(CMPI_uint16, {Value::uint16(2), Value::uint16(32768)}));
    EXPECT_EQ(*out.property("IsBasedOnUnderlyingRedundancy"), Value::boolean(false));
    EXPECT_EQ(*out.property("Delta"), Value::sint32(-3));
    EXPECT_EQ(*out.property("Names"),
              Value::array(CMPI_string, {Value::string("a"), Value::string("b")}));
}

TEST_F(HelperInstanceTest, PropertyListKeepsOnlyTheNamedPropertiesIgnoringCase) {
    Instance out = convert(volume(), {"elementname"});
    ASSERT_EQ(out.properties.size(), 1u) << "keys travel in the path, not as properties";
    EXPECT_EQ(out.properties[0].name, "ElementName");
    EXPECT_EQ(*out.path.key("DeviceID"), Value::string("0:1"));

    Instance none = convert(volume(), {"NoSuchProperty"});
    EXPECT_TRUE(none.properties.empty());
}

TEST_F(HelperInstanceTest, OneValueOfTheWrongTypeFailsTheWholeInstance) {
    fwf::CIMInstance inst = volume();
    // Declared uint16, but the value sits in the string slot.
    inst.addProperty(fwf::CIMProperty("HealthState", fwf::CIMValue<std::string>("5"), false,
                                      fwf::CIM_UINT16, false));
    inRequest([&](const CMPIBroker* broker) {
        auto e = thrownBy([&] { CMPIHelper::FrameworkInstanceToCMPIInstance(inst, broker, nullptr); });
        ASSERT_TRUE(e.has_value());
        EXPECT_EQ(e->getErrCode(), 1u);
        EXPECT_EQ(e->getErrMessage(), " :: Operation Failed");
    });
    EXPECT_TRUE(loggedAt(2, "FrameworkInstanceToCMPIInstance:Exception for the attribure "
                            "HealthState due to Type MisMatch ->20."));
}

TEST_F(HelperInstanceTest, DatetimeGoesOutAsCmpiDatetimeOrElseAsItsText) {
    fwf::CIMInstance inst = volume();
    inst.addProperty(prop<std::string>("InstallDate", "20240102030405.000006+530", fwf::CIM_DATETIME));
    inst.addProperty(prop<std::string>("Broken", "yesterday", fwf::CIM_DATETIME));
    inst.addProperty(arrayProp<std::string>("Times", {"20240102030405.000006+530"},
                                            fwf::CIM_DATETIME_ARRAY));
    Instance out = convert(inst, {});
    const Value* installDate = out.property("InstallDate");
    ASSERT_NE(installDate, nullptr);
    EXPECT_EQ(installDate->type(), CMPI_dateTime);
    EXPECT_EQ(installDate->asDateTime().text(), "20240102030405.000006+530");
    EXPECT_EQ(*out.property("Broken"), Value::string("yesterday"));
    EXPECT_EQ(out.property("Times")->type(), CMPI_dateTimeA);
}

TEST_F(HelperInstanceTest, CmpiInstanceComesInWithItsKeyedPathAndEveryProperty) {
    ObjectPath path(kNs, "VEX_Battery");
    path.addKey("DeviceID", Value::string("bat0"));
    Instance source(path);
    source.set("DeviceID", Value::string("bat0"))
        .set("ElementName", Value::string("battery"))
        .set("Level", Value::uint16(80))
        .set("Codes", Value::array(CMPI_uint32, {Value::uint32(1), Value::uint32(2)}))
        .set("Ratio", Value::real64(0.25))
        .set("Missing", Value::null(CMPI_string));
    inRequest([&](const CMPIBroker*) {
        fwf::CIMObjectPath fwPath;
        fwf::CIMInstance inst;
        CMPIHelper::CMPIInstanceToFrameworkInstance(host.makeInstance(source), fwPath, inst);
        EXPECT_EQ(inst.getClassName(), "VEX_Battery");
        ASSERT_EQ(fwPath.getKeyBindings().size(), 1u);
        ASSERT_EQ(inst.getPropertyCount(), 6u);
        const fwf::CIMProperty* level = inst.getPropertyByName("Level");
        ASSERT_NE(level, nullptr);
        EXPECT_EQ(level->getType(), fwf::CIM_UINT16);
        EXPECT_EQ(level->getUint16Value().getValues().at(0), 80);
        const fwf::CIMProperty* codes = inst.getPropertyByName("Codes");
        EXPECT_EQ(codes->getType(), fwf::CIM_UINT32_ARRAY);
        EXPECT_EQ(codes->getUint32Value().getValues(), (std::vector<unsigned int>{1, 2}));
        EXPECT_EQ(inst.getPropertyByName("Ratio")->getType(), fwf::CIM_REAL64);
        const fwf::CIMProperty* missing = inst.getPropertyByName("Missing");
        EXPECT_EQ(missing->getType(), fwf::CIM_STRING);
        EXPECT_TRUE(missing->getStringValue().isEmpty());
    });
}

}  // namespace
}  // namespace vex::cmpitest

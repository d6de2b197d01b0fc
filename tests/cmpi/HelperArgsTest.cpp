// Method arguments: the input types the methods take, the output types that
// go back, and what happens to everything else.
#include "HelperFixture.h"
#include "cmpi/CMPIHelper.h"

namespace vex::cmpitest {
namespace {

using cmpihost::NamedValues;
using cmpihost::ObjectPath;
using cmpihost::Value;
using vex::cim::adap::cmpi::CMPIHelper;

constexpr const char* kNs = "root/tkz/vex/smi_15";

class HelperArgsTest : public HelperTest {
protected:
    fwf::CIMMethodParam convertIn(const NamedValues& in) {
        fwf::CIMMethodParam params;
        inRequest([&](const CMPIBroker*) {
            CMPIHelper::CMPIArgsToFrameWorkMethodParam(host.makeArgs(in), params);
        });
        return params;
    }
};

TEST_F(HelperArgsTest, AcceptedInputTypesBecomeFrameworkArguments) {
    ObjectPath pool(kNs, "VEX_ConcreteStoragePool");
    pool.addKey("InstanceID", Value::string("pool0"));
    fwf::CIMMethodParam params = convertIn(
        {{"ElementType", Value::uint16(2)},
         {"Size", Value::uint64(1u << 30)},
         {"ElementName", Value::string("vol")},
         {"InPool", Value::ref(pool)},
         {"Members", Value::array(CMPI_string, {Value::string("d0"), Value::string("d1")})},
         {"Flags", Value::array(CMPI_uint32, {Value::uint32(9)})},
         {"Force", Value::boolean(true)},
         {"Raw", Value::array(CMPI_uint8, {Value::uint8(1)})},
         {"When", Value::dateTime(*cmpihost::DateTime::fromText("20240102030405.000006+000"))}});
    ASSERT_EQ(params.getArgumentCount(), 9u);
    EXPECT_EQ(params.getArgumentByName("ElementType")->getType(), fwf::CIM_UINT16);
    EXPECT_EQ(params.getArgumentByName("Size")->getUint64Value().getValues().at(0), 1u << 30);
    EXPECT_EQ(params.getArgumentByName("ElementName")->getStringValue().getValues().at(0), "vol");
    const fwf::CIMProperty* inPool = params.getArgumentByName("InPool");
    EXPECT_EQ(inPool->getType(), fwf::CIM_REFERENCE);
    fwf::CIMObjectPath poolPath = inPool->getObjectPathValue().getValues().at(0);
    EXPECT_EQ(poolPath.getClassName(), "VEX_ConcreteStoragePool");
    EXPECT_EQ(poolPath.getNameSpace(), kNs);
    EXPECT_EQ(poolPath.getKeyBindings().size(), 1u);
    EXPECT_EQ(params.getArgumentByName("Members")->getType(), fwf::CIM_STRING_ARRAY);
    EXPECT_EQ(params.getArgumentByName("Members")->getStringValue().getValues().size(), 2u);
    EXPECT_EQ(params.getArgumentByName("Flags")->getType(), fwf::CIM_UINT32_ARRAY);
    EXPECT_EQ(params.getArgumentByName("Raw")->getType(), fwf::CIM_UINT8_ARRAY);
    const fwf::CIMProperty* when = params.getArgumentByName("When");
    EXPECT_EQ(when->getType(), fwf::CIM_DATETIME);
    EXPECT_EQ(when->getStringValue().getValues().at(0), "20240102030405.000006+000");
}

TEST_F(HelperArgsTest, OtherInputTypesAreNotSupported) {
    for (const Value& value : {Value::real32(1.5f), Value::sint32(-1), Value::uint8(1)}) {
        inRequest([&](const CMPIBroker*) {
            fwf::CIMMethodParam params;
            CMPIArgs* in = host.makeArgs({{"Bad", value}});
            auto e = thrownBy([&] { CMPIHelper::CMPIArgsToFrameWorkMethodParam(in, params); });
            ASSERT_TRUE(e.has_value()) << value.toString();
            EXPECT_EQ(e->getErrCode(), 7u);
            EXPECT_EQ(e->getErrMessage(), " :: Not supported");
        });
    }
}

TEST_F(HelperArgsTest, OutputOfUnknownTypeIsSkippedAndTheRestReturned) {
    fwf::CIMInstance job;
    job.setPath(fwf::CIMObjectPath("", kNs, "VEX_ConcreteJob", {}));
    job.addCimKeyBinding(text("InstanceID", "job1", true));
    fwf::CIMObjectPath jobPath = job.getPath();
    fwf::CIMMethodParam out;
    out.addArgument(prop<unsigned short>("Skipped", 1, fwf::CIM_UINT16));
    out.addArgument(prop<unsigned int>("Count", 3, fwf::CIM_UINT32));
    out.addArgument(prop<unsigned long long>("Size", 4096, fwf::CIM_UINT64));
    out.addArgument(text("Message", "done"));
    out.addArgument(prop<fwf::CIMObjectPath>("Job", jobPath, fwf::CIM_REFERENCE));
    out.addArgument(arrayProp<unsigned int>("Codes", {1, 2}, fwf::CIM_UINT32_ARRAY));
    out.addArgument(arrayProp<std::string>("Lines", {"x"}, fwf::CIM_STRING_ARRAY));
    out.addArgument(arrayProp<fwf::CIMObjectPath>("Jobs", {jobPath}, fwf::CIM_REFERENCE_ARRAY));
    out.addArgument(prop<fwf::CIMInstance>("Detail", job, fwf::CIM_INSTANCE));
    out.addArgument(arrayProp<fwf::CIMInstance>("Details", {job, job}, fwf::CIM_INSTANCE_ARRAY));
    out.addArgument(prop<bool>("AlsoSkipped", true, fwf::CIM_BOOLEAN));
    NamedValues result;
    inRequest([&](const CMPIBroker* broker) {
        CMPIArgs* args = host.makeArgs({});
        EXPECT_TRUE(CMPIHelper::FrameworkArgumentsToCMPIArguments(out, args, broker));
        result = cmpihost::Host::readArgs(args);
    });
    ASSERT_EQ(result.size(), 9u);
    EXPECT_EQ(cmpihost::findNamed(result, "Skipped"), nullptr);
    EXPECT_EQ(cmpihost::findNamed(result, "AlsoSkipped"), nullptr);
    EXPECT_TRUE(loggedAt(3, "Unknown datattyppe 20"));
    EXPECT_TRUE(loggedAt(3, "Unknown datattyppe 0"));
    EXPECT_EQ(*cmpihost::findNamed(result, "Count"), Value::uint32(3));
    EXPECT_EQ(*cmpihost::findNamed(result, "Size"), Value::uint64(4096));
    EXPECT_EQ(*cmpihost::findNamed(result, "Message"), Value::string("done"));
    EXPECT_EQ(cmpihost::findNamed(result, "Job")->type(), CMPI_ref);
    EXPECT_EQ(cmpihost::findNamed(result, "Codes")->type(), CMPI_uint32A);
    EXPECT_EQ(cmpihost::findNamed(result, "Lines")->type(), CMPI_stringA);
    EXPECT_EQ(cmpihost::findNamed(result, "Jobs")->type(), CMPI_refA);
    const Value* detail = cmpihost::findNamed(result, "Detail");
    ASSERT_EQ(detail->type(), CMPI_instance);
    EXPECT_EQ(detail->asInstance().className(), "VEX_ConcreteJob");
    EXPECT_EQ(cmpihost::findNamed(result, "Details")->elements().size(), 2u);
}

TEST_F(HelperArgsTest, OutputWithoutValueFailsAndNoArgumentsTableIsRefused) {
    fwf::CIMMethodParam out;
    out.addArgument(fwf::CIMProperty("Job", fwf::CIMValue<fwf::CIMObjectPath>(), false,
                                     fwf::CIM_REFERENCE, false));
    inRequest([&](const CMPIBroker* broker) {
        auto e = thrownBy([&] {
            CMPIHelper::FrameworkArgumentsToCMPIArguments(out, host.makeArgs({}), broker);
        });
        ASSERT_TRUE(e.has_value());
        EXPECT_EQ(e->getErrCode(), 1u);
        EXPECT_FALSE(CMPIHelper::FrameworkArgumentsToCMPIArguments(out, nullptr, broker));
    });
}

}  // namespace
}  // namespace vex::cmpitest

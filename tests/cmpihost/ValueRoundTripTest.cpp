// Values of every CMPI type survive the trip through the broker's objects:
// set by a C provider, passed in as arguments and echoed back, and as keys.
#include "TestSupport.h"

namespace cmpihost::test {
namespace {

ObjectPath otherPath(const char* id) {
    return ObjectPath("root/other", "HT_Other", {{"Id", Value::string(id)}});
}

TEST(ValueRoundTrip, ProviderSetScalarsArriveWithTypeAndValue) {
    auto host = loadedHost();
    Response r = host->enumerateInstances(classPath("HT_AllTypes"));
    ASSERT_EQ(r.instances.size(), 1u);
    const Instance& i = r.instances[0];
    EXPECT_EQ(*i.property("Bool"), Value::boolean(true));
    EXPECT_EQ(*i.property("Char16"), Value::char16('A'));
    EXPECT_EQ(*i.property("U8"), Value::uint8(200));
    EXPECT_EQ(*i.property("U16"), Value::uint16(60000));
    EXPECT_EQ(*i.property("U32"), Value::uint32(4000000000u));
    EXPECT_EQ(*i.property("U64"), Value::uint64(9223372036854775813ull));
    EXPECT_EQ(*i.property("S8"), Value::sint8(-100));
    EXPECT_EQ(*i.property("S16"), Value::sint16(-30000));
    EXPECT_EQ(*i.property("S32"), Value::sint32(-2000000000));
    EXPECT_EQ(*i.property("S64"), Value::sint64(-4611686018427387904ll));
    EXPECT_EQ(*i.property("R32"), Value::real32(1.5f));
    EXPECT_EQ(*i.property("R64"), Value::real64(-2.25));
    EXPECT_EQ(*i.property("Str"), Value::string("text"));
    EXPECT_EQ(*i.property("Chars"), Value::string("chars")) << "CMPI_chars is stored as a string";
    EXPECT_EQ(*i.property("NullU32"), Value::null(CMPI_uint32));
    EXPECT_EQ(i.property("nosuch"), nullptr);
    EXPECT_NE(i.property("bool"), nullptr) << "property names are case-insensitive";
}

TEST(ValueRoundTrip, ProviderSetEncapsulatedValuesAndArraysAreDeepCopies) {
    auto host = loadedHost();
    const Instance i = host->enumerateInstances(classPath("HT_AllTypes")).instances.at(0);
    EXPECT_EQ(i.property("DT")->asDateTime().text(), "20240102030405.123456+060");
    EXPECT_EQ(i.property("Interval")->asDateTime().text(), "00000001010101.000001:000");
    EXPECT_TRUE(i.property("Interval")->asDateTime().isInterval());
    EXPECT_EQ(*i.property("Ref"), Value::ref(otherPath("x")));
    const Instance& inner = i.property("Inst")->asInstance();
    EXPECT_EQ(inner.className(), "HT_Embedded");
    EXPECT_EQ(*inner.property("Name"), Value::string("inner"));
    EXPECT_EQ(*i.property("U16A"), Value::array(CMPI_uint16, {Value::uint16(1), Value::uint16(2),
                                                              Value::uint16(3)}));
    EXPECT_EQ(*i.property("StrA"),
              Value::array(CMPI_string,
                           {Value::string("a"), Value::null(CMPI_string), Value::string("c")}));
    EXPECT_EQ(*i.property("CharsA"),
              Value::array(CMPI_string, {Value::string("x"), Value::string("y")}));
    EXPECT_EQ(*i.property("RefA"), Value::array(CMPI_ref, {Value::ref(otherPath("y"))}));
}

NamedValues everyType() {
    Instance embedded(ObjectPath("root/ht", "HT_Embedded", {{"K", Value::uint16(3)}}));
    embedded.set("Name", Value::string("e")).set("Nums", Value::array(CMPI_sint8, {Value::sint8(-1)}));
    return {
        {"Bool", Value::boolean(false)},
        {"Char16", Value::char16(0x263A)},
        {"U8", Value::uint8(255)},
        {"U16", Value::uint16(65535)},
        {"U32", Value::uint32(0xFFFFFFFFu)},
        {"U64", Value::uint64(~0ull)},
        {"S8", Value::sint8(-128)},
        {"S16", Value::sint16(-32768)},
        {"S32", Value::sint32(-2147483647 - 1)},
        {"S64", Value::sint64(-9223372036854775807ll - 1)},
        {"R32", Value::real32(3.25f)},
        {"R64", Value::real64(1e300)},
        {"Str", Value::string("with \"quotes\"")},
        {"Empty", Value::string("")},
        {"DT", Value::dateTime(*DateTime::fromText("19991231235959.999999-300"))},
        {"Iv", Value::dateTime(DateTime::fromBinary(5, true))},
        {"Ref", Value::ref(ObjectPath("root/x", "C", {{"N", Value::uint32(9)}}))},
        {"Inst", Value::instance(embedded)},
        {"Null", Value::null(CMPI_string)},
        {"NullArray", Value::null(CMPI_uint32A)},
        {"BoolA", Value::array(CMPI_boolean, {Value::boolean(true), Value::null(CMPI_boolean)})},
        {"R64A", Value::array(CMPI_real64, {Value::real64(0.5)})},
        {"EmptyA", Value::array(CMPI_uint64, {})},
        {"DTA", Value::array(CMPI_dateTime, {Value::dateTime(DateTime::fromBinary(1, false))})},
        {"InstA", Value::array(CMPI_instance, {Value::instance(embedded)})},
        {"RefA", Value::array(CMPI_ref, {Value::ref(otherPath("z")), Value::null(CMPI_ref)})},
    };
}

TEST(ValueRoundTrip, EveryTypeIsEchoedUnchangedThroughMethodArguments) {
    auto host = loadedHost();
    const NamedValues in = everyType();
    Response r = call(*host, "Echo", in);
    ASSERT_TRUE(r.ok()) << r.status.toString();
    EXPECT_EQ(r.returnValue(), Value::uint32(static_cast<CMPIUint32>(in.size())));
    ASSERT_EQ(r.outArgs.size(), in.size());
    for (std::size_t i = 0; i < in.size(); ++i) {
        EXPECT_EQ(r.outArgs[i], in[i]) << in[i].name << ": " << r.outArgs[i].value.toString()
                                       << " != " << in[i].value.toString();
    }
}

TEST(ValueRoundTrip, KeysAreReadInTheKeyTypesUnlessKeptAsAdded) {
    ObjectPath path(testNs(), "HT_Keys",
                    {{"U16", Value::uint16(7)},
                     {"S8", Value::sint8(-2)},
                     {"Flag", Value::boolean(true)},
                     {"Letter", Value::char16('Q')},
                     {"Name", Value::string("n")},
                     {"Ref", Value::ref(otherPath("r"))}});
    auto pegasus = loadedHost();
    const ObjectPath seen = pegasus->getInstance(path).instances.at(0).path;
    EXPECT_EQ(*seen.key("U16"), Value::sint64(7));
    EXPECT_EQ(*seen.key("S8"), Value::sint64(-2));
    EXPECT_EQ(*seen.key("Flag"), Value::boolean(true));
    EXPECT_EQ(*seen.key("Letter"), Value::string("Q"));
    EXPECT_EQ(*seen.key("Name"), Value::string("n"));
    EXPECT_EQ(*seen.key("Ref"), Value::ref(otherPath("r")));

    HostConfig kept;
    kept.keepKeyTypes = true;
    auto host = loadedHost(kept);
    EXPECT_EQ(host->getInstance(path).instances.at(0).path, path);
}

}  // namespace
}  // namespace cmpihost::test

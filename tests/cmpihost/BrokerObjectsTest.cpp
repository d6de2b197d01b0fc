// The broker's objects used directly, as a provider would, for the rules
// that do not show through the test provider: error codes, filters, keys
// that follow properties, context entries, date-times, enumerations.
#include "TestSupport.h"

#include <cmpimacs.h>

namespace cmpihost::test {
namespace {

class BrokerObjects : public ::testing::Test {
protected:
    // Runs body inside a request of a host without a provider.
    template <class F>
    void inRequest(F body, const CallOptions& o = {}) {
        host.runInRequest([&](const CMPIBroker* b, const CMPIContext* ctx) { body(b, ctx); }, o);
    }
    Host host;
};

TEST_F(BrokerObjects, StringsMayHaveNullCharacters) {
    inRequest([](const CMPIBroker* b, const CMPIContext*) {
        CMPIStatus st;
        CMPIString* s = CMNewString(b, nullptr, &st);
        EXPECT_EQ(st.rc, CMPI_RC_OK);
        EXPECT_EQ(CMGetCharPtr(s), nullptr);
        EXPECT_STREQ(CMGetCharPtr(CMNewString(b, "x", nullptr)), "x");
    });
}

TEST_F(BrokerObjects, ArraysCheckTypeAndIndex) {
    inRequest([](const CMPIBroker* b, const CMPIContext*) {
        CMPIStatus st;
        CMPIArray* a = CMNewArray(b, 2, CMPI_uint32, &st);
        CMPIUint32 v = 5;
        CMPIUint16 small = 1;
        EXPECT_EQ(CMSetArrayElementAt(a, 0, &v, CMPI_uint32).rc, CMPI_RC_OK);
        EXPECT_EQ(CMSetArrayElementAt(a, 1, &small, CMPI_uint16).rc, CMPI_RC_ERR_TYPE_MISMATCH);
        EXPECT_EQ(CMSetArrayElementAt(a, 2, &v, CMPI_uint32).rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
        CMPIData second = CMGetArrayElementAt(a, 1, &st);
        EXPECT_TRUE(CMIsNullValue(second));
        EXPECT_EQ(second.type, CMPI_uint32);
        CMGetArrayElementAt(a, 2, &st);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
        EXPECT_EQ(CMNewArray(b, 1, CMPI_args, &st), nullptr);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
        EXPECT_EQ(CMGetArrayType(CMNewArray(b, 0, CMPI_charsA, nullptr), nullptr), CMPI_string);

        CMPIInstance* ci = CMNewInstance(b, CMNewObjectPath(b, "n", "C", nullptr), nullptr);
        EXPECT_EQ(CMSetProperty(ci, "P", &a, CMPI_uint16A).rc, CMPI_RC_ERR_TYPE_MISMATCH)
            << "an array passed with the wrong element type";
    });
}

TEST_F(BrokerObjects, ObjectPathFieldsKeysAndText) {
    inRequest([](const CMPIBroker* b, const CMPIContext*) {
        CMPIStatus st;
        CMPIObjectPath* op = CMNewObjectPath(b, "root/a", "CIM_X", nullptr);
        CMPIObjectPath* src = CMNewObjectPath(b, "root/b", "CIM_Y", nullptr);
        CMSetHostname(src, "h");
        CMAddKey(op, "Name", "n \"1\"", CMPI_chars);
        CMPIBoolean t = 1;
        CMAddKey(op, "On", &t, CMPI_boolean);
        CMSetHostAndNameSpaceFromObjectPath(op, src);
        EXPECT_STREQ(CMGetCharPtr(CMObjectPathToString(op, nullptr)),
                     "//h/root/b:CIM_X.Name=\"n \\\"1\\\"\",On=TRUE");
        EXPECT_EQ(CMGetKeyCount(op, nullptr), 2u);
        CMPIData on = CMGetKey(op, "on", &st);
        EXPECT_EQ(st.rc, CMPI_RC_OK);
        EXPECT_TRUE(CMIsKeyValue(on));
        CMGetKey(op, "Missing", &st);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_NOT_FOUND);
        CMGetKeyAt(op, 2, nullptr, &st);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
        EXPECT_EQ(CMAddKey(op, nullptr, "x", CMPI_chars).rc, CMPI_RC_ERR_INVALID_PARAMETER);
        // OpenPegasus (the host's default) has no qualifier getters on paths.
        EXPECT_EQ(op->ft->getClassQualifier, nullptr);
    });
}

TEST_F(BrokerObjects, InstanceFilterKeysAndPath) {
    inRequest([](const CMPIBroker* b, const CMPIContext*) {
        CMPIStatus st;
        CMPIObjectPath* op = CMNewObjectPath(b, "n", "C", nullptr);
        CMAddKey(op, "Id", "old", CMPI_chars);
        CMPIInstance* ci = CMNewInstance(b, op, nullptr);
        CMSetProperty(ci, "Id", "new", CMPI_chars);
        CMSetProperty(ci, "A", "a", CMPI_chars);
        CMSetProperty(ci, "B", "b", CMPI_chars);
        CMPIObjectPath* path = CMGetObjectPath(ci, nullptr);
        EXPECT_STREQ(CMGetCharPtr(CMGetKey(path, "Id", nullptr).value.string), "new")
            << "a property named like a key moves the key along";

        const char* only[] = {"a", nullptr};
        CMSetPropertyFilter(ci, only, nullptr);
        CMSetProperty(ci, "B", "again", CMPI_chars);
        EXPECT_EQ(CMGetPropertyCount(ci, nullptr), 2u) << "Id (a key) and A stay";
        CMGetProperty(ci, "B", &st);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);

        CMPIObjectPath* other = CMNewObjectPath(b, "m", "D", nullptr);
        EXPECT_EQ(CMSetObjectPath(ci, other).rc, CMPI_RC_OK);
        EXPECT_STREQ(CMGetCharPtr(CMGetClassName(CMGetObjectPath(ci, nullptr), nullptr)), "D");
        EXPECT_EQ(CMNewInstance(b, nullptr, &st), nullptr);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_PARAMETER);
    });
}

TEST_F(BrokerObjects, RequestContextEntries) {
    CallOptions o;
    o.invocationFlags = CMPI_FLAG_DeepInheritance;
    o.contextEntries.push_back({"Extra", Value::uint16(9)});
    inRequest(
        [](const CMPIBroker*, const CMPIContext* ctx) {
            CMPIStatus st;
            EXPECT_EQ(CMGetContextEntryCount(ctx, nullptr), 4u);
            EXPECT_STREQ(CMGetCharPtr(CMGetContextEntry(ctx, CMPIPrincipal, nullptr).value.string),
                         "eve");
            EXPECT_EQ(CMGetContextEntry(ctx, CMPIInvocationFlags, nullptr).value.uint32,
                      static_cast<CMPIUint32>(CMPI_FLAG_DeepInheritance));
            CMPIString* name = nullptr;
            CMPIData extra = CMGetContextEntryAt(ctx, 3, &name, nullptr);
            EXPECT_STREQ(CMGetCharPtr(name), "Extra");
            EXPECT_EQ(extra.value.uint16, 9);
            CMPIUint32 v = 1;
            EXPECT_EQ(CMAddContextEntry(ctx, "Mine", &v, CMPI_uint32).rc, CMPI_RC_OK);
            EXPECT_EQ(CMGetContextEntryCount(ctx, nullptr), 5u);
            CMGetContextEntry(ctx, "Absent", &st);
            EXPECT_EQ(st.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
        },
        o.as(Principal::user("eve")));
}

TEST_F(BrokerObjects, DateTimesInBothFormats) {
    inRequest([](const CMPIBroker* b, const CMPIContext*) {
        CMPIStatus st;
        CMPIDateTime* utc = CMNewDateTimeFromChars(b, "19700101000001.000000+000", nullptr);
        EXPECT_EQ(CMGetBinaryFormat(utc, nullptr), 1000000ull);
        CMPIDateTime* east = CMNewDateTimeFromChars(b, "19700101010001.000000+060", nullptr);
        EXPECT_EQ(CMGetBinaryFormat(east, nullptr), 1000000ull) << "the offset is taken off";
        CMPIDateTime* iv = CMNewDateTimeFromBinary(b, 86400000000ull + 1, 1, nullptr);
        EXPECT_TRUE(CMIsInterval(iv, nullptr));
        EXPECT_STREQ(CMGetCharPtr(CMGetStringFormat(iv, nullptr)), "00000001000000.000001:000");
        CMPIDateTime* y2k = CMNewDateTimeFromBinary(b, 946684800000000ull, 0, nullptr);
        EXPECT_STREQ(CMGetCharPtr(CMGetStringFormat(y2k, nullptr)), "20000101000000.000000+000");
        for (const char* bad : {"2000", "20001301000000.000000+000", "20000101000000.000000*000",
                                "00000001000000.000000:001"}) {
            EXPECT_EQ(CMNewDateTimeFromChars(b, bad, &st), nullptr) << bad;
            EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_PARAMETER) << bad;
        }
        EXPECT_NE(CMNewDateTime(b, nullptr), nullptr);
    });
}

TEST_F(BrokerObjects, EnumerationsEndWithNoMoreElements) {
    host.repository().addPath(ObjectPath("n", "C", {{"K", Value::string("1")}}));
    host.repository().addPath(ObjectPath("n", "C", {{"K", Value::string("2")}}));
    inRequest([](const CMPIBroker* b, const CMPIContext* ctx) {
        CMPIStatus st;
        CMPIEnumeration* en = CBEnumInstanceNames(b, ctx, CMNewObjectPath(b, "n", "C", nullptr), &st);
        ASSERT_EQ(st.rc, CMPI_RC_OK);
        EXPECT_EQ(CMGetArrayCount(CMToArray(en, nullptr), nullptr), 2u);
        CMGetNext(en, nullptr);
        EXPECT_TRUE(CMHasNext(en, nullptr));
        CMPIData second = CMGetNext(en, nullptr);
        EXPECT_EQ(second.type, CMPI_ref);
        EXPECT_FALSE(CMHasNext(en, nullptr));
        CMGetNext(en, &st);
        EXPECT_EQ(st.rc, CMPI_RC_NO_MORE_ELEMENTS);
        CBEnumInstances(b, ctx, CMNewObjectPath(b, "n", "C", nullptr), nullptr, &st);
        EXPECT_EQ(st.rc, CMPI_RC_OK);
        CBGetInstance(b, ctx, CMNewObjectPath(b, "n", "C", nullptr), nullptr, &st);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_NOT_SUPPORTED);
    });
}

TEST_F(BrokerObjects, TypeInspectionMessagesAndForeignHandles) {
    inRequest([](const CMPIBroker* b, const CMPIContext* ctx) {
        CMPIStatus st;
        CMPIObjectPath* op = CMNewObjectPath(b, "n", "C", nullptr);
        EXPECT_STREQ(CMGetCharPtr(CDGetType(b, op, nullptr)), "CMPIObjectPath");
        EXPECT_TRUE(CDIsOfType(b, ctx, "CMPIContext", nullptr));
        EXPECT_STREQ(CMGetCharPtr(CDToString(b, op, nullptr)), "n:C");
        CMPIString* m = CMGetMessage(b, "ID", "$1 of $0 ($2)", &st,
                                     CMFmtArgs3(CMFmtSint(-4), CMFmtString(CMNewString(b, "s", nullptr)),
                                                CMFmtBoolean(1)));
        EXPECT_STREQ(CMGetCharPtr(m), "s of -4 (true)");
        // Same functions, but a table the host did not make: not its object.
        CMPIObjectPathFT copiedTable = *op->ft;
        CMPIObjectPath foreign = {op->hdl, &copiedTable};
        CDGetType(b, &foreign, &st);
        EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_HANDLE);
        EXPECT_EQ(CMGetKeyCount(&foreign, &st), 0u);
    });
}

}  // namespace
}  // namespace cmpihost::test

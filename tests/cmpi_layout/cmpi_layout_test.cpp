// Binary contract of the CMPI headers, as seen from C++17.
//
// Compile time: the offset of every member of every CMPI structure
// (cmpi_layout_table.h) and the exact types of the function-table slots the
// provider fills in or calls.  A table edit that shifts a slot, or a
// signature that no longer matches what sfcb/OpenPegasus pass, fails the
// build here instead of crashing the CIMOM.
//
// Run time: the numeric constants exchanged with the broker, and that each
// convenience macro and each MI stub reaches the intended slot with its
// arguments in the intended order.

#include <cmpidt.h>
#include <cmpift.h>
#include <cmpimacs.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "layout_probe.h"

static_assert(sizeof(void *) == 8 && sizeof(long) == 8,
              "the pinned layout is the x86-64 LP64 one");

#if !defined(CMPI_VER_200) || !defined(CMPI_VER_100) || CMPICurrentVersion != 200
#error "without CMPI_VERSION the headers must describe CMPI 2.0"
#endif

#define CMPI_LAYOUT_SLOT(type, member, offset)                                 \
    static_assert(offsetof(type, member) == (offset),                          \
                  #type "." #member " is not at offset " #offset);
#define CMPI_LAYOUT_SIZE(type, size)                                           \
    static_assert(sizeof(type) == (size), "sizeof(" #type ") is not " #size);
#include "cmpi_layout_table.h"

static_assert(alignof(CMPIValue) == 8, "CMPIValue alignment");
static_assert(alignof(CMPIData) == 8, "CMPIData alignment");
static_assert(alignof(CMPIStatus) == 8, "CMPIStatus alignment");

#ifdef CMPI_LAYOUT_IN_TREE
namespace sig {

// Shorthands for the argument types every signature below shares.
using Ctx = const CMPIContext *;
using Rslt = const CMPIResult *;
using Op = const CMPIObjectPath *;
using Str = const char *;
using List = const char **;
using Exp = const CMPISelectExp *;
using Mb = const CMPIBroker *;
using St = CMPIStatus *;
using Name = CMPIString **;

#define SIG(table, slot, ...) static_assert(std::is_same_v<decltype(table::slot), __VA_ARGS__>, #table "." #slot)

// ---- MI tables the provider fills in ------------------------------------
using IMI = CMPIInstanceMI *;
SIG(CMPIInstanceMIFT, cleanup, CMPIStatus (*)(IMI, Ctx, CMPIBoolean));
SIG(CMPIInstanceMIFT, enumerateInstanceNames, CMPIStatus (*)(IMI, Ctx, Rslt, Op));
SIG(CMPIInstanceMIFT, enumerateInstances, CMPIStatus (*)(IMI, Ctx, Rslt, Op, List));
SIG(CMPIInstanceMIFT, getInstance, CMPIStatus (*)(IMI, Ctx, Rslt, Op, List));
SIG(CMPIInstanceMIFT, createInstance, CMPIStatus (*)(IMI, Ctx, Rslt, Op, const CMPIInstance *));
SIG(CMPIInstanceMIFT, modifyInstance, CMPIStatus (*)(IMI, Ctx, Rslt, Op, const CMPIInstance *, List));
SIG(CMPIInstanceMIFT, deleteInstance, CMPIStatus (*)(IMI, Ctx, Rslt, Op));
SIG(CMPIInstanceMIFT, execQuery, CMPIStatus (*)(IMI, Ctx, Rslt, Op, Str, Str));
SIG(CMPIInstanceMIFT, ftVersion, int);
SIG(CMPIInstanceMIFT, miVersion, int);
SIG(CMPIInstanceMIFT, miName, const char *);

using AMI = CMPIAssociationMI *;
SIG(CMPIAssociationMIFT, cleanup, CMPIStatus (*)(AMI, Ctx, CMPIBoolean));
SIG(CMPIAssociationMIFT, associators, CMPIStatus (*)(AMI, Ctx, Rslt, Op, Str, Str, Str, Str, List));
SIG(CMPIAssociationMIFT, associatorNames, CMPIStatus (*)(AMI, Ctx, Rslt, Op, Str, Str, Str, Str));
SIG(CMPIAssociationMIFT, references, CMPIStatus (*)(AMI, Ctx, Rslt, Op, Str, Str, List));
SIG(CMPIAssociationMIFT, referenceNames, CMPIStatus (*)(AMI, Ctx, Rslt, Op, Str, Str));

SIG(CMPIMethodMIFT, cleanup, CMPIStatus (*)(CMPIMethodMI *, Ctx, CMPIBoolean));
SIG(CMPIMethodMIFT, invokeMethod,
    CMPIStatus (*)(CMPIMethodMI *, Ctx, Rslt, Op, Str, const CMPIArgs *, CMPIArgs *));

using NMI = CMPIIndicationMI *;
SIG(CMPIIndicationMIFT, cleanup, CMPIStatus (*)(NMI, Ctx, CMPIBoolean));
SIG(CMPIIndicationMIFT, authorizeFilter, CMPIStatus (*)(NMI, Ctx, Exp, Str, Op, Str));
SIG(CMPIIndicationMIFT, mustPoll, CMPIStatus (*)(NMI, Ctx, Exp, Str, Op));
SIG(CMPIIndicationMIFT, activateFilter, CMPIStatus (*)(NMI, Ctx, Exp, Str, Op, CMPIBoolean));
SIG(CMPIIndicationMIFT, deActivateFilter, CMPIStatus (*)(NMI, Ctx, Exp, Str, Op, CMPIBoolean));
SIG(CMPIIndicationMIFT, enableIndications, CMPIStatus (*)(NMI, Ctx));
SIG(CMPIIndicationMIFT, disableIndications, CMPIStatus (*)(NMI, Ctx));

// ---- broker services the provider calls ---------------------------------
SIG(CMPIBrokerFT, brokerCapabilities, unsigned int);
SIG(CMPIBrokerFT, brokerVersion, unsigned int);
SIG(CMPIBrokerFT, prepareAttachThread, CMPIContext *(*)(Mb, Ctx));
SIG(CMPIBrokerFT, attachThread, CMPIStatus (*)(Mb, Ctx));
SIG(CMPIBrokerFT, detachThread, CMPIStatus (*)(Mb, Ctx));
SIG(CMPIBrokerFT, deliverIndication, CMPIStatus (*)(Mb, Ctx, Str, const CMPIInstance *));
SIG(CMPIBrokerFT, enumerateInstanceNames, CMPIEnumeration *(*)(Mb, Ctx, Op, St));
SIG(CMPIBrokerFT, invokeMethod, CMPIData (*)(Mb, Ctx, Op, Str, const CMPIArgs *, CMPIArgs *, St));

SIG(CMPIBrokerEncFT, newInstance, CMPIInstance *(*)(Mb, Op, St));
SIG(CMPIBrokerEncFT, newObjectPath, CMPIObjectPath *(*)(Mb, Str, Str, St));
SIG(CMPIBrokerEncFT, newString, CMPIString *(*)(Mb, Str, St));
SIG(CMPIBrokerEncFT, newArray, CMPIArray *(*)(Mb, CMPICount, CMPIType, St));
SIG(CMPIBrokerEncFT, newDateTimeFromChars, CMPIDateTime *(*)(Mb, Str, St));
SIG(CMPIBrokerEncFT, classPathIsA, CMPIBoolean (*)(Mb, Op, Str, St));
SIG(CMPIBrokerEncFT, getMessage, CMPIString *(*)(Mb, Str, Str, St, CMPICount, ...));
SIG(CMPIBrokerEncFT, logMessage, CMPIStatus (*)(Mb, int, Str, Str, const CMPIString *));

// ---- object tables the provider reads and fills -------------------------
SIG(CMPIResultFT, returnData, CMPIStatus (*)(Rslt, const CMPIValue *, CMPIType));
SIG(CMPIResultFT, returnInstance, CMPIStatus (*)(Rslt, const CMPIInstance *));
SIG(CMPIResultFT, returnObjectPath, CMPIStatus (*)(Rslt, Op));
SIG(CMPIResultFT, returnDone, CMPIStatus (*)(Rslt));
SIG(CMPIContextFT, getEntry, CMPIData (*)(Ctx, Str, St));
SIG(CMPIStringFT, getCharPtr, const char *(*)(const CMPIString *, St));
SIG(CMPIObjectPathFT, getKeyAt, CMPIData (*)(Op, CMPICount, Name, St));
SIG(CMPIObjectPathFT, addKey, CMPIStatus (*)(CMPIObjectPath *, Str, const CMPIValue *, CMPIType));
SIG(CMPIInstanceFT, setProperty, CMPIStatus (*)(const CMPIInstance *, Str, const CMPIValue *, CMPIType));
SIG(CMPIInstanceFT, getPropertyAt, CMPIData (*)(const CMPIInstance *, CMPICount, Name, St));
SIG(CMPIArgsFT, addArg, CMPIStatus (*)(const CMPIArgs *, Str, const CMPIValue *, CMPIType));
SIG(CMPIArgsFT, getArgAt, CMPIData (*)(const CMPIArgs *, CMPICount, Name, St));
SIG(CMPIArrayFT, setElementAt, CMPIStatus (*)(CMPIArray *, CMPICount, const CMPIValue *, CMPIType));
SIG(CMPIArrayFT, getElementAt, CMPIData (*)(const CMPIArray *, CMPICount, St));
SIG(CMPIEnumerationFT, getNext, CMPIData (*)(const CMPIEnumeration *, St));
SIG(CMPIEnumerationFT, hasNext, CMPIBoolean (*)(const CMPIEnumeration *, St));

// ---- platform types ------------------------------------------------------
static_assert(sizeof(CMPI_THREAD_KEY_TYPE) == 4, "pthread_key_t width on glibc");
static_assert(std::is_same_v<CMPI_THREAD_RETURN, void *>);
#undef SIG

}  // namespace sig
#endif  // CMPI_LAYOUT_IN_TREE

namespace {

// ---------------------------------------------------------------------------
// Constants
// ---------------------------------------------------------------------------

// The numbers exchanged with the broker: return codes, type codes and
// masks, key types, value states, flags and the extended-error enumerations.
TEST(CmpiConstants, NumericValuesMatchTheBroker) {
    struct Case {
        const char *name;
        long value;
        long expected;
    };
#define C(name, expected) Case{#name, static_cast<long>(name), expected}
    const Case cases[] = {
        C(CMPI_RC_OK, 0), C(CMPI_RC_ERR_FAILED, 1), C(CMPI_RC_ERR_ACCESS_DENIED, 2),
        C(CMPI_RC_ERR_INVALID_NAMESPACE, 3), C(CMPI_RC_ERR_INVALID_PARAMETER, 4),
        C(CMPI_RC_ERR_INVALID_CLASS, 5), C(CMPI_RC_ERR_NOT_FOUND, 6), C(CMPI_RC_ERR_NOT_SUPPORTED, 7),
        C(CMPI_RC_ERR_NO_SUCH_PROPERTY, 12), C(CMPI_RC_ERR_TYPE_MISMATCH, 13),
        C(CMPI_RC_ERR_METHOD_NOT_AVAILABLE, 16), C(CMPI_RC_ERR_METHOD_NOT_FOUND, 17),
        C(CMPI_RC_DO_NOT_UNLOAD, 50), C(CMPI_RC_NEVER_UNLOAD, 51), C(CMPI_RC_ERR_INVALID_HANDLE, 60),
        C(CMPI_RC_ERR_INVALID_DATA_TYPE, 61), C(CMPI_RC_ERROR_SYSTEM, 100), C(CMPI_RC_ERROR, 200),
        C(CMPI_null, 0x0000), C(CMPI_boolean, 0x0002), C(CMPI_char16, 0x0003), C(CMPI_real32, 0x0008),
        C(CMPI_real64, 0x000C), C(CMPI_uint8, 0x0080), C(CMPI_uint16, 0x0090), C(CMPI_uint32, 0x00A0),
        C(CMPI_uint64, 0x00B0), C(CMPI_sint8, 0x00C0), C(CMPI_sint16, 0x00D0), C(CMPI_sint32, 0x00E0),
        C(CMPI_sint64, 0x00F0), C(CMPI_ENC, 0x1000), C(CMPI_instance, 0x1000), C(CMPI_ref, 0x1100),
        C(CMPI_args, 0x1200), C(CMPI_filter, 0x1400), C(CMPI_enumeration, 0x1500),
        C(CMPI_string, 0x1600), C(CMPI_chars, 0x1700), C(CMPI_dateTime, 0x1800), C(CMPI_ptr, 0x1900),
        C(CMPI_ARRAY, 0x2000), C(CMPI_uint8A, 0x2080), C(CMPI_uint32A, 0x20A0),
        C(CMPI_sint64A, 0x20F0), C(CMPI_stringA, 0x3600), C(CMPI_refA, 0x3100),
        C(CMPI_instanceA, 0x3000), C(CMPI_dateTimeA, 0x3800), C(CMPI_keyInteger, 0x00F0),
        C(CMPI_keyString, 0x1600), C(CMPI_keyBoolean, 0x0002), C(CMPI_keyRef, 0x1100),
        C(CMPI_goodValue, 0x0000), C(CMPI_nullValue, 0x0100), C(CMPI_keyValue, 0x0200),
        C(CMPI_notFound, 0x0400), C(CMPI_badValue, 0x8000), C(CMPI_FLAG_LocalOnly, 1),
        C(CMPI_FLAG_DeepInheritance, 2), C(CMPI_FLAG_IncludeQualifiers, 4),
        C(CMPI_FLAG_IncludeClassOrigin, 8), C(CMPIVersion100, 100), C(CMPIVersion200, 200),
        C(CMPICurrentVersion, 200), C(ErrorSevUnknown, 0), C(ErrorSevLow, 2), C(ErrorSevFatal, 5),
        C(UnsupportedOperationError, 10), C(Disk_Failure, 86), C(Leak_Detected, 113),
        C(Unexpected_Information, 130), C(CIMObjectHandle, 2), C(CMPI_PredOp_Or, 14),
        C(CMPI_MB_Supports_Extended_Error, 0x8000),
    };
#undef C
    for (const Case &c : cases) {
        EXPECT_EQ(c.value, c.expected) << c.name;
    }
    EXPECT_TRUE(CMPI_uint32 & CMPI_UINT);
    EXPECT_FALSE(CMPI_string & CMPI_ARRAY);
    EXPECT_EQ(CMPI_INTEGER, 0x00C0);  // UINT | SINT: 0x80 | 0xC0
    EXPECT_STREQ(CMPIPrincipal, "CMPIPrincipal");
    EXPECT_STREQ(CMPIInvocationFlags, "CMPIInvocationFlags");
    EXPECT_STREQ(CMPIInitNameSpace, "CMPIInitNameSpace");
    // The same headers compiled with CMPI_VERSION=100 (layout_c99_v100.c).
    EXPECT_EQ(layout_v100_current_version(), 100);
}

// ---------------------------------------------------------------------------
// Fake broker objects: every table starts zeroed, so a macro that reaches a
// slot other than the one under test calls NULL and the test dies.
// ---------------------------------------------------------------------------

std::vector<std::string> g_calls;

void record(const std::string &what) { g_calls.push_back(what); }

CMPIStatus okStatus() { return CMPIStatus{CMPI_RC_OK, nullptr}; }

// A slot that records it was reached and succeeds, or answers a null value.
CMPIStatus hit(const std::string &what) {
    record(what);
    return okStatus();
}

CMPIData dataOf(CMPIType type, CMPIValue value) {
    CMPIData d;
    d.type = type;
    d.state = CMPI_goodValue;
    d.value = value;
    return d;
}

CMPIData nullHit(const std::string &what) {
    record(what);
    return dataOf(CMPI_null, CMPIValue{});
}

struct FakeWorld {
    CMPIBrokerFT bft{};
    CMPIBrokerEncFT eft{};
    CMPIBroker broker{};

    CMPIStringFT strFt{};
    CMPIString str{};
    CMPIContextFT ctxFt{};
    CMPIContext ctx{};
    CMPIResultFT rsltFt{};
    CMPIResult rslt{};
    CMPIObjectPathFT opFt{};
    CMPIObjectPath op{};
    CMPIInstanceFT instFt{};
    CMPIInstance inst{};
    CMPIArgsFT argsFt{};
    CMPIArgs args{};
    CMPIArrayFT arrFt{};
    CMPIArray arr{};
    CMPIEnumerationFT enmFt{};
    CMPIEnumeration enm{};

    static FakeWorld *self;

    FakeWorld() {
        self = this;
        g_calls.clear();
        broker.hdl = this;
        broker.bft = &bft;
        broker.eft = &eft;
        str = CMPIString{this, &strFt};
        ctx = CMPIContext{this, &ctxFt};
        rslt = CMPIResult{this, &rsltFt};
        op = CMPIObjectPath{this, &opFt};
        inst = CMPIInstance{this, &instFt};
        args = CMPIArgs{this, &argsFt};
        arr = CMPIArray{this, &arrFt};
        enm = CMPIEnumeration{this, &enmFt};
    }
};
FakeWorld *FakeWorld::self = nullptr;

TEST(CmpiMacros, BrokerFactoriesReachTheirSlots) {
    FakeWorld w;
    w.eft.newString = [](const CMPIBroker *mb, const char *s, CMPIStatus *) -> CMPIString * {
        EXPECT_EQ(mb, &FakeWorld::self->broker);
        record(std::string("newString:") + s);
        return &FakeWorld::self->str;
    };
    w.eft.newObjectPath = [](const CMPIBroker *, const char *ns, const char *cn,
                             CMPIStatus *) -> CMPIObjectPath * {
        record(std::string("newObjectPath:") + ns + "/" + cn);
        return &FakeWorld::self->op;
    };
    w.eft.newInstance = [](const CMPIBroker *, const CMPIObjectPath *p,
                           CMPIStatus *) -> CMPIInstance * {
        EXPECT_EQ(p, &FakeWorld::self->op);
        record("newInstance");
        return &FakeWorld::self->inst;
    };
    w.eft.newArray = [](const CMPIBroker *, CMPICount n, CMPIType t, CMPIStatus *) -> CMPIArray * {
        record("newArray:" + std::to_string(n) + ":" + std::to_string(t));
        return &FakeWorld::self->arr;
    };
    w.eft.newArgs = [](const CMPIBroker *, CMPIStatus *) -> CMPIArgs * {
        record("newArgs");
        return &FakeWorld::self->args;
    };
    w.eft.classPathIsA = [](const CMPIBroker *, const CMPIObjectPath *, const char *cn,
                            CMPIStatus *) -> CMPIBoolean {
        record(std::string("classPathIsA:") + cn);
        return 1;
    };
    w.eft.newDateTimeFromChars = [](const CMPIBroker *, const char *s,
                                    CMPIStatus *) -> CMPIDateTime * {
        record(std::string("newDateTimeFromChars:") + s);
        return nullptr;
    };

    const CMPIBroker *mb = &w.broker;
    EXPECT_EQ(CMNewString(mb, "abc", nullptr), &w.str);
    EXPECT_EQ(CMNewObjectPath(mb, "root/x", "VEX_A", nullptr), &w.op);
    EXPECT_EQ(CMNewInstance(mb, &w.op, nullptr), &w.inst);
    EXPECT_EQ(CMNewArray(mb, 3, CMPI_uint32, nullptr), &w.arr);
    EXPECT_EQ(CMNewArgs(mb, nullptr), &w.args);
    EXPECT_TRUE(CMClassPathIsA(mb, &w.op, "CIM_Component", nullptr));
    EXPECT_EQ(CMNewDateTimeFromChars(mb, "20240101000000.000000+000", nullptr), nullptr);

    const std::vector<std::string> expected = {"newString:abc",
                                               "newObjectPath:root/x/VEX_A",
                                               "newInstance",
                                               "newArray:3:160",
                                               "newArgs",
                                               "classPathIsA:CIM_Component",
                                               "newDateTimeFromChars:20240101000000.000000+000"};
    EXPECT_EQ(g_calls, expected);
}

TEST(CmpiMacros, BrokerServicesReachTheirSlots) {
    FakeWorld w;
    w.bft.prepareAttachThread = [](const CMPIBroker *, const CMPIContext *c) -> CMPIContext * {
        record("prepareAttachThread");
        return const_cast<CMPIContext *>(c);
    };
    w.bft.attachThread = [](const CMPIBroker *, const CMPIContext *) {
        return hit("attachThread");
    };
    w.bft.detachThread = [](const CMPIBroker *, const CMPIContext *) {
        return hit("detachThread");
    };
    w.bft.deliverIndication = [](const CMPIBroker *, const CMPIContext *, const char *ns,
                                 const CMPIInstance *i) {
        EXPECT_EQ(i, &FakeWorld::self->inst);
        record(std::string("deliverIndication:") + ns);
        return okStatus();
    };
    w.bft.enumerateInstanceNames = [](const CMPIBroker *, const CMPIContext *,
                                      const CMPIObjectPath *p, CMPIStatus *) -> CMPIEnumeration * {
        EXPECT_EQ(p, &FakeWorld::self->op);
        record("enumerateInstanceNames");
        return &FakeWorld::self->enm;
    };

    const CMPIBroker *mb = &w.broker;
    EXPECT_EQ(CBPrepareAttachThread(mb, &w.ctx), &w.ctx);
    EXPECT_EQ(CBAttachThread(mb, &w.ctx).rc, CMPI_RC_OK);
    EXPECT_EQ(CBDeliverIndication(mb, &w.ctx, "root/interop", &w.inst).rc, CMPI_RC_OK);
    EXPECT_EQ(CBEnumInstanceNames(mb, &w.ctx, &w.op, nullptr), &w.enm);
    EXPECT_EQ(CBDetachThread(mb, &w.ctx).rc, CMPI_RC_OK);

    const std::vector<std::string> expected = {"prepareAttachThread", "attachThread",
                                               "deliverIndication:root/interop",
                                               "enumerateInstanceNames", "detachThread"};
    EXPECT_EQ(g_calls, expected);
}

TEST(CmpiMacros, ObjectPathAndInstanceAccessors) {
    FakeWorld w;
    w.opFt.getKeyCount = [](const CMPIObjectPath *, CMPIStatus *) -> CMPICount { return 2; };
    w.opFt.getKeyAt = [](const CMPIObjectPath *, CMPICount i, CMPIString **name, CMPIStatus *) {
        record("getKeyAt:" + std::to_string(i));
        *name = &FakeWorld::self->str;
        CMPIValue v{};
        v.sint64 = 42;
        return dataOf(CMPI_sint64, v);
    };
    w.opFt.getKey = [](const CMPIObjectPath *, const char *n, CMPIStatus *) {
        return nullHit(std::string("getKey:") + n);
    };
    // With CMPI_chars the value pointer is the character pointer itself.
    w.opFt.addKey = [](CMPIObjectPath *, const char *n, const CMPIValue *v, CMPIType t) {
        return hit(std::string("addKey:") + n + "=" + reinterpret_cast<const char *>(v) + ":" +
                   std::to_string(t));
    };
    w.opFt.getClassName = [](const CMPIObjectPath *, CMPIStatus *) -> CMPIString * {
        record("getClassName");
        return &FakeWorld::self->str;
    };
    w.opFt.getNameSpace = [](const CMPIObjectPath *, CMPIStatus *) -> CMPIString * {
        record("getNameSpace");
        return &FakeWorld::self->str;
    };
    w.opFt.getHostname = [](const CMPIObjectPath *, CMPIStatus *) -> CMPIString * {
        record("getHostname");
        return nullptr;
    };
    w.opFt.setHostname = [](CMPIObjectPath *, const char *h) {
        return hit(std::string("setHostname:") + h);
    };
    w.strFt.getCharPtr = [](const CMPIString *, CMPIStatus *) -> const char * {
        return "DeviceID";
    };
    w.instFt.setProperty = [](const CMPIInstance *, const char *n, const CMPIValue *v, CMPIType t) {
        return hit(std::string("setProperty:") + n + "=" + std::to_string(v->uint16) + ":" +
                   std::to_string(t));
    };
    w.instFt.getPropertyCount = [](const CMPIInstance *, CMPIStatus *) -> CMPICount { return 5; };
    w.instFt.getPropertyAt = [](const CMPIInstance *, CMPICount i, CMPIString **, CMPIStatus *) {
        return nullHit("getPropertyAt:" + std::to_string(i));
    };
    w.instFt.getProperty = [](const CMPIInstance *, const char *n, CMPIStatus *) {
        return nullHit(std::string("getProperty:") + n);
    };

    CMPIObjectPath *op = &w.op;
    EXPECT_EQ(CMGetKeyCount(op, nullptr), 2u);
    CMPIString *name = nullptr;
    CMPIData key = CMGetKeyAt(op, 1, &name, nullptr);
    EXPECT_EQ(key.type, CMPI_sint64);
    EXPECT_EQ(key.value.sint64, 42);
    EXPECT_STREQ(CMGetCharsPtr(name, nullptr), "DeviceID");
    EXPECT_STREQ(CMGetCharPtr(name), "DeviceID");
    CMGetKey(op, "Tag", nullptr);
    CMAddKey(op, "CreationClassName", "VEX_A", CMPI_chars);
    CMGetClassName(op, nullptr);
    CMGetNameSpace(op, nullptr);
    CMGetHostname(op, nullptr);
    CMSetHostname(op, "h1");

    CMPIInstance *ci = &w.inst;
    CMPIUint16 health = 5;
    CMSetProperty(ci, "HealthState", &health, CMPI_uint16);
    EXPECT_EQ(CMGetPropertyCount(ci, nullptr), 5u);
    CMGetPropertyAt(ci, 4, nullptr, nullptr);
    CMGetProperty(ci, "Name", nullptr);

    const std::vector<std::string> expected = {"getKeyAt:1",
                                               "getKey:Tag",
                                               "addKey:CreationClassName=VEX_A:5888",
                                               "getClassName",
                                               "getNameSpace",
                                               "getHostname",
                                               "setHostname:h1",
                                               "setProperty:HealthState=5:144",
                                               "getPropertyAt:4",
                                               "getProperty:Name"};
    EXPECT_EQ(g_calls, expected);
}

TEST(CmpiMacros, ArgsArraysEnumerationsContextAndResult) {
    FakeWorld w;
    w.argsFt.addArg = [](const CMPIArgs *, const char *n, const CMPIValue *v, CMPIType t) {
        return hit(std::string("addArg:") + n + "=" + std::to_string(v->uint32) + ":" +
                   std::to_string(t));
    };
    w.argsFt.getArg = [](const CMPIArgs *, const char *n, CMPIStatus *) {
        return nullHit(std::string("getArg:") + n);
    };
    w.argsFt.getArgAt = [](const CMPIArgs *, CMPICount i, CMPIString **, CMPIStatus *) {
        return nullHit("getArgAt:" + std::to_string(i));
    };
    w.argsFt.getArgCount = [](const CMPIArgs *, CMPIStatus *) -> CMPICount { return 3; };
    w.arrFt.getSize = [](const CMPIArray *, CMPIStatus *) -> CMPICount { return 4; };
    w.arrFt.setElementAt = [](CMPIArray *, CMPICount i, const CMPIValue *v, CMPIType t) {
        return hit("setElementAt:" + std::to_string(i) + "=" + reinterpret_cast<const char *>(v) +
                   ":" + std::to_string(t));
    };
    w.arrFt.getElementAt = [](const CMPIArray *, CMPICount i, CMPIStatus *) {
        return nullHit("getElementAt:" + std::to_string(i));
    };
    w.enmFt.hasNext = [](const CMPIEnumeration *, CMPIStatus *) -> CMPIBoolean {
        record("hasNext");
        return 0;
    };
    w.enmFt.getNext = [](const CMPIEnumeration *, CMPIStatus *) { return nullHit("getNext"); };
    w.ctxFt.getEntry = [](const CMPIContext *, const char *n, CMPIStatus *) {
        record(std::string("getEntry:") + n);
        CMPIValue v{};
        v.string = &FakeWorld::self->str;
        return dataOf(CMPI_string, v);
    };
    w.rsltFt.returnInstance = [](const CMPIResult *, const CMPIInstance *i) {
        EXPECT_EQ(i, &FakeWorld::self->inst);
        record("returnInstance");
        return okStatus();
    };
    w.rsltFt.returnObjectPath = [](const CMPIResult *, const CMPIObjectPath *p) {
        EXPECT_EQ(p, &FakeWorld::self->op);
        record("returnObjectPath");
        return okStatus();
    };
    w.rsltFt.returnData = [](const CMPIResult *, const CMPIValue *v, CMPIType t) {
        return hit("returnData:" + std::to_string(v->uint32) + ":" + std::to_string(t));
    };
    w.rsltFt.returnDone = [](const CMPIResult *) { return hit("returnDone"); };

    CMPIUint32 jobs = 9;
    CMAddArg(&w.args, "Job", &jobs, CMPI_uint32);
    CMGetArg(&w.args, "Size", nullptr);
    CMGetArgAt(&w.args, 2, nullptr, nullptr);
    EXPECT_EQ(CMGetArgCount(&w.args, nullptr), 3u);
    EXPECT_EQ(CMGetArrayCount(&w.arr, nullptr), 4u);
    CMSetArrayElementAt(&w.arr, 1, "x", CMPI_chars);
    CMGetArrayElementAt(&w.arr, 3, nullptr);
    EXPECT_FALSE(CMHasNext(&w.enm, nullptr));
    CMGetNext(&w.enm, nullptr);
    CMPIData principal = CMGetContextEntry(&w.ctx, CMPIPrincipal, nullptr);
    EXPECT_EQ(principal.value.string, &w.str);
    CMReturnInstance(&w.rslt, &w.inst);
    CMReturnObjectPath(&w.rslt, &w.op);
    CMReturnData(&w.rslt, &jobs, CMPI_uint32);
    CMReturnDone(&w.rslt);

    const std::vector<std::string> expected = {
        "addArg:Job=9:160", "getArg:Size",      "getArgAt:2",       "setElementAt:1=x:5888",
        "getElementAt:3",   "hasNext",          "getNext",          "getEntry:CMPIPrincipal",
        "returnInstance",   "returnObjectPath", "returnData:9:160", "returnDone"};
    EXPECT_EQ(g_calls, expected);
}

CMPIStatus returnWithChars(const CMPIBroker *mb) {
    CMReturnWithChars(mb, CMPI_RC_ERR_INVALID_PARAMETER, "The input parameters are invalid");
}

CMPIStatus returnNeverUnload() { CMReturn(CMPI_RC_NEVER_UNLOAD); }

TEST(CmpiMacros, StatusHelpers) {
    FakeWorld w;
    w.eft.newString = [](const CMPIBroker *, const char *s, CMPIStatus *) -> CMPIString * {
        record(std::string("newString:") + s);
        return &FakeWorld::self->str;
    };

    CMPIStatus st = returnWithChars(&w.broker);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(st.msg, &w.str);
    st = returnWithChars(nullptr);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(st.msg, nullptr);
    st = returnNeverUnload();
    EXPECT_EQ(st.rc, 51);
    EXPECT_EQ(st.msg, nullptr);

    CMPIStatus out{CMPI_RC_OK, nullptr};
    CMSetStatusWithChars(&w.broker, &out, CMPI_RC_ERR_ACCESS_DENIED, "denied");
    EXPECT_EQ(out.rc, CMPI_RC_ERR_ACCESS_DENIED);
    EXPECT_EQ(out.msg, &w.str);
    CMSetStatus(&out, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(out.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(out.msg, nullptr);
    CMPIStatus *none = nullptr;
    CMSetStatus(none, CMPI_RC_ERR_FAILED);  // must not touch anything

    const std::vector<std::string> expected = {"newString:The input parameters are invalid",
                                               "newString:denied"};
    EXPECT_EQ(g_calls, expected);
}

TEST(CmpiMacros, NullObjectAndValueTests) {
    CMPIContextFT ft{};
    CMPIContext live{&ft, &ft};
    CMPIContext dead{nullptr, &ft};
    const CMPIContext *missing = nullptr;
    EXPECT_FALSE(CMIsNullObject(&live));
    EXPECT_TRUE(CMIsNullObject(&dead));
    EXPECT_TRUE(CMIsNullObject(missing));

    CMPIData d = dataOf(CMPI_stringA, CMPIValue{});
    EXPECT_TRUE(CMIsArray(d));
    EXPECT_FALSE(CMIsNullValue(d));
    d.state = CMPI_nullValue | CMPI_keyValue;
    EXPECT_TRUE(CMIsNullValue(d));
    EXPECT_TRUE(CMIsKeyValue(d));
}

// The same kind of provider code, compiled as C99 (layout_c99.c).
TEST(CmpiMacros, MacrosCompiledAsC) {
    FakeWorld w;
    w.ctxFt.getEntry = [](const CMPIContext *, const char *n, CMPIStatus *rc) {
        record(std::string("getEntry:") + n);
        if (rc) *rc = okStatus();
        CMPIValue v{};
        v.string = &FakeWorld::self->str;
        return dataOf(CMPI_string, v);
    };
    w.opFt.getNameSpace = [](const CMPIObjectPath *, CMPIStatus *) -> CMPIString * {
        record("getNameSpace");
        return &FakeWorld::self->str;
    };
    w.strFt.getCharPtr = [](const CMPIString *, CMPIStatus *) -> const char * { return "root/ns"; };
    w.eft.newObjectPath = [](const CMPIBroker *, const char *ns, const char *cn,
                             CMPIStatus *) -> CMPIObjectPath * {
        record(std::string("newObjectPath:") + ns + "/" + cn);
        return &FakeWorld::self->op;
    };
    w.opFt.addKey = [](CMPIObjectPath *, const char *n, const CMPIValue *v, CMPIType t) {
        return hit(std::string("addKey:") + n + ":" +
                   (t == CMPI_chars ? std::string(reinterpret_cast<const char *>(v))
                                    : std::to_string(v->uint16)));
    };
    w.rsltFt.returnObjectPath = [](const CMPIResult *, const CMPIObjectPath *) {
        return hit("returnObjectPath");
    };
    w.rsltFt.returnDone = [](const CMPIResult *) { return hit("returnDone"); };
    w.eft.newString = [](const CMPIBroker *, const char *s, CMPIStatus *) -> CMPIString * {
        record(std::string("newString:") + s);
        return &FakeWorld::self->str;
    };

    CMPIStatus st = layout_c_enum_names(&w.broker, &w.ctx, &w.rslt, &w.op);
    EXPECT_EQ(st.rc, CMPI_RC_OK);
    const std::vector<std::string> expected = {"getEntry:CMPIPrincipal",
                                               "getNameSpace",
                                               "newObjectPath:root/ns/VEX_Probe",
                                               "addKey:Name:disk0",
                                               "addKey:Slot:7",
                                               "returnObjectPath",
                                               "returnDone"};
    EXPECT_EQ(g_calls, expected);

    g_calls.clear();
    CMPIObjectPath nullPath{nullptr, &w.opFt};
    st = layout_c_enum_names(&w.broker, &w.ctx, &w.rslt, &nullPath);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(st.msg, &w.str);
    EXPECT_EQ(g_calls, std::vector<std::string>{"newString:bad arguments"});
}

#ifdef CMPI_LAYOUT_IN_TREE
// ---------------------------------------------------------------------------
// MI stubs generated by CM*MIStub in layout_c99.c
// ---------------------------------------------------------------------------

const CMPIBroker *fakeBrokerAddress() {
    static CMPIBroker b{};
    return &b;
}

template <typename MI, typename Slot, typename... Args>
std::string reach(MI *mi, Slot slot, Args... args) {
    EXPECT_NE(slot, nullptr);
    if (slot == nullptr) return "<null slot>";
    CMPIStatus st = slot(mi, args...);
    EXPECT_EQ(st.rc, CMPI_RC_OK);
    return layout_probe_last();
}

TEST(CmpiStubs, InstanceStubFillsEverySlotInOrder) {
    const int hooksBefore = layout_probe_hooks();
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIInstanceMI *mi = layout_probe_inst_factory(fakeBrokerAddress(), nullptr, &rc);
    ASSERT_NE(mi, nullptr);
    EXPECT_EQ(mi->hdl, nullptr);
    EXPECT_EQ(layout_probe_broker(), fakeBrokerAddress());
    EXPECT_EQ(layout_probe_hooks(), hooksBefore + 1);

    const CMPIInstanceMIFT *ft = mi->ft;
    EXPECT_EQ(ft->ftVersion, 200);
    EXPECT_EQ(ft->miVersion, 200);
    EXPECT_STREQ(ft->miName, "instancelayoutprobe");
    EXPECT_EQ(reach(mi, ft->cleanup, nullptr, CMPIBoolean{1}), "instance.cleanup");
    EXPECT_EQ(reach(mi, ft->enumerateInstanceNames, nullptr, nullptr, nullptr),
              "instance.enumerateInstanceNames");
    EXPECT_EQ(reach(mi, ft->enumerateInstances, nullptr, nullptr, nullptr, nullptr),
              "instance.enumerateInstances");
    EXPECT_EQ(reach(mi, ft->getInstance, nullptr, nullptr, nullptr, nullptr),
              "instance.getInstance");
    EXPECT_EQ(reach(mi, ft->createInstance, nullptr, nullptr, nullptr, nullptr),
              "instance.createInstance");
    EXPECT_EQ(reach(mi, ft->modifyInstance, nullptr, nullptr, nullptr, nullptr, nullptr),
              "instance.modifyInstance");
    EXPECT_EQ(reach(mi, ft->deleteInstance, nullptr, nullptr, nullptr),
              "instance.deleteInstance");
    EXPECT_EQ(reach(mi, ft->execQuery, nullptr, nullptr, nullptr, "q", "WQL"),
              "instance.execQuery");
}

TEST(CmpiStubs, AssociationAndMethodStubs) {
    CMPIAssociationMI *ami = layout_probe_assoc_factory(fakeBrokerAddress(), nullptr, nullptr);
    ASSERT_NE(ami, nullptr);
    const CMPIAssociationMIFT *aft = ami->ft;
    EXPECT_EQ(aft->ftVersion, 200);
    EXPECT_STREQ(aft->miName, "associationlayoutprobe");
    EXPECT_EQ(reach(ami, aft->cleanup, nullptr, CMPIBoolean{0}), "association.cleanup");
    EXPECT_EQ(reach(ami, aft->associators, nullptr, nullptr, nullptr, nullptr, nullptr,
                    nullptr, nullptr, nullptr),
              "association.associators");
    EXPECT_EQ(reach(ami, aft->associatorNames, nullptr, nullptr, nullptr, nullptr, nullptr,
                    nullptr, nullptr),
              "association.associatorNames");
    EXPECT_EQ(reach(ami, aft->references, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
              "association.references");
    EXPECT_EQ(reach(ami, aft->referenceNames, nullptr, nullptr, nullptr, nullptr, nullptr),
              "association.referenceNames");

    CMPIMethodMI *mmi = layout_probe_meth_factory(fakeBrokerAddress(), nullptr, nullptr);
    ASSERT_NE(mmi, nullptr);
    const CMPIMethodMIFT *mft = mmi->ft;
    EXPECT_STREQ(mft->miName, "methodlayoutprobe");
    EXPECT_EQ(reach(mmi, mft->cleanup, nullptr, CMPIBoolean{1}), "method.cleanup");
    EXPECT_EQ(reach(mmi, mft->invokeMethod, nullptr, nullptr, nullptr, "Rebuild", nullptr,
                    nullptr),
              "method.invokeMethod");
}

TEST(CmpiStubs, IndicationAndPropertyStubs) {
    CMPIIndicationMI *imi = layout_probe_ind_factory(fakeBrokerAddress(), nullptr, nullptr);
    ASSERT_NE(imi, nullptr);
    const CMPIIndicationMIFT *ift = imi->ft;
    EXPECT_EQ(ift->ftVersion, 200);
    EXPECT_STREQ(ift->miName, "Indicationlayoutprobe");
    EXPECT_EQ(reach(imi, ift->cleanup, nullptr, CMPIBoolean{1}), "indication.cleanup");
    EXPECT_EQ(reach(imi, ift->authorizeFilter, nullptr, nullptr, "C", nullptr, "owner"),
              "indication.authorizeFilter");
    EXPECT_EQ(reach(imi, ift->mustPoll, nullptr, nullptr, "C", nullptr), "indication.mustPoll");
    EXPECT_EQ(reach(imi, ift->activateFilter, nullptr, nullptr, "C", nullptr, CMPIBoolean{1}),
              "indication.activateFilter");
    EXPECT_EQ(reach(imi, ift->deActivateFilter, nullptr, nullptr, "C", nullptr, CMPIBoolean{1}),
              "indication.deActivateFilter");
    EXPECT_EQ(reach(imi, ift->enableIndications, nullptr), "indication.enableIndications");
    EXPECT_EQ(reach(imi, ift->disableIndications, nullptr), "indication.disableIndications");

    CMPIPropertyMI *pmi = layout_probe_prop_factory(fakeBrokerAddress(), nullptr, nullptr);
    ASSERT_NE(pmi, nullptr);
    const CMPIPropertyMIFT *pft = pmi->ft;
    EXPECT_STREQ(pft->miName, "propertylayoutprobe");
    EXPECT_EQ(reach(pmi, pft->cleanup, nullptr, CMPIBoolean{1}), "property.cleanup");
    EXPECT_EQ(reach(pmi, pft->setProperty, nullptr, nullptr, nullptr, "P",
                    dataOf(CMPI_null, CMPIValue{})),
              "property.setProperty");
    EXPECT_EQ(reach(pmi, pft->getProperty, nullptr, nullptr, nullptr, "P"),
              "property.getProperty");
    EXPECT_EQ(pft->setPropertyWithOrigin, nullptr);
}
#endif  // CMPI_LAYOUT_IN_TREE

}  // namespace

// The argument checks of the entry functions, including the deliberate
// asymmetries, and what the entry layer logs and traces.
#include <functional>
#include <vector>

#include "ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::Arg;
using cmpihost::CallOptions;
using cmpihost::ObjectPath;
using cmpihost::Response;

const ObjectPath kProfiles(kInteropNs, "VEX_RegisteredProfile");

class ProviderEntryTest : public ProviderTest {
protected:
    void SetUp() override {
        ProviderTest::SetUp();
        start();
    }

    struct Entry {
        const char* name;
        std::function<Response(const CallOptions&)> call;
    };

    // The request entries that check MI, context, result and reference.
    std::vector<Entry> checkedEntries() {
        cmpihost::Host& h = cimom();
        cmpihost::Instance instance(kProfiles);
        return {
            {"EnumInstanceNames", [&h](const CallOptions& o) { return h.enumerateInstanceNames(kProfiles, o); }},
            {"EnumInstances", [&h](const CallOptions& o) { return h.enumerateInstances(kProfiles, {}, o); }},
            {"GetInstance", [&h](const CallOptions& o) { return h.getInstance(kProfiles, {}, o); }},
            {"CreateInstance", [&h, instance](const CallOptions& o) { return h.createInstance(kProfiles, instance, o); }},
            {"DeleteInstance", [&h](const CallOptions& o) { return h.deleteInstance(kProfiles, o); }},
            {"ExecQuery", [&h](const CallOptions& o) { return h.execQuery(kProfiles, "SELECT * FROM VEX_RegisteredProfile", "WQL", o); }},
            {"Associators", [&h](const CallOptions& o) { return h.associators(kProfiles, {}, {}, {}, {}, {}, o); }},
            {"AssociatorNames", [&h](const CallOptions& o) { return h.associatorNames(kProfiles, "VEX_ElementConformsToProfile", {}, {}, {}, o); }},
            {"References", [&h](const CallOptions& o) { return h.references(kProfiles, {}, {}, {}, o); }},
            {"ReferenceNames", [&h](const CallOptions& o) { return h.referenceNames(kProfiles, {}, {}, o); }},
            {"InvokeMethod", [&h](const CallOptions& o) { return h.invokeMethod(kProfiles, "RequestStateChange", {}, o); }},
        };
    }
};

TEST_F(ProviderEntryTest, RequestEntriesRefuseMissingHandles) {
    const std::vector<CallOptions> broken = {
        CallOptions().null(Arg::MI),      CallOptions().null(Arg::Context),
        CallOptions().hollow(Arg::Context), CallOptions().null(Arg::Result),
        CallOptions().hollow(Arg::Result), CallOptions().null(Arg::Reference),
        CallOptions().hollow(Arg::Reference)};
    for (const Entry& entry : checkedEntries()) {
        for (const CallOptions& options : broken) {
            clearLog();
            Response r = entry.call(options);
            EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters))
                << entry.name << " nullArgs=" << options.nullArgs
                << " hollowArgs=" << options.hollowArgs;
            EXPECT_TRUE(loggedAt(5, kInvalidParameters)) << entry.name;
            EXPECT_FALSE(r.done()) << entry.name;
        }
    }
}

TEST_F(ProviderEntryTest, OnlyModifyInstanceRefusesANullPropertyList) {
    Response all = cimom().enumerateInstances(kProfiles, std::nullopt);
    ASSERT_TRUE(all.ok()) << all.status.toString();
    ASSERT_FALSE(all.instances.empty());
    EXPECT_TRUE(cimom().getInstance(all.instances.front().path, std::nullopt).ok());

    cmpihost::Instance values(kProfiles);
    Response noList = cimom().modifyInstance(kProfiles, values, std::nullopt);
    EXPECT_TRUE(hasStatus(noList, CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    EXPECT_FALSE(traced("Entering CMPIAdapter::ModifyInstance"));

    // Without a context it still reaches the adapter, whose access check
    // finds no principal.
    Response noContext = cimom().modifyInstance(kProfiles, values, std::vector<std::string>{},
                                                cmpihost::withNull(Arg::Context));
    EXPECT_TRUE(hasStatus(noContext, CMPI_RC_ERR_FAILED,
                          "Failed to get context entry type CMPIPrinciple"));
    EXPECT_TRUE(traced("Entering CMPIAdapter::ModifyInstance"));
}

TEST_F(ProviderEntryTest, QueriesAreAcceptedButAnsweredWithNothing) {
    Response r = cimom().execQuery(kProfiles, "SELECT * FROM VEX_RegisteredProfile", "WQL");
    EXPECT_TRUE(hasStatus(r, CMPI_RC_OK, ""));
    EXPECT_TRUE(r.instances.empty());
    EXPECT_FALSE(r.done());
    EXPECT_TRUE(traced("Entering CMPIMI TkzCmpiMIExecQuery()"));
    EXPECT_FALSE(traced("Entering CMPIAdapter::ExecQuery"));

    for (const cmpihost::OptString& query : {cmpihost::OptString(""), cmpihost::OptString()}) {
        EXPECT_TRUE(hasStatus(cimom().execQuery(kProfiles, query, "WQL"),
                              CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    }
    EXPECT_TRUE(hasStatus(cimom().execQuery(kProfiles, "SELECT * FROM X", ""),
                          CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
}

TEST_F(ProviderEntryTest, OnlyAssociatorNamesRequiresTheAssociationClass) {
    for (const cmpihost::OptString& assoc : {cmpihost::OptString(), cmpihost::OptString("")}) {
        EXPECT_TRUE(hasStatus(cimom().associatorNames(kProfiles, assoc, {}, {}, {}),
                              CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    }
    EXPECT_TRUE(cimom().associators(kProfiles, {}, {}, {}, {}).ok());
    EXPECT_TRUE(cimom().referenceNames(kProfiles, {}, {}).ok());
}

TEST_F(ProviderEntryTest, InvokeMethodNeedsNameAndBothArgumentLists) {
    for (const cmpihost::OptString& method : {cmpihost::OptString(), cmpihost::OptString("")}) {
        EXPECT_TRUE(hasStatus(cimom().invokeMethod(kProfiles, method),
                              CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    }
    for (Arg args : {Arg::InArgs, Arg::OutArgs}) {
        EXPECT_TRUE(hasStatus(cimom().invokeMethod(kProfiles, "M", {}, cmpihost::withNull(args)),
                              CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
        EXPECT_TRUE(hasStatus(cimom().invokeMethod(kProfiles, "M", {}, cmpihost::withHollow(args)),
                              CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    }
}

TEST_F(ProviderEntryTest, IndicationEntries) {
    cmpihost::Filter filter{"SELECT * FROM VEX_EventIndication"};
    const ObjectPath events(kImplNs, "VEX_EventIndication");
    EXPECT_TRUE(cimom().authorizeFilter(filter, "VEX_EventIndication", events, "owner").ok());
    EXPECT_TRUE(hasStatus(cimom().authorizeFilter(filter, "VEX_EventIndication", events, ""),
                          CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    EXPECT_TRUE(cimom().mustPoll(filter, "VEX_EventIndication", events).ok());
    EXPECT_TRUE(hasStatus(cimom().mustPoll(filter, "", events), CMPI_RC_ERR_INVALID_PARAMETER,
                          kInvalidParameters));
    EXPECT_FALSE(traced("Entering CMPIAdapter::MustPoll"));

    // Only the MI is checked: without context the request reaches the adapter.
    clearLog();
    Response activated = cimom().activateFilter(filter, {}, events, true,
                                                cmpihost::withNull(Arg::Context));
    EXPECT_TRUE(hasStatus(activated, CMPI_RC_OK, ""));
    EXPECT_TRUE(traced("Entering CMPIAdapter::ActivateFilter"));
    Response noMi = cimom().activateFilter(filter, "VEX_EventIndication", events, true,
                                           cmpihost::withNull(Arg::MI));
    EXPECT_TRUE(hasStatus(noMi, CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    EXPECT_TRUE(loggedAt(5, "INVALID : Indication MI"));
    EXPECT_TRUE(cimom().deActivateFilter(filter, {}, events, true,
                                         cmpihost::withNull(Arg::Context)).ok());

    EXPECT_TRUE(cimom().enableIndications().ok());
    EXPECT_TRUE(cimom().disableIndications().ok());
    EXPECT_TRUE(hasStatus(cimom().enableIndications(cmpihost::withHollow(Arg::Context)),
                          CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
    EXPECT_TRUE(hasStatus(cimom().disableIndications(cmpihost::withNull(Arg::Context)),
                          CMPI_RC_ERR_INVALID_PARAMETER, kInvalidParameters));
}

TEST_F(ProviderEntryTest, FailedOperationIsLoggedUnderItsName) {
    Response r = cimom().enumerateInstanceNames({kImplNs, "VEX_NoSuchClass"});
    EXPECT_EQ(r.status.rc, CMPI_RC_ERR_INVALID_CLASS);
    EXPECT_TRUE(loggedAt(2, "EnumInstanceNames operation failed,                 refer previous "
                            "log lines for reason"));
    EXPECT_TRUE(traced("Exiting CMPIMI VexCmpiMIEnumInstanceNames()"));
}

TEST_F(ProviderEntryTest, TracesKeepTheirHistoricNames) {
    cimom().createInstance(kProfiles, cmpihost::Instance(kProfiles));
    EXPECT_TRUE(traced("Entering CMPIMI VexCmpiMIGetInstance()"));
    EXPECT_TRUE(traced("Exiting CMPIMI VexCmpiMICreateInstance()"));
    clearLog();
    cimom().enumerateInstanceNames(kProfiles, cmpihost::withNull(Arg::Result));
    EXPECT_TRUE(traced("Exiting CMPIMI TkzCmpiMIEnumInstanceNames()"));
    EXPECT_FALSE(traced("Exiting CMPIMI VexCmpiMIEnumInstanceNames()"));
}

}  // namespace
}  // namespace vex::cmpitest

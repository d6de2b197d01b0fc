// Requests of every MI kind reach the provider with the arguments given,
// NULL / hollow / empty where the options say so, and come back as host
// values.
#include "TestSupport.h"

namespace cmpihost::test {
namespace {

class Requests : public ::testing::Test {
protected:
    std::unique_ptr<Host> host = loadedHost();
    ObjectPath source = ObjectPath(testNs(), "HT_Source", {{"Id", Value::string("s1")}});
};

TEST_F(Requests, EnumerationsReturnWhatTheProviderReturnedAndDone) {
    Response names = host->enumerateInstanceNames(classPath("HT_AllTypes"));
    ASSERT_TRUE(names.ok()) << names.status.toString();
    ASSERT_EQ(names.paths.size(), 1u);
    EXPECT_EQ(names.paths[0].toString(), "root/ht:HT_AllTypes.Id=\"all\",Num=7");
    EXPECT_EQ(names.doneCount, 1);
    EXPECT_FALSE(names.returnedAfterDone);

    Response all = host->enumerateInstances(classPath("HT_AllTypes"));
    ASSERT_EQ(all.instances.size(), 1u);
    EXPECT_EQ(all.instances[0].className(), "HT_AllTypes");
    EXPECT_EQ(all.instances[0].nameSpace(), testNs());
}

TEST_F(Requests, PropertyListsArriveAsGivenAndOnlyOpenPegasusFiltersTheAnswer) {
    const std::vector<std::string> list{"U8", "Str"};
    Response r = host->enumerateInstances(classPath("HT_AllTypes"), list);
    EXPECT_EQ(r.status.message, std::optional<std::string>("U8,Str"));
    ASSERT_EQ(r.instances.size(), 1u);
    EXPECT_EQ(r.instances[0].properties.size(), 2u) << "OpenPegasus removes what is not listed";

    auto sfcb = loadedHost(HostConfig::sfcb14());
    Response asSent = sfcb->enumerateInstances(classPath("HT_AllTypes"), list);
    ASSERT_EQ(asSent.instances.size(), 1u);
    EXPECT_GT(asSent.instances[0].properties.size(), 2u) << "sfcb sends what the provider returned";

    EXPECT_EQ(host->enumerateInstances(classPath("HT_AllTypes")).status.message,
              std::optional<std::string>("<null>"));
    EXPECT_EQ(host->enumerateInstances(classPath("HT_AllTypes"), std::vector<std::string>{})
                  .status.message,
              std::optional<std::string>(""));
}

TEST_F(Requests, ModifyInstanceCanBeGivenANullOrAnEmptyPropertyList) {
    Instance inst(source);
    inst.set("Size", Value::uint64(10)).set("Name", Value::string("n"));
    EXPECT_EQ(host->modifyInstance(source, inst, std::nullopt).status.message,
              std::optional<std::string>("list=<null> count=2"));
    EXPECT_EQ(host->modifyInstance(source, inst, std::vector<std::string>{"Size"}).status.message,
              std::optional<std::string>("list=Size count=2"));
}

TEST_F(Requests, CreateInstanceHandsTheInstanceOverAsACopy) {
    Instance inst(source);
    inst.set("Name", Value::string("new"));
    Response r = host->createInstance(classPath("HT_Source"), inst);
    ASSERT_TRUE(r.ok());
    ASSERT_EQ(r.paths.size(), 1u);
    EXPECT_EQ(r.paths[0], source);
    ASSERT_EQ(r.instances.size(), 1u);
    EXPECT_EQ(r.instances[0], inst);
}

TEST_F(Requests, StatusAndMessageOfAFailureAreCopiedOut) {
    Response r = host->deleteInstance(source);
    EXPECT_EQ(r.status.rc, CMPI_RC_ERR_NOT_FOUND);
    EXPECT_EQ(r.status.message, std::optional<std::string>("root/ht:HT_Source.Id=\"s1\""));
    EXPECT_FALSE(r.done());
}

TEST_F(Requests, ExecQueryPassesQueryAndLanguage) {
    Response r = host->execQuery(classPath("HT_AllTypes"), "SELECT * FROM HT_AllTypes", "WQL");
    ASSERT_EQ(r.data.size(), 2u);
    EXPECT_EQ(r.data[0], Value::string("SELECT * FROM HT_AllTypes"));
    EXPECT_EQ(r.data[1], Value::string("WQL"));
    EXPECT_EQ(host->execQuery(classPath("X"), "", std::nullopt).status.message,
              std::optional<std::string>("query=empty lang=NULL"));
}

TEST_F(Requests, AssociationParametersArriveNullEmptyOrSet) {
    Response r = host->associatorNames(source, "HT_Assoc", std::nullopt, "", "Dependent");
    ASSERT_EQ(r.paths.size(), 1u);
    const ObjectPath& p = r.paths[0];
    EXPECT_EQ(*p.key("Source"), Value::string("HT_Source"));
    EXPECT_EQ(*p.key("AssocClass"), Value::string("HT_Assoc"));
    EXPECT_EQ(*p.key("ResultClass"), Value::string("<null>"));
    EXPECT_EQ(*p.key("Role"), Value::string(""));
    EXPECT_EQ(*p.key("ResultRole"), Value::string("Dependent"));

    // (The list names the property that reports it: OpenPegasus removes the
    // others from the answer.)
    Response refs = host->references(source, "HT_Result", std::nullopt,
                                     std::vector<std::string>{"A", "PropertyList"});
    ASSERT_EQ(refs.instances.size(), 1u);
    ASSERT_NE(refs.instances[0].property("PropertyList"), nullptr);
    EXPECT_EQ(*refs.instances[0].property("PropertyList"), Value::string("A,PropertyList"));
    EXPECT_EQ(host->referenceNames(source, std::nullopt, std::nullopt).paths.size(), 1u);
    EXPECT_EQ(host->associators(source, std::nullopt, std::nullopt, std::nullopt, std::nullopt)
                  .instances.size(),
              1u);
}

TEST_F(Requests, NullAndHollowHandlesReachTheProvider) {
    struct Case {
        CallOptions options;
        const char* expected;
    } cases[] = {
        {withNull(Arg::MI), "mi=NULL"},
        {withNull(Arg::Context), "ctx=NULL"},
        {withHollow(Arg::Context), "ctx=hollow"},
        {withNull(Arg::Result).null(Arg::Reference), "rslt=NULL ref=NULL"},
        {withHollow(Arg::Reference), "ref=hollow"},
        {withNull(Arg::InArgs).hollow(Arg::OutArgs), "in=NULL out=hollow"},
    };
    for (const Case& c : cases) {
        Response r = call(*host, "Echo", {}, c.options);
        EXPECT_EQ(r.status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
        EXPECT_EQ(r.status.message, std::optional<std::string>(c.expected));
    }
    EXPECT_EQ(host->invokeMethod(classPath("X"), std::nullopt).status.message,
              std::optional<std::string>("method=NULL"));
    EXPECT_EQ(host->invokeMethod(classPath("X"), "").status.message,
              std::optional<std::string>("method=empty"));
    Instance inst(source);
    EXPECT_EQ(host->createInstance(source, inst, withHollow(Arg::Instance)).status.message,
              std::optional<std::string>("inst=hollow"));
}

TEST_F(Requests, UnknownMethodIsReported) {
    Response r = call(*host, "NoSuchMethod");
    EXPECT_EQ(r.status.rc, CMPI_RC_ERR_METHOD_NOT_FOUND);
    EXPECT_EQ(r.status.message, std::optional<std::string>("NoSuchMethod"));
}

TEST_F(Requests, ResultsAfterReturnDoneAreKeptAndFlagged) {
    Response r = call(*host, "LateReturn");
    EXPECT_EQ(r.doneCount, 2);
    EXPECT_TRUE(r.returnedAfterDone);
    EXPECT_EQ(r.returnValue(), Value::uint32(1));
    EXPECT_FALSE(call(*host, "Counter").returnedAfterDone);
}

TEST_F(Requests, IndicationMIGetsFilterClassAndOwner) {
    Filter f{"SELECT * FROM HT_Indication", "WQL"};
    ObjectPath cp = classPath("HT_Indication");
    EXPECT_EQ(host->authorizeFilter(f, "HT_Indication", cp, "admin").status.message,
              std::optional<std::string>(
                  "authorize query=SELECT * FROM HT_Indication class=HT_Indication admin"));
    EXPECT_EQ(host->activateFilter(f, "HT_Indication", cp, true).status.message,
              std::optional<std::string>(
                  "activate query=SELECT * FROM HT_Indication class=HT_Indication first"));
    EXPECT_EQ(host->deActivateFilter(f, "HT_Indication", cp, false).status.message,
              std::optional<std::string>(
                  "deactivate query=SELECT * FROM HT_Indication class=HT_Indication more"));
    EXPECT_EQ(host->mustPoll(f, std::nullopt, cp, withHollow(Arg::Filter)).status.message,
              std::optional<std::string>("filter=hollow class=NULL"));
    EXPECT_EQ(host->enableIndications().status.message, std::optional<std::string>("enabled=1"));
    EXPECT_EQ(host->enableIndications().status.message, std::optional<std::string>("enabled=2"));
    EXPECT_EQ(host->disableIndications().status.message, std::optional<std::string>("enabled=1"));
    EXPECT_EQ(host->enableIndications(withNull(Arg::Context)).status.message,
              std::optional<std::string>("ctx=NULL"));
}

}  // namespace
}  // namespace cmpihost::test

// The defaults of the instance and method plug-in bases, on plug-ins whose
// repository hook the tests control.
#include <gtest/gtest.h>

#include <functional>

#include "LogCapture.h"
#include "PluginTestSupport.h"
#include "TestProperties.h"
#include "framework/AbstractInstanceProviderPlugin.h"
#include "framework/AbstractMethodProviderPlugin.h"
#include "framework/CIMException.h"

namespace vex::cim::fwf {
namespace {

using test::stringKey;
using test::stringProp;
using test::wasLogged;

// Repository instances hold their keys as key-flagged properties among the
// others; the hooks pick them apart.
class TestInstancePlugin : public virtual AbstractInstanceProviderPlugin {
public:
    std::function<void(CIMObjectPath&, std::vector<CIMInstance>&)> repository;

    void getKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& keys) override {
        for (const CIMProperty& property : source.getPropertyList()) {
            if (property.isKey()) {
                keys.push_back(property);
            }
        }
    }
    void getNonKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& others) override {
        for (const CIMProperty& property : source.getPropertyList()) {
            if (!property.isKey()) {
                others.push_back(property);
            }
        }
    }
    void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) override {
        repository(path, out);
    }
};

CIMInstance sourceInstance(const std::string& id) {
    CIMInstance source;
    source.setPath(CIMObjectPath("elsewhere", "root/other", "VEX_Stored", {}));
    source.addProperty(stringProp("ElementName", "drive " + id));
    source.addProperty(stringKey("DeviceID", id));
    return source;
}

TEST(InstanceProviderBase, InstancesCarryTheRequestAddressAndKeysFirst) {
    TestInstancePlugin plugin;
    plugin.repository = [](CIMObjectPath&, std::vector<CIMInstance>& out) {
        out.push_back(sourceInstance("0_1"));
        out.push_back(sourceInstance("0_2"));
    };
    CIMObjectPath request("host1", "root/tkz/vex/smi_15", "VEX_Test", {});
    std::vector<CIMInstance> instances;
    plugin.enumerateInstances(request, instances, false);
    ASSERT_EQ(instances.size(), 2u);
    const CIMInstance& first = instances[0];
    EXPECT_EQ(first.getHostName(), "host1");
    EXPECT_EQ(first.getNameSpace(), "root/tkz/vex/smi_15");
    EXPECT_EQ(first.getClassName(), "VEX_Test");
    ASSERT_EQ(first.getPropertyCount(), 2u);
    EXPECT_EQ(first.getProperty(0).getName(), "DeviceID");
    EXPECT_EQ(first.getProperty(1).getName(), "ElementName");
    EXPECT_EQ(first.getKeyPropertyList().size(), 1u);

    std::vector<CIMObjectPath> names;
    plugin.enumerateInstanceNames(request, names);
    ASSERT_EQ(names.size(), 2u);
    EXPECT_EQ(names[1], CIMObjectPath("", "root/tkz/vex/smi_15", "VEX_Test",
                                      {stringKey("DeviceID", "0_2")}));

    // A get hands its own path to the hook, which narrows the answer to it.
    plugin.repository = [](CIMObjectPath& path, std::vector<CIMInstance>& out) {
        ASSERT_EQ(path.getKeyBindings().size(), 1u);
        out.push_back(sourceInstance("0_2"));
    };
    CIMObjectPath one("host1", "root/tkz/vex/smi_15", "VEX_Test", {stringKey("DeviceID", "0_2")});
    std::vector<CIMInstance> got;
    plugin.getCIMInstance(one, got);
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(got[0].getPath(), one);
}

TEST(InstanceProviderBase, EmptyRepositoryIsAnEmptySuccess) {
    TestInstancePlugin plugin;
    plugin.repository = [](CIMObjectPath&, std::vector<CIMInstance>&) {};
    CIMObjectPath request("host1", "root/tkz/vex/smi_15", "VEX_Test", {});
    test::clearLog();
    std::vector<CIMInstance> instances;
    plugin.enumerateInstances(request, instances, false);
    std::vector<CIMObjectPath> names;
    plugin.enumerateInstanceNames(request, names);
    EXPECT_TRUE(instances.empty());
    EXPECT_TRUE(names.empty());
    EXPECT_TRUE(wasLogged("enumerateInstances :: Empty list returned for class VEX_Test"));
    EXPECT_TRUE(wasLogged("enumerateInstanceNames :: Empty list returned for class VEX_Test"));
}

TEST(InstanceProviderBase, HookFailureIsLoggedAndThrownOnUnchanged) {
    TestInstancePlugin plugin;
    plugin.repository = [](CIMObjectPath&, std::vector<CIMInstance>&) {
        throw CIMException(CIM_ERR_FAILED, "cache gone for %s", "VEX_Test");
    };
    CIMObjectPath request("host1", "root/tkz/vex/smi_15", "VEX_Test", {});
    test::clearLog();
    std::vector<CIMInstance> instances;
    try {
        plugin.getCIMInstance(request, instances);
        FAIL() << "the failure was swallowed";
    } catch (const CIMException& e) {
        EXPECT_EQ(e.getErrCode(), CIM_ERR_FAILED);
        EXPECT_EQ(e.getErrMessage(), "cache gone for VEX_Test");
    }
    EXPECT_TRUE(wasLogged("getCIMInstance :: cache gone for VEX_Test", 2));
    std::vector<CIMObjectPath> names;
    EXPECT_THROW(plugin.enumerateInstanceNames(request, names), CIMException);
    EXPECT_TRUE(wasLogged("enumerateInstanceNames :: cache gone for VEX_Test.", 2));
}

TEST(InstanceProviderBase, OperationsNotOfferedAreRefusedByName) {
    TestInstancePlugin plugin;
    CIMObjectPath path("host1", "root/tkz/vex/smi_15", "VEX_Test", {});
    CIMInstance instance;
    std::vector<std::string> properties;
    std::string text;
    std::vector<CIMInstance> instances;
    std::vector<CIMObjectPath> names;
    const std::vector<std::pair<const char*, std::function<void()>>> calls = {
        {"modifyInstance", [&] { plugin.modifyInstance(path, instance, properties); }},
        {"createInstance", [&] { plugin.createInstance(path, instance); }},
        {"deleteInstance", [&] { plugin.deleteInstance(path); }},
        {"associators",
         [&] { plugin.associators(path, text, instances, text, text, text, nullptr); }},
        {"associatorNames",
         [&] { plugin.associatorNames(path, text, names, text, text, text); }},
        {"references", [&] { plugin.references(path, text, instances, text); }},
        {"referencesNames", [&] { plugin.referencesNames(path, text, text, names); }},
    };
    for (const auto& [operation, call] : calls) {
        try {
            call();
            ADD_FAILURE() << operation << " was accepted";
        } catch (const CIMException& e) {
            EXPECT_EQ(e.getErrCode(), CIM_ERR_NOT_SUPPORTED);
            EXPECT_EQ(e.getErrMessage(), std::string(operation) + " ::  :: Not supported");
        }
    }
}

// An instance plug-in that also offers methods.
class TestInstanceMethodPlugin : public TestInstancePlugin, public AbstractMethodProviderPlugin {
public:
    unsigned int invokeMethod(const CIMObjectPath&, const std::string& method,
                              const CIMMethodParam&, CIMMethodParam& out) override {
        out.addArgument(stringProp("Echo", method));
        return 0;
    }
};

class PlainMethodPlugin : public TestInstancePlugin, public AbstractMethodProviderPlugin {
public:
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& method,
                              const CIMMethodParam& in, CIMMethodParam& out) override {
        return AbstractMethodProviderPlugin::invokeMethod(path, method, in, out);
    }
};

TEST(InstanceProviderBase, InstanceAndMethodPluginAnswersThroughBothBases) {
    TestInstanceMethodPlugin plugin;
    plugin.repository = [](CIMObjectPath&, std::vector<CIMInstance>& out) {
        out.push_back(sourceInstance("1_0"));
    };
    AbstractProviderPlugin& asPlugin = plugin;
    CIMObjectPath request("host1", "root/tkz/vex/smi_15", "VEX_Test", {});
    std::vector<CIMInstance> instances;
    asPlugin.enumerateInstances(request, instances, false);
    EXPECT_EQ(instances.size(), 1u);
    CIMMethodParam in;
    CIMMethodParam out;
    EXPECT_EQ(asPlugin.invokeMethod(request, "Rebuild", in, out), 0u);
    ASSERT_EQ(out.getArgumentCount(), 1u);

    PlainMethodPlugin plain;
    CIMMethodParam none;
    EXPECT_EQ(static_cast<AbstractProviderPlugin&>(plain).invokeMethod(request, "Rebuild", in,
                                                                        none),
              CIM_METHOD_NOT_SUPPORTED);
    EXPECT_EQ(none.getArgumentCount(), 0u);
}

}  // namespace
}  // namespace vex::cim::fwf

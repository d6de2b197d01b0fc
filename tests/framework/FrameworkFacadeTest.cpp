// The facade and the registry behind it, as the adapter uses them: a start
// without controllers, class look-up in any case, the names announced per
// namespace, forwarding with its failures, and the indication callback.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "LogCapture.h"
#include "PluginTestSupport.h"
#include "framework/CIMException.h"
#include "framework/PluginsManager.h"

namespace vex::cim::fwf {
namespace {

using test::classPath;
using test::startedFacade;
using test::wasLogged;

const std::vector<std::string> kAlwaysRegistered = {
    "VEX_HostComputerSystemConformsToProfile", "VEX_ElementConformsToProfile",
    "VEX_RegisteredProfile", "VEX_RegisteredSubProfile", "VEX_SubProfileRequiresProfile",
    "VEX_HostComputerSystem", "VEX_HostPhysicalPackage", "VEX_HostComputerSystemPackage",
    "VEX_ApplicationSoftwareIdentity", "VEX_RegProfileElementSoftwareIdentity"};

TEST(FrameworkFacade, StartWithoutControllerServesOnlyTheAlwaysRegisteredClasses) {
    FrameworkFacade& facade = startedFacade();
    test::clearLog();
    ASSERT_TRUE(facade.initialize());
    EXPECT_TRUE(wasLogged("FrameworkFacade :: Switching to no controller scenario. ", 4));
    EXPECT_TRUE(wasLogged("SELECTIVE INITIALIZATION ? 1.", 4));
    EXPECT_TRUE(wasLogged("initialize :: SELECTIVE INITIALIZATION.", 4));
    EXPECT_TRUE(wasLogged("FrameworkFacade : Provider Initialized successfully", 5));

    for (const std::string& name : kAlwaysRegistered) {
        EXPECT_NE(facade.getPlugIn(name), nullptr) << name;
    }
    EXPECT_EQ(facade.getPlugIn("VEX_StorageVolume"), nullptr);
    EXPECT_TRUE(wasLogged("Plugin not initialized for vex_storagevolume."));

    CIMObjectPath profiles = classPath(kInteropNameSpace, "VEX_RegisteredProfile");
    std::vector<CIMInstance> found;
    facade.enumerateInstances(profiles, found);
    EXPECT_EQ(found.size(), 1u);

    CIMObjectPath volumes = classPath(kImplementationNameSpace, "VEX_StorageVolume");
    try {
        facade.enumerateInstances(volumes, found);
        FAIL() << "a class without plug-in was served";
    } catch (const CIMException& e) {
        EXPECT_EQ(e.getErrCode(), CIM_ERR_INVALID_CLASS);
    }
}

TEST(FrameworkFacade, ClassNameInAnyCaseReachesTheSamePlugin) {
    FrameworkFacade& facade = startedFacade();
    AbstractProviderPlugin* plugin = facade.getPlugIn("VEX_HostComputerSystem");
    ASSERT_NE(plugin, nullptr);
    EXPECT_EQ(facade.getPlugIn("vex_hostcomputersystem"), plugin);
    EXPECT_EQ(facade.getPlugIn("VEX_HOSTCOMPUTERSYSTEM"), plugin);
    EXPECT_EQ(PluginsManager::getInstance()->getPlugin("Vex_HostComputerSystem"), plugin);

    CIMObjectPath lower = classPath(kImplementationNameSpace, "vex_hostcomputersystem");
    std::vector<CIMObjectPath> names;
    facade.enumerateInstanceNames(lower, names);
    ASSERT_EQ(names.size(), 1u);
    EXPECT_EQ(names[0].getClassName(), "vex_hostcomputersystem");  // the request's spelling
}

TEST(FrameworkFacade, AnnouncesProfilesInInteropAndTheRestInTheImplementationNamespace) {
    FrameworkFacade& facade = startedFacade();
    test::clearLog();
    std::vector<std::string> interop;
    ASSERT_TRUE(facade.getAllPluginNames(interop, kInteropNameSpace));
    // The five profile classes present and the three host classes, in name order.
    EXPECT_EQ(interop, (std::vector<std::string>{
                           "vex_elementconformstoprofile", "vex_hostcomputersystem",
                           "vex_hostcomputersystemconformstoprofile",
                           "vex_hostcomputersystempackage", "vex_hostphysicalpackage",
                           "vex_registeredprofile", "vex_registeredsubprofile",
                           "vex_subprofilerequiresprofile"}));

    std::vector<std::string> other;
    facade.getAllPluginNames(other, "root/interop");  // any namespace but the implementation one
    EXPECT_EQ(other, interop);

    std::vector<std::string> implementation{"already there"};
    ASSERT_TRUE(facade.getAllPluginNames(implementation, "ROOT/tkz/vex/SMI_15"));
    EXPECT_EQ(implementation,
              (std::vector<std::string>{"already there", "vex_applicationsoftwareidentity",
                                        "vex_hostcomputersystem", "vex_hostcomputersystempackage",
                                        "vex_hostphysicalpackage",
                                        "vex_regprofileelementsoftwareidentity"}));
    EXPECT_TRUE(wasLogged("Entering PluginsManager::getPluginNames()"));
    EXPECT_TRUE(wasLogged("Leaving PluginsManager::getPluginNames()"));
}

TEST(FrameworkFacade, RefusalsOfThePluginAreLoggedAndThrownOn) {
    FrameworkFacade& facade = startedFacade();
    CIMObjectPath profile = classPath(kInteropNameSpace, "VEX_RegisteredProfile");
    CIMInstance instance;
    test::clearLog();
    try {
        facade.createInstance(profile, instance);
        FAIL() << "createInstance was accepted";
    } catch (const CIMException& e) {
        EXPECT_EQ(e.getErrCode(), CIM_ERR_NOT_SUPPORTED);
        EXPECT_EQ(e.getErrMessage(), "createInstance ::  :: Not supported");
    }
    EXPECT_TRUE(wasLogged("createInstance :: createInstance ::  :: Not supported", 2));

    std::vector<std::string> properties{"ElementName"};
    EXPECT_THROW(facade.modifyInstance(profile, instance, properties), CIMException);
    EXPECT_THROW(facade.deleteInstance(profile), CIMException);

    CIMMethodParam in;
    CIMMethodParam out;
    EXPECT_EQ(facade.invokeMethod(profile, "Reset", in, out), CIM_METHOD_NOT_SUPPORTED);
    EXPECT_EQ(out.getArgumentCount(), 0u);
}

TEST(FrameworkFacade, AssociationEndsAreTheEndClassNames) {
    FrameworkFacade& facade = startedFacade();
    std::string antecedent = "untouched";
    std::string dependent = "untouched";
    ASSERT_TRUE(facade.getAntecedentAndDependentNames("vex_hostcomputersystemconformstoprofile",
                                                      antecedent, dependent));
    EXPECT_EQ(antecedent, "VEX_RegisteredProfile");
    EXPECT_EQ(dependent, "VEX_HostComputerSystem");

    antecedent = dependent = "untouched";
    EXPECT_FALSE(facade.getAntecedentAndDependentNames("VEX_HostComputerSystem", antecedent,
                                                       dependent));
    EXPECT_FALSE(facade.getAntecedentAndDependentNames("VEX_Realizes", antecedent, dependent));
    EXPECT_EQ(antecedent, "untouched");
}

std::atomic<int> gDelivered{0};

bool countDelivery(CIMInstance& indication) {
    gDelivered += 1;
    return indication.getClassName() == "CIM_InstCreation";
}

TEST(FrameworkFacade, NotifyGoesToTheRegisteredCallbackOnly) {
    FrameworkFacade& facade = startedFacade();
    CIMInstance indication;
    indication.setPath(classPath(kImplementationNameSpace, "CIM_InstCreation"));
    gDelivered = 0;

    facade.deRegisterForEvent();
    EXPECT_FALSE(facade.notify(indication));
    EXPECT_FALSE(facade.registerForEvent(nullptr));
    ASSERT_TRUE(facade.registerForEvent(&countDelivery));
    EXPECT_TRUE(facade.notify(indication));
    indication.setPath(classPath(kImplementationNameSpace, "CIM_InstDeletion"));
    EXPECT_FALSE(facade.notify(indication));  // the callback's own answer
    facade.deRegisterForEvent();
    EXPECT_FALSE(facade.notify(indication));
    EXPECT_EQ(gDelivered.load(), 2);
}

// Event threads notify while a request thread registers and clears the callback.
TEST(FrameworkFacade, NotifyAndRegistrationMayRunConcurrently) {
    FrameworkFacade& facade = startedFacade();
    std::vector<std::thread> threads;
    for (int t = 0; t < 3; ++t) {
        threads.emplace_back([&facade] {
            CIMInstance indication;
            for (int i = 0; i < 200; ++i) {
                facade.notify(indication);
            }
        });
    }
    for (int i = 0; i < 200; ++i) {
        facade.registerForEvent(&countDelivery);
        facade.deRegisterForEvent();
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST(FrameworkFacade, SingletonsAreSharedAcrossThreadsAndTheFacadeCanBeRemade) {
    startedFacade();
    std::vector<FrameworkFacade*> facades(4);
    std::vector<PluginsManager*> managers(4);
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < facades.size(); ++t) {
        threads.emplace_back([&, t] {
            facades[t] = FrameworkFacade::getInstance();
            managers[t] = PluginsManager::getInstance();
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (std::size_t t = 1; t < facades.size(); ++t) {
        EXPECT_EQ(facades[t], facades[0]);
        EXPECT_EQ(managers[t], managers[0]);
    }

    // The adapter deletes the facade at teardown; the registry stays.
    delete FrameworkFacade::getInstance();
    FrameworkFacade* again = FrameworkFacade::getInstance();
    ASSERT_NE(again, nullptr);
    EXPECT_NE(again->getPlugIn("VEX_RegisteredProfile"), nullptr);
}

}  // namespace
}  // namespace vex::cim::fwf

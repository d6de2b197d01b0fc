// The registry table against the list of served classes: every class once,
// in registration order, in its group, offered in the right namespaces.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/AbstractEventProviderPlugin.h"
#include "framework/AbstractMethodProviderPlugin.h"
#include "framework/PluginRegistry.h"
#include "providers/registry/PluginFamilies.h"

namespace vex::cim::fwf {
namespace {

// Association plug-ins
const std::vector<std::string> kAssociationNames = {
    "vex_hostcomputersystemconformstoprofile", "vex_elementconformstoprofile",
    "vex_subprofilerequiresprofile", "vex_hostcomputersystempackage",
    "vex_regprofileelementsoftwareidentity", "vex_controllercomputersystemconformstoprofile",
    "vex_bioselementsoftwareidentity", "vex_driverelementsoftwareidentity",
    "vex_firmwareelementsoftwareidentity", "vex_installedsoftwareidentity",
    "vex_diskdriveviewsystemdeviceview", "vex_csbaseinstance", "vex_systemcomponent",
    "vex_diskdriveviewsystemdeviceviewview", "vex_volumeviewsystemdeviceviewview",
    "vex_hostedstoragepoolview", "vex_volumeviewsystemdeviceview",
    "vex_concretestoragepoolfasttierdby", "vex_containerview", "vex_svbaseinstance",
    "vex_pspbaseinstance", "vex_cspbaseinstance", "vex_ddbaseinstance",
    "vex_viewelementcapabilities", "vex_concretepooltovolumeallocatedfromstoragepoolviewview",
    "vex_associatedalarm", "vex_logicalidentity", "vex_alarmsystemdevice",
    "vex_cardphysicalcomponent", "vex_computersystempackage", "vex_controlledby", "vex_realizes",
    "vex_portcontrollersystemdevice", "vex_protocolcontrollersystemdevice",
    "vex_scsisapavailableforelement", "vex_scsiprotocolcontrollerforunit",
    "vex_dedicatedmemberofcollection", "vex_dedicatedhostedcollection", "vex_dedicatedisspare",
    "vex_globalstorageredundancycollection", "vex_globalisspare",
    "vex_hostedspareconfigurationservice", "vex_storagevolumeconcretedependency",
    "vex_concretepoolconcretedependency", "vex_compositeextentsystemdevice",
    "vex_globalmemberofcollection", "vex_targetscsidevicesapimplementation",
    "vex_datargetportsystemdevice", "vex_targetscsiprotocolhostedaccesspoint",
    "vex_failovermemberofcollection", "vex_failoverhostedcollection",
    "vex_spareconfcapelementcapabilities", "vex_enclosuresystempackage", "vex_seselementrealizes",
    "vex_enclosureconnectoronpackage", "vex_enclosurefanrealizes", "vex_enclosurefansystemdevice",
    "vex_enclosurepowersupplyrealizes", "vex_enclosurepowersupplysystemdevice",
    "vex_enclosuresensorrealizes", "vex_enclosuresensorsystemdevice",
    "vex_enclosurepackageinconnector", "vex_controllervolumesystemdevice",
    "vex_primordialsettingsassociatedtocapabilities",
    "vex_concretepoolallocatedfromprimordialpool", "vex_storagevolumeallocatedfromconcretepool",
    "vex_primordialpoolelementcapabilities", "vex_concretepoolelementcapabilities",
    "vex_storageconfigurationserviceelementcapabilities",
    "vex_storageconfigurationservicehostedservice", "vex_hostedconcretestoragepool",
    "vex_hostedprimordialstoragepool", "vex_volumeelementsettingdata",
    "vex_primordialsettingsgeneratedfromcapabilities",
    "vex_concretesettingsassociatedtocapabilities",
    "vex_concretesettingsgeneratedfromcapabilities", "vex_affectedjobelement",
    "vex_owningjobelement", "vex_diskdrivesystemdevice", "vex_diskdriveataportsystemdevice",
    "vex_diskdrivesasportsystemdevice", "vex_diskdriveelementsoftwareidentity",
    "vex_mediapresent", "vex_associatedcomponentextent", "vex_associatedremainingextent",
    "vex_concretecomponent", "vex_primordialassociatedcomponentextent",
    "vex_primordialtoconcretebasedon", "vex_volumetocompositeextentbasedon",
    "vex_primordialtoremainingbasedon", "vex_initiatorataprotocolhostedaccesspoint",
    "vex_initiatoratascsibindsto", "vex_initiatorscsidevicesapimplementation",
    "vex_initiatorscsiprotocolhostedaccesspoint", "vex_sasinitiatorphyconcretecomponent",
    "vex_sasinitiatorportsystemdevice", "vex_sasphysystemdevice", "vex_associatedbattery",
    "vex_batterysystemdevice", "vex_parenttochildpoolviewview", "vex_satasapavailableforelement",
    "vex_sassapavailableforelement", "vex_scsidevicesapimplementation",
    "vex_satadevicesapimplementation", "vex_container", "vex_concretecomponentview",
    "vex_primordialpooltoconcretepoolallocatedfromstoragepoolviewview",
};

// Cached instance plug-ins
const std::vector<std::string> kCachedNames = {
    "vex_diskdriveview", "vex_storagevolumeview", "vex_concretestoragepoolview",
    "vex_primordialstorageextent", "vex_datargetport", "vex_seselement", "vex_storagevolume",
    "vex_concretestoragepool", "vex_primordialfixedstoragesettings",
    "vex_primordialgeneratedstoragesettings", "vex_concretegeneratedstoragesettings",
    "vex_concretejob", "vex_sourcestoragepoolview", "vex_eventindication",
};

// Plug-ins with extrinsic methods through the method base
const std::vector<std::string> kMethodNames = {
    "vex_controllercomputersystem", "vex_portcontroller", "vex_alarmdevice", "vex_card",
    "vex_product", "vex_scsiprotocolcontroller", "vex_spareconfigurationservice", "vex_battery",
};

// Other instance plug-ins
const std::vector<std::string> kInstanceNames = {
    "vex_registeredprofile", "vex_registeredsubprofile", "vex_hostcomputersystem",
    "vex_hostphysicalpackage", "vex_applicationsoftwareidentity", "vex_driversoftwareidentity",
    "vex_firmwaresoftwareidentity", "vex_biossoftwareidentity", "vex_controllerview",
    "vex_primordialstoragepoolview", "vex_viewcapabilities", "vex_dedicatedstorageredundancyset",
    "vex_globalstorageredundancyset", "vex_concretestorageextent", "vex_remainingstorageextent",
    "vex_compositeextent", "vex_targetscsiprotocolendpoint",
    "vex_failoverstorageextentscollection", "vex_spareconfigurationcapabilities", "vex_diskdrive",
    "vex_diskdriveataport", "vex_diskdriveataprotocolendpoint", "vex_diskdrivephysicalpackage",
    "vex_diskdrivesasport", "vex_diskdrivescsiprotocolendpoint", "vex_enclosurechassis",
    "vex_enclosurefan", "vex_enclosurepowersupply", "vex_enclosuresensor",
    "vex_enclosurediskdriveslot", "vex_perfmodeprops", "vex_primordialstoragepool",
    "vex_primordialstoragepoolcapabilities", "vex_storageconfigurationcapabilities",
    "vex_concretestoragepoolcapabilities", "vex_storageconfigurationservice",
    "vex_volumestoragesetting", "vex_concretefixedstoragesettings", "vex_completedjob",
    "vex_diskdrivesoftwareidentity", "vex_initiatorsasphy", "vex_sasinitiatorport",
    "vex_initiatorataprotocolendpoint", "vex_initiatorscsiprotocolendpoint",
};
// Registered on every start, in this order.
const std::vector<std::string> kAlwaysRegistered = {
    "vex_hostcomputersystemconformstoprofile", "vex_elementconformstoprofile",
    "vex_registeredprofile", "vex_registeredsubprofile", "vex_subprofilerequiresprofile",
    "vex_hostcomputersystem", "vex_hostphysicalpackage", "vex_hostcomputersystempackage",
    "vex_applicationsoftwareidentity", "vex_regprofileelementsoftwareidentity"};

const std::set<std::string> kProfileNames = {
    "vex_registeredprofile", "vex_elementconformstoprofile",
    "vex_controllercomputersystemconformstoprofile", "vex_hostcomputersystemconformstoprofile",
    "vex_registeredsubprofile", "vex_subprofilerequiresprofile"};
const std::set<std::string> kSystemNames = {"vex_hostcomputersystem",
                                            "vex_hostcomputersystempackage",
                                            "vex_hostphysicalpackage",
                                            "vex_controllercomputersystem"};

std::vector<const PluginRegistration*> rows() {
    std::vector<const PluginRegistration*> all;
    for (std::size_t i = 0; i < pluginRegistrationCount(); ++i) {
        all.push_back(&pluginRegistrations()[i]);
    }
    return all;
}

bool contains(const std::vector<std::string>& names, const std::string& name) {
    for (const std::string& candidate : names) {
        if (candidate == name) {
            return true;
        }
    }
    return false;
}

TEST(PluginRegistry, ListsEveryServedClassOnceInRegistrationOrder) {
    // The always-registered ten, then the rest group by group, so that the
    // full start runs from the controller system's conformance association
    // to the event indication.
    std::vector<std::string> expected = kAlwaysRegistered;
    for (const auto* group : {&kAssociationNames, &kInstanceNames, &kMethodNames, &kCachedNames}) {
        for (const std::string& name : *group) {
            if (!contains(kAlwaysRegistered, name)) {
                expected.push_back(name);
            }
        }
    }
    std::vector<std::string> names;
    std::set<std::string> distinct;
    for (const PluginRegistration* row : rows()) {
        names.push_back(row->name);
        distinct.insert(row->name);
    }
    EXPECT_EQ(names, expected);
    EXPECT_EQ(names.size(), 173u);
    EXPECT_EQ(distinct.size(), 173u);
    ASSERT_GT(names.size(), kAlwaysRegisteredPlugins);
    EXPECT_EQ(names[kAlwaysRegisteredPlugins], "vex_controllercomputersystemconformstoprofile");
    EXPECT_EQ(names.back(), "vex_eventindication");
}

TEST(PluginRegistry, EachRowIsInTheGroupOfItsClassList) {
    for (const PluginRegistration* row : rows()) {
        SCOPED_TRACE(row->name);
        switch (row->group) {
            case PluginGroup::Association: EXPECT_TRUE(contains(kAssociationNames, row->name)); break;
            case PluginGroup::CachedInstance: EXPECT_TRUE(contains(kCachedNames, row->name)); break;
            case PluginGroup::Method: EXPECT_TRUE(contains(kMethodNames, row->name)); break;
            case PluginGroup::Instance: EXPECT_TRUE(contains(kInstanceNames, row->name)); break;
        }
    }
}

// The interop namespace gets the six profile classes and the four system
// classes - ten once every plug-in exists; the systems are in both.
TEST(PluginRegistry, NamespacesOfferProfilesInInteropOnlyAndSystemsInBoth) {
    std::set<std::string> interop;
    for (const PluginRegistration* row : rows()) {
        SCOPED_TRACE(row->name);
        const bool isProfile = kProfileNames.count(row->name) != 0;
        const bool isSystem = kSystemNames.count(row->name) != 0;
        EXPECT_EQ((row->nameSpaces & kServedInInterop) != 0, isProfile || isSystem);
        EXPECT_EQ((row->nameSpaces & kServedInImplementation) != 0, !isProfile);
        if ((row->nameSpaces & kServedInInterop) != 0) {
            interop.insert(row->name);
        }
    }
    EXPECT_EQ(interop.size(), 10u);
}

bool hasBaseOfGroup(AbstractProviderPlugin* plugin, PluginGroup group) {
    switch (group) {
        case PluginGroup::Association:
            return dynamic_cast<AbstractAssociationProviderPlugin*>(plugin) != nullptr;
        case PluginGroup::CachedInstance:
            return dynamic_cast<AbstractEventProviderPlugin*>(plugin) != nullptr &&
                   dynamic_cast<AbstractInstanceProviderPlugin*>(plugin) != nullptr;
        case PluginGroup::Method:
            return dynamic_cast<AbstractMethodProviderPlugin*>(plugin) != nullptr;
        case PluginGroup::Instance:
            return dynamic_cast<AbstractInstanceProviderPlugin*>(plugin) != nullptr;
    }
    return false;
}

TEST(PluginRegistry, FactoriesMakePluginsOfTheirGroupAndTheFirstTenExist) {
    for (std::size_t i = 0; i < kAlwaysRegisteredPlugins; ++i) {
        EXPECT_NE(pluginRegistrations()[i].factory, nullptr) << pluginRegistrations()[i].name;
    }
    for (const PluginRegistration* row : rows()) {
        if (row->factory != nullptr) {
            std::unique_ptr<AbstractProviderPlugin> plugin(row->factory());
            EXPECT_TRUE(hasBaseOfGroup(plugin.get(), row->group)) << row->name;
        }
    }
}

// Every family's names are rows of the table, and no class is made by two
// families (the first family listed would win unnoticed).
TEST(PluginRegistry, EachClassComesFromOneFamily) {
    std::set<std::string> tableNames;
    for (const PluginRegistration* row : rows()) {
        tableNames.insert(row->name);
    }
    std::set<std::string> made;
    for (const PluginFactoryList* family : kFamilies) {
        for (std::size_t i = 0; i < family->count; ++i) {
            const std::string name = family->entries[i].name;
            EXPECT_TRUE(made.insert(name).second) << name << " is made by two families";
            EXPECT_EQ(tableNames.count(name), 1u) << name << " is no row of the table";
        }
    }
}

}  // namespace
}  // namespace vex::cim::fwf

// The registry table: every CIM class the provider can serve, one row each,
// in registration order - the ten always registered first, then every other
// class from the controller system's conformance association to the event
// indication. The plug-in objects come from the families of plug-in classes
// (PluginFamilies.h), each of which lists the names it makes; a row no family
// makes is not served, and a request for its class is refused as an invalid
// class. This table is the composition of the provider: the framework knows
// only the PluginRegistration rows it hands out.
#include <cstring>

#include "framework/PluginRegistry.h"
#include "providers/registry/PluginFamilies.h"

namespace vex::cim::fwf {

namespace {

struct PluginRow {
    const char* name;
    PluginGroup group;
    unsigned int nameSpaces;
};


constexpr PluginGroup kAssociation = PluginGroup::Association;
constexpr PluginGroup kCached = PluginGroup::CachedInstance;
constexpr PluginGroup kMethod = PluginGroup::Method;
constexpr PluginGroup kInstance = PluginGroup::Instance;
constexpr unsigned int kImpl = kServedInImplementation;
constexpr unsigned int kInterop = kServedInInterop;
constexpr unsigned int kBoth = kServedInBoth;

// clang-format off
const PluginRow kRows[] = {
    // Always registered: the host, the registered profiles and the provider software.
    {"vex_hostcomputersystemconformstoprofile", kAssociation, kInterop},
    {"vex_elementconformstoprofile", kAssociation, kInterop},
    {"vex_registeredprofile", kInstance, kInterop},
    {"vex_registeredsubprofile", kInstance, kInterop},
    {"vex_subprofilerequiresprofile", kAssociation, kInterop},
    {"vex_hostcomputersystem", kInstance, kBoth},
    {"vex_hostphysicalpackage", kInstance, kBoth},
    {"vex_hostcomputersystempackage", kAssociation, kBoth},
    {"vex_applicationsoftwareidentity", kInstance, kImpl},
    {"vex_regprofileelementsoftwareidentity", kAssociation, kImpl},
    // Associations.
    {"vex_controllercomputersystemconformstoprofile", kAssociation, kInterop},
    {"vex_bioselementsoftwareidentity", kAssociation, kImpl},
    {"vex_driverelementsoftwareidentity", kAssociation, kImpl},
    {"vex_firmwareelementsoftwareidentity", kAssociation, kImpl},
    {"vex_installedsoftwareidentity", kAssociation, kImpl},
    {"vex_diskdriveviewsystemdeviceview", kAssociation, kImpl},
    {"vex_csbaseinstance", kAssociation, kImpl},
    {"vex_systemcomponent", kAssociation, kImpl},
    {"vex_diskdriveviewsystemdeviceviewview", kAssociation, kImpl},
    {"vex_volumeviewsystemdeviceviewview", kAssociation, kImpl},
    {"vex_hostedstoragepoolview", kAssociation, kImpl},
    {"vex_volumeviewsystemdeviceview", kAssociation, kImpl},
    {"vex_concretestoragepoolfasttierdby", kAssociation, kImpl},
    {"vex_containerview", kAssociation, kImpl},
    {"vex_svbaseinstance", kAssociation, kImpl},
    {"vex_pspbaseinstance", kAssociation, kImpl},
    {"vex_cspbaseinstance", kAssociation, kImpl},
    {"vex_ddbaseinstance", kAssociation, kImpl},
    {"vex_viewelementcapabilities", kAssociation, kImpl},
    {"vex_concretepooltovolumeallocatedfromstoragepoolviewview", kAssociation, kImpl},
    {"vex_associatedalarm", kAssociation, kImpl},
    {"vex_logicalidentity", kAssociation, kImpl},
    {"vex_alarmsystemdevice", kAssociation, kImpl},
    {"vex_cardphysicalcomponent", kAssociation, kImpl},
    {"vex_computersystempackage", kAssociation, kImpl},
    {"vex_controlledby", kAssociation, kImpl},
    {"vex_realizes", kAssociation, kImpl},
    {"vex_portcontrollersystemdevice", kAssociation, kImpl},
    {"vex_protocolcontrollersystemdevice", kAssociation, kImpl},
    {"vex_scsisapavailableforelement", kAssociation, kImpl},
    {"vex_scsiprotocolcontrollerforunit", kAssociation, kImpl},
    {"vex_dedicatedmemberofcollection", kAssociation, kImpl},
    {"vex_dedicatedhostedcollection", kAssociation, kImpl},
    {"vex_dedicatedisspare", kAssociation, kImpl},
    {"vex_globalstorageredundancycollection", kAssociation, kImpl},
    {"vex_globalisspare", kAssociation, kImpl},
    {"vex_hostedspareconfigurationservice", kAssociation, kImpl},
    {"vex_storagevolumeconcretedependency", kAssociation, kImpl},
    {"vex_concretepoolconcretedependency", kAssociation, kImpl},
    {"vex_compositeextentsystemdevice", kAssociation, kImpl},
    {"vex_globalmemberofcollection", kAssociation, kImpl},
    {"vex_targetscsidevicesapimplementation", kAssociation, kImpl},
    {"vex_datargetportsystemdevice", kAssociation, kImpl},
    {"vex_targetscsiprotocolhostedaccesspoint", kAssociation, kImpl},
    {"vex_failovermemberofcollection", kAssociation, kImpl},
    {"vex_failoverhostedcollection", kAssociation, kImpl},
    {"vex_spareconfcapelementcapabilities", kAssociation, kImpl},
    {"vex_enclosuresystempackage", kAssociation, kImpl},
    {"vex_seselementrealizes", kAssociation, kImpl},
    {"vex_enclosureconnectoronpackage", kAssociation, kImpl},
    {"vex_enclosurefanrealizes", kAssociation, kImpl},
    {"vex_enclosurefansystemdevice", kAssociation, kImpl},
    {"vex_enclosurepowersupplyrealizes", kAssociation, kImpl},
    {"vex_enclosurepowersupplysystemdevice", kAssociation, kImpl},
    {"vex_enclosuresensorrealizes", kAssociation, kImpl},
    {"vex_enclosuresensorsystemdevice", kAssociation, kImpl},
    {"vex_enclosurepackageinconnector", kAssociation, kImpl},
    {"vex_controllervolumesystemdevice", kAssociation, kImpl},
    {"vex_primordialsettingsassociatedtocapabilities", kAssociation, kImpl},
    {"vex_concretepoolallocatedfromprimordialpool", kAssociation, kImpl},
    {"vex_storagevolumeallocatedfromconcretepool", kAssociation, kImpl},
    {"vex_primordialpoolelementcapabilities", kAssociation, kImpl},
    {"vex_concretepoolelementcapabilities", kAssociation, kImpl},
    {"vex_storageconfigurationserviceelementcapabilities", kAssociation, kImpl},
    {"vex_storageconfigurationservicehostedservice", kAssociation, kImpl},
    {"vex_hostedconcretestoragepool", kAssociation, kImpl},
    {"vex_hostedprimordialstoragepool", kAssociation, kImpl},
    {"vex_volumeelementsettingdata", kAssociation, kImpl},
    {"vex_primordialsettingsgeneratedfromcapabilities", kAssociation, kImpl},
    {"vex_concretesettingsassociatedtocapabilities", kAssociation, kImpl},
    {"vex_concretesettingsgeneratedfromcapabilities", kAssociation, kImpl},
    {"vex_affectedjobelement", kAssociation, kImpl},
    {"vex_owningjobelement", kAssociation, kImpl},
    {"vex_diskdrivesystemdevice", kAssociation, kImpl},
    {"vex_diskdriveataportsystemdevice", kAssociation, kImpl},
    {"vex_diskdrivesasportsystemdevice", kAssociation, kImpl},
    {"vex_diskdriveelementsoftwareidentity", kAssociation, kImpl},
    {"vex_mediapresent", kAssociation, kImpl},
    {"vex_associatedcomponentextent", kAssociation, kImpl},
    {"vex_associatedremainingextent", kAssociation, kImpl},
    {"vex_concretecomponent", kAssociation, kImpl},
    {"vex_primordialassociatedcomponentextent", kAssociation, kImpl},
    {"vex_primordialtoconcretebasedon", kAssociation, kImpl},
    {"vex_volumetocompositeextentbasedon", kAssociation, kImpl},
    {"vex_primordialtoremainingbasedon", kAssociation, kImpl},
    {"vex_initiatorataprotocolhostedaccesspoint", kAssociation, kImpl},
    {"vex_initiatoratascsibindsto", kAssociation, kImpl},
    {"vex_initiatorscsidevicesapimplementation", kAssociation, kImpl},
    {"vex_initiatorscsiprotocolhostedaccesspoint", kAssociation, kImpl},
    {"vex_sasinitiatorphyconcretecomponent", kAssociation, kImpl},
    {"vex_sasinitiatorportsystemdevice", kAssociation, kImpl},
    {"vex_sasphysystemdevice", kAssociation, kImpl},
    {"vex_associatedbattery", kAssociation, kImpl},
    {"vex_batterysystemdevice", kAssociation, kImpl},
    {"vex_parenttochildpoolviewview", kAssociation, kImpl},
    {"vex_satasapavailableforelement", kAssociation, kImpl},
    {"vex_sassapavailableforelement", kAssociation, kImpl},
    {"vex_scsidevicesapimplementation", kAssociation, kImpl},
    {"vex_satadevicesapimplementation", kAssociation, kImpl},
    {"vex_container", kAssociation, kImpl},
    {"vex_concretecomponentview", kAssociation, kImpl},
    {"vex_primordialpooltoconcretepoolallocatedfromstoragepoolviewview", kAssociation, kImpl},
    // Other instance classes.
    {"vex_driversoftwareidentity", kInstance, kImpl},
    {"vex_firmwaresoftwareidentity", kInstance, kImpl},
    {"vex_biossoftwareidentity", kInstance, kImpl},
    {"vex_controllerview", kInstance, kImpl},
    {"vex_primordialstoragepoolview", kInstance, kImpl},
    {"vex_viewcapabilities", kInstance, kImpl},
    {"vex_dedicatedstorageredundancyset", kInstance, kImpl},
    {"vex_globalstorageredundancyset", kInstance, kImpl},
    {"vex_concretestorageextent", kInstance, kImpl},
    {"vex_remainingstorageextent", kInstance, kImpl},
    {"vex_compositeextent", kInstance, kImpl},
    {"vex_targetscsiprotocolendpoint", kInstance, kImpl},
    {"vex_failoverstorageextentscollection", kInstance, kImpl},
    {"vex_spareconfigurationcapabilities", kInstance, kImpl},
    {"vex_diskdrive", kInstance, kImpl},
    {"vex_diskdriveataport", kInstance, kImpl},
    {"vex_diskdriveataprotocolendpoint", kInstance, kImpl},
    {"vex_diskdrivephysicalpackage", kInstance, kImpl},
    {"vex_diskdrivesasport", kInstance, kImpl},
    {"vex_diskdrivescsiprotocolendpoint", kInstance, kImpl},
    {"vex_enclosurechassis", kInstance, kImpl},
    {"vex_enclosurefan", kInstance, kImpl},
    {"vex_enclosurepowersupply", kInstance, kImpl},
    {"vex_enclosuresensor", kInstance, kImpl},
    {"vex_enclosurediskdriveslot", kInstance, kImpl},
    {"vex_perfmodeprops", kInstance, kImpl},
    {"vex_primordialstoragepool", kInstance, kImpl},
    {"vex_primordialstoragepoolcapabilities", kInstance, kImpl},
    {"vex_storageconfigurationcapabilities", kInstance, kImpl},
    {"vex_concretestoragepoolcapabilities", kInstance, kImpl},
    {"vex_storageconfigurationservice", kInstance, kImpl},
    {"vex_volumestoragesetting", kInstance, kImpl},
    {"vex_concretefixedstoragesettings", kInstance, kImpl},
    {"vex_completedjob", kInstance, kImpl},
    {"vex_diskdrivesoftwareidentity", kInstance, kImpl},
    {"vex_initiatorsasphy", kInstance, kImpl},
    {"vex_sasinitiatorport", kInstance, kImpl},
    {"vex_initiatorataprotocolendpoint", kInstance, kImpl},
    {"vex_initiatorscsiprotocolendpoint", kInstance, kImpl},
    // Classes with extrinsic methods (all but the spare configuration service are also cached).
    {"vex_controllercomputersystem", kMethod, kBoth},
    {"vex_portcontroller", kMethod, kImpl},
    {"vex_alarmdevice", kMethod, kImpl},
    {"vex_card", kMethod, kImpl},
    {"vex_product", kMethod, kImpl},
    {"vex_scsiprotocolcontroller", kMethod, kImpl},
    {"vex_spareconfigurationservice", kMethod, kImpl},
    {"vex_battery", kMethod, kImpl},
    // Cached instance classes.
    {"vex_diskdriveview", kCached, kImpl},
    {"vex_storagevolumeview", kCached, kImpl},
    {"vex_concretestoragepoolview", kCached, kImpl},
    {"vex_primordialstorageextent", kCached, kImpl},
    {"vex_datargetport", kCached, kImpl},
    {"vex_seselement", kCached, kImpl},
    {"vex_storagevolume", kCached, kImpl},
    {"vex_concretestoragepool", kCached, kImpl},
    {"vex_primordialfixedstoragesettings", kCached, kImpl},
    {"vex_primordialgeneratedstoragesettings", kCached, kImpl},
    {"vex_concretegeneratedstoragesettings", kCached, kImpl},
    {"vex_concretejob", kCached, kImpl},
    {"vex_sourcestoragepoolview", kCached, kImpl},
    {"vex_eventindication", kCached, kImpl},
};
// clang-format on

constexpr std::size_t kRowCount = sizeof kRows / sizeof kRows[0];

// The factory of a plug-in name, from whichever family makes it.
PluginFactory factoryFor(const char* name) {
    for (const PluginFactoryList* family : kFamilies) {
        for (std::size_t i = 0; i < family->count; ++i) {
            if (std::strcmp(family->entries[i].name, name) == 0) {
                return family->entries[i].factory;
            }
        }
    }
    return nullptr;
}

struct ResolvedTable {
    PluginRegistration rows[kRowCount];
    ResolvedTable() {
        for (std::size_t i = 0; i < kRowCount; ++i) {
            rows[i] = {kRows[i].name, kRows[i].group, kRows[i].nameSpaces, factoryFor(kRows[i].name)};
        }
    }
};

const ResolvedTable& resolved() {
    static const ResolvedTable table;
    return table;
}

}  // namespace

const PluginRegistration* pluginRegistrations() { return resolved().rows; }

std::size_t pluginRegistrationCount() { return kRowCount; }

}  // namespace vex::cim::fwf

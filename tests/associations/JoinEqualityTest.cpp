// Association families answer exactly what the association base's cross
// product answers - the same instances, in the same order, with the same
// extra properties - for whole enumerations and for requests from single
// objects, on the demo system and on a generated one. Checked for a few rows
// made here (plain keys, computed multiple keys, no keys at all) and for every
// registered member of a family.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "CrossProductReference.h"
#include "SimulatedSystem.h"
#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"
#include "framework/CIMException.h"
#include "framework/CIMNamespaces.h"
#include "framework/FrameworkFacade.h"
#include "framework/PluginRegistry.h"
#include "framework/PropertyText.h"
#include "framework/TableAssociation.h"

namespace vex::assoctest {
namespace {

using cim::fwf::AssociationRow;
using cim::fwf::CIMInstance;
using cim::fwf::CIMObjectPath;
using cim::fwf::CIMProperty;
using cim::fwf::FrameworkFacade;
using cim::fwf::TableAssociation;

// Every volume is linked to each drive of its controller (several keys per
// drive: one per volume number it could hold), with an extra property.
void controllerVolumeKeys(const CIMInstance& drive, std::vector<std::string>& keys) {
    const std::string system = cim::fwf::keyText(drive, "SystemName");
    for (int volume = 0; volume < 4; ++volume) {
        keys.push_back(system + "#" + std::to_string(volume));
    }
}

void volumeKey(const CIMInstance& volume, std::vector<std::string>& keys) {
    const std::string id = cim::fwf::keyText(volume, "DeviceID");
    keys.push_back(cim::fwf::keyText(volume, "SystemName") + "#" + id.substr(id.find('_') + 1));
}

bool oddDrivesOnly(const CIMInstance& drive, const CIMInstance&, std::vector<CIMProperty>& extra) {
    const std::string id = cim::fwf::keyText(drive, "DeviceID");
    if (id.empty() || (id.back() - '0') % 2 == 0) {
        return false;
    }
    extra.push_back(CIMProperty("Note", cim::fwf::CIMValue<std::string>(id), false,
                                cim::fwf::CIM_STRING, false));
    return true;
}

bool sameController(const CIMInstance& a, const CIMInstance& b, std::vector<CIMProperty>&) {
    return cim::fwf::keyText(a, "Name") == cim::fwf::keyText(b, "SystemName");
}

const AssociationRow kTestRows[] = {
    {"VEX_TestMediaPresent", "VEX_DiskDrive", "VEX_PrimordialStorageExtent", "Antecedent",
     "Dependent", {"SystemName,DeviceID"}, {"SystemName,DeviceID"}},
    {"VEX_TestDriveVolume", "VEX_DiskDrive", "VEX_StorageVolume", "Antecedent", "Dependent",
     {nullptr, &controllerVolumeKeys}, {nullptr, &volumeKey}, &oddDrivesOnly},
    {"VEX_TestSystemDevice", "VEX_ControllerComputerSystem", "VEX_Battery,VEX_DiskDrive",
     "GroupComponent", "PartComponent", {}, {}, &sameController},
};

std::string describe(const CIMInstance& instance) {
    std::string text = instance.getPath().toString();
    for (const CIMProperty& property : instance.getPropertyList()) {
        text += " " + cim::fwf::describeProperty(property);
    }
    return text;
}

std::vector<std::string> describeAll(const std::vector<CIMInstance>& instances) {
    std::vector<std::string> texts;
    for (const CIMInstance& instance : instances) {
        texts.push_back(describe(instance));
    }
    return texts;
}

std::vector<std::string> pathTexts(const std::vector<CIMObjectPath>& paths) {
    std::vector<std::string> texts;
    for (const CIMObjectPath& path : paths) {
        texts.push_back(path.toString());
    }
    return texts;
}

// Every instance of a class; none for a class this build does not serve.
std::vector<CIMInstance> enumerate(const std::string& className) {
    CIMObjectPath path("", cim::fwf::kImplementationNameSpace, className, {});
    std::vector<CIMInstance> out;
    if (FrameworkFacade::getInstance()->getPlugIn(className) != nullptr) {
        FrameworkFacade::getInstance()->enumerateInstances(path, out);
    }
    return out;
}

// A few instances of each end: the first, the last and one between.
std::vector<CIMObjectPath> sampleSources(cim::fwf::AbstractAssociationProviderPlugin& member) {
    std::vector<CIMObjectPath> sources;
    for (const std::string& end : {member.getAntecedent(), member.getDependent()}) {
        for (std::size_t start = 0; start < end.size();) {
            std::size_t comma = end.find(',', start);
            comma = comma == std::string::npos ? end.size() : comma;
            const std::vector<CIMInstance> all = enumerate(end.substr(start, comma - start));
            for (std::size_t i : {std::size_t{0}, all.size() / 2, all.size() - 1}) {
                if (i < all.size()) {
                    sources.push_back(all[i].getPath());
                }
            }
            start = comma + 1;
        }
    }
    return sources;
}

// The number of association instances both gave.
std::size_t expectSameAnswers(cim::fwf::AbstractAssociationProviderPlugin& member,
                              const std::string& className) {
    SCOPED_TRACE(className);
    CrossProductReference reference(member);
    CIMObjectPath path("", cim::fwf::kImplementationNameSpace, className, {});
    std::vector<CIMInstance> joined, crossed;
    member.enumerateInstances(path, joined, false);
    reference.enumerateInstances(path, crossed, false);
    EXPECT_EQ(describeAll(joined), describeAll(crossed));

    std::string none;
    for (CIMObjectPath source : sampleSources(member)) {
        SCOPED_TRACE(source.toString());
        std::string assoc = className;
        std::vector<CIMObjectPath> a, b;
        member.associatorNames(source, assoc, a, none, none, none);
        reference.associatorNames(source, assoc, b, none, none, none);
        EXPECT_EQ(pathTexts(a), pathTexts(b));
        std::vector<CIMInstance> ra, rb;
        member.references(source, className, ra, "");
        reference.references(source, className, rb, "");
        EXPECT_EQ(describeAll(ra), describeAll(rb));
    }
    return joined.size();
}

void expectEveryFamilyAgrees() {
    for (const AssociationRow& row : kTestRows) {
        TableAssociation member(row);
        EXPECT_GT(expectSameAnswers(member, row.className), 0u) << row.className;
    }
    std::size_t members = 0;
    for (std::size_t i = 0; i < cim::fwf::pluginRegistrationCount(); ++i) {
        const cim::fwf::PluginRegistration& registration = cim::fwf::pluginRegistrations()[i];
        auto* member = dynamic_cast<TableAssociation*>(
            FrameworkFacade::getInstance()->getPlugIn(registration.name));
        if (member != nullptr && (registration.nameSpaces & cim::fwf::kServedInImplementation)) {
            try {
                expectSameAnswers(*member, registration.className);
            } catch (const cim::fwf::CIMException& e) {
                ADD_FAILURE() << registration.className << ": " << e.getErrMessage();
            }
            ++members;
        }
    }
    std::printf("compared %zu test rows and %zu registered family members\n",
                std::size(kTestRows), members);
}

class JoinEquality : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        s_system = std::make_unique<datapath::SimulatedSystem>(datapath::shippedSystem("demo.json"));
        ASSERT_TRUE(FrameworkFacade::getInstance()->initialize());
    }
    static void TearDownTestSuite() { s_system.reset(); }

    // Serves another system: the controller interface restarts on it.
    static void serve(std::unique_ptr<datapath::SimulatedSystem> system) {
        s_system = std::move(system);
        cim::fwf::VexFSAInterface* fsa = cim::fwf::VexFSAInterface::getInstance();
        fsa->terminate();
        cim::fwf::VexCacheManager::initCacheUpdate();
        fsa->initialize(true, true, false, false);
        cim::fwf::VexCacheManager::exitCacheUpdate();
    }

    static std::unique_ptr<datapath::SimulatedSystem> s_system;
};

std::unique_ptr<datapath::SimulatedSystem> JoinEquality::s_system;

TEST_F(JoinEquality, OnTheDemoSystem) { expectEveryFamilyAgrees(); }

TEST_F(JoinEquality, OnAGeneratedSystem) {
    storlib::GeneratorParams params;
    params.controllers = 3;
    params.drivesPerController = 20;
    params.volumesPerController = 6;
    serve(std::make_unique<datapath::SimulatedSystem>(params));
    ASSERT_GE(enumerate("VEX_DiskDrive").size(), 60u);
    expectEveryFamilyAgrees();
}

}  // namespace
}  // namespace vex::assoctest

// The controller's classes are views of its one cache instance: each class
// shows exactly the properties stored under its prefix (prefix removed) and
// VEX_ControllerView shows them all as stored. The SAS phys and ports, stored
// as parallel arrays, become one instance per array element.
#include "ProviderFixture.h"

namespace vex::datapath {
namespace {

using cmpihost::Instance;
using cmpihost::NamedValue;
using cmpihost::Value;

struct View {
    const char* className;
    const char* prefix;
};

// One instance per controller.
const View kControllerViews[] = {
    {"VEX_ControllerComputerSystem", "CS"}, {"VEX_Card", "CD"},
    {"VEX_Product", "PRD"},                 {"VEX_PortController", "PC"},
    {"VEX_SCSIProtocolController", "PC"},   {"VEX_AlarmDevice", "AD"},
    {"VEX_DATargetPort", "DA"},             {"VEX_Battery", "B"},
};

bool startsWith(const std::string& name, const std::string& prefix) {
    return name.compare(0, prefix.size(), prefix) == 0;
}

// The properties of a controller's view stored under prefix, renamed.
cmpihost::NamedValues underPrefix(const Instance& controller, const std::string& prefix) {
    cmpihost::NamedValues part;
    for (const NamedValue& property : controller.properties) {
        if (startsWith(property.name, prefix)) {
            part.push_back({property.name.substr(prefix.size()), property.value});
        }
    }
    return part;
}

// Same names and values, in any order.
bool sameProperties(const cmpihost::NamedValues& a, const cmpihost::NamedValues& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (const NamedValue& property : a) {
        const Value* other = cmpihost::findNamed(b, property.name);
        if (other == nullptr || *other != property.value) {
            return false;
        }
    }
    return true;
}

class ProviderControllerViewsTest : public ProviderTest {
protected:
    void SetUp() override { startOn(shippedSystem("demo.json")); }
};

TEST_F(ProviderControllerViewsTest, EachClassShowsOnlyItsPrefixOfItsController) {
    const std::vector<Instance> controllers = enumerate("VEX_ControllerView");
    ASSERT_EQ(controllers.size(), system().snapshot()->getAdapterCount());
    for (const View& view : kControllerViews) {
        std::size_t withPart = 0;
        const std::vector<Instance> instances = enumerate(view.className);
        for (const Instance& controller : controllers) {
            const cmpihost::NamedValues part = underPrefix(controller, view.prefix);
            if (part.empty()) {
                continue;
            }
            ++withPart;
            std::size_t matches = 0;
            for (const Instance& instance : instances) {
                matches += sameProperties(instance.properties, part) ? 1 : 0;
            }
            EXPECT_EQ(matches, 1u) << view.className << " of " << controller.path.toString();
        }
        EXPECT_EQ(instances.size(), withPart) << view.className;
        // The view carries every class's part; only a battery may be absent.
        if (std::string(view.prefix) != "B") {
            EXPECT_EQ(withPart, controllers.size()) << view.className;
        }
    }
}

// Element i of every "IP" array of a controller is phy i of that controller.
TEST_F(ProviderControllerViewsTest, SasPhysAreTheElementsOfTheStoredArrays) {
    const std::vector<Instance> phys = enumerate("VEX_InitiatorSASPhy");
    std::size_t elements = 0;
    for (const Instance& controller : enumerate("VEX_ControllerView")) {
        const cmpihost::NamedValues arrays = underPrefix(controller, "IP");
        const Value* ids = cmpihost::findNamed(arrays, "DeviceID");
        ASSERT_NE(ids, nullptr);
        ASSERT_TRUE(ids->isArray());
        for (std::size_t i = 0; i < ids->elements().size(); ++i, ++elements) {
            cmpihost::NamedValues element;
            for (const NamedValue& array : arrays) {
                element.push_back({array.name, array.value.elements().at(i)});
            }
            std::size_t matches = 0;
            for (const Instance& phy : phys) {
                matches += sameProperties(phy.properties, element) ? 1 : 0;
            }
            EXPECT_EQ(matches, 1u) << ids->elements()[i].toString();
        }
    }
    EXPECT_EQ(phys.size(), elements);
    for (const Instance& phy : phys) {
        EXPECT_EQ(phy.path.key("DeviceID")->type(), CMPI_string) << phy.path.toString();
    }
}

}  // namespace
}  // namespace vex::datapath

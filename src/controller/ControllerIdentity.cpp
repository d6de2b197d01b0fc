#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"

namespace vex::cim::fwf::fsamap {

namespace {

using Row = PropertyRow<ControllerContext>;

// CIM_ComputerSystem.Dedicated: 3 Storage, 30 Host-based RAID controller.
const std::vector<unsigned long long> kDedicated = {3, 30};
// CIM_PhysicalPackage.PackageType 9: Module/Card.
constexpr unsigned kPackageModuleCard = 9;
// CIM_LogicalPort.UsageRestriction 2: front-end only.
constexpr unsigned kFrontEndOnly = 2;
// CIM_LogicalPort.PortType 1: Other.
constexpr unsigned kPortTypeOther = 1;

RawValue systemName(const ControllerContext& c) { return controllerSystemName(c.index); }
RawValue systemClass(const ControllerContext&) { return raw(kControllerSystemClass); }

RawValue modelName(const ControllerContext& c) {
    return c.adapter ? raw(c.adapter->getModel()) : RawValue();
}

const Row kIdentity[] = {
    {"CSCreationClassName", CIM_STRING, KEY_AND_VIEW_KEY, systemClass},
    {"CSName", CIM_STRING, KEY_AND_VIEW_KEY, systemName},
    {"CSNameFormat", CIM_STRING, PLAIN, [](const ControllerContext&) { return raw("Other"); }},
    {"CSElementName", CIM_STRING, PLAIN,
     [](const ControllerContext& c) { return raw(formatText("Controller_%d", c.index)); }},
    {"CSDedicated", CIM_UINT16_ARRAY, PLAIN, [](const ControllerContext&) { return RawValue(kDedicated); }},
    {"CSControllerNumber", CIM_UINT32, PLAIN, [](const ControllerContext& c) { return raw(c.index); }},
    {"DASystemCreationClassName", CIM_STRING, VIEW_KEY, systemClass},
    {"DASystemName", CIM_STRING, VIEW_KEY, systemName},
    {"DACreationClassName", CIM_STRING, VIEW_KEY,
     [](const ControllerContext&) { return raw(kDATargetPortClass); }},
    {"DAUsageRestriction", CIM_UINT16, PLAIN, [](const ControllerContext&) { return raw(kFrontEndOnly); }},
    {"DAPortType", CIM_UINT16, PLAIN, [](const ControllerContext&) { return raw(kPortTypeOther); }},
    {"PRDElementName", CIM_STRING, PLAIN, modelName},
    {"CDTag", CIM_STRING, VIEW_KEY, [](const ControllerContext& c) { return raw(formatText("vex_%d", c.index)); }},
    {"CDElementName", CIM_STRING, PLAIN, modelName},
    {"CDCreationClassName", CIM_STRING, VIEW_KEY, [](const ControllerContext&) { return raw(kCardClass); }},
    {"CDHostingBoard", CIM_BOOLEAN, PLAIN, [](const ControllerContext&) { return raw(false); }},
    {"CDPackageType", CIM_UINT16, PLAIN, [](const ControllerContext&) { return raw(kPackageModuleCard); }},
    {"CDManufacturer", CIM_STRING, PLAIN, [](const ControllerContext&) { return raw(kManufacturer); }},
};

}  // namespace

void setInfoFromFsaEnum(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kIdentity, controller);
}

}  // namespace vex::cim::fwf::fsamap

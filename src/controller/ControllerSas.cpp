#include <storlib/SASConnector.h>
#include <storlib/SASPhy.h>

#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"

namespace vex::cim::fwf::fsamap {

namespace {

using storlib::SASConnector;
using storlib::SASPhy;

// CIM_EnabledLogicalElement states: 2 Enabled, 3 Disabled, 12 Not Applicable.
constexpr unsigned kEnabled = 2;
constexpr unsigned kDisabled = 3;
constexpr unsigned kNotApplicable = 12;
// CIM_LogicalPort.UsageRestriction 3: back-end only (the initiator side).
constexpr unsigned kBackEndOnly = 3;
// CIM_LogicalPort.PortType 1: Other; the connector's kind is in SPConnectorType.
constexpr unsigned kPortTypeOther = 1;

template <auto Getter>
RawValue phyField(const PhyContext& p) {
    return raw((p.phy->*Getter)());
}

template <auto Getter>
RawValue connectorField(const ConnectorContext& c) {
    return raw((c.connector->*Getter)());
}

// Numbers joined by ',' ("0,1,2,3").
std::string joined(const std::vector<uint32_t>& numbers) {
    std::string text;
    for (uint32_t n : numbers) {
        text += (text.empty() ? "" : ",") + std::to_string(n);
    }
    return text;
}

const PropertyRow<PhyContext> kPhys[] = {
    {"IPSystemCreationClassName", CIM_STRING_ARRAY, VIEW_KEY, [](const PhyContext&) { return raw(kControllerSystemClass); }},
    {"IPSystemName", CIM_STRING_ARRAY, VIEW_KEY,
     [](const PhyContext& p) { return raw(controllerSystemName(p.controller->index)); }},
    {"IPCreationClassName", CIM_STRING_ARRAY, VIEW_KEY, [](const PhyContext&) { return raw(kInitiatorSASPhyClass); }},
    // controller, controller SAS address, phy
    {"IPDeviceID", CIM_STRING_ARRAY, VIEW_KEY,
     [](const PhyContext& p) {
         return raw(formatText("%d_%s_%u", p.controller->index, p.controller->adapter->getWWN().c_str(),
                               p.phy->getPhyID()));
     }},
    {"IPAttachedDeviceType", CIM_STRING_ARRAY, PLAIN, phyField<&SASPhy::getAttachedDeviceType>},
    {"IPAttachedSASAddress", CIM_STRING_ARRAY, PLAIN, phyField<&SASPhy::getAttachedSASAddress>},
    // SAS link-rate codes: 8 1.5 Gbit/s, 9 3, 10 6, 11 12.
    {"IPHardwareMaximumPhysicalLinkRate", CIM_UINT8_ARRAY, PLAIN, phyField<&SASPhy::getHardwareMaximumLinkRate>},
    {"IPHardwareMinimumPhysicalLinkRate", CIM_UINT8_ARRAY, PLAIN, phyField<&SASPhy::getHardwareMinimumLinkRate>},
    {"IPNegotiatedPhysicalLinkRate", CIM_UINT8_ARRAY, PLAIN, phyField<&SASPhy::getNegotiatedLinkRate>},
    {"IPProgrammedMaximumPhysicalLinkRate", CIM_UINT8_ARRAY, PLAIN, phyField<&SASPhy::getProgrammedMaximumLinkRate>},
    {"IPProgrammedMinimumPhysicalLinkRate", CIM_UINT8_ARRAY, PLAIN, phyField<&SASPhy::getProgrammedMinimumLinkRate>},
};

const PropertyRow<ConnectorContext> kConnectors[] = {
    {"SPSystemCreationClassName", CIM_STRING_ARRAY, VIEW_KEY, [](const ConnectorContext&) { return raw(kControllerSystemClass); }},
    {"SPSystemName", CIM_STRING_ARRAY, VIEW_KEY,
     [](const ConnectorContext& c) { return raw(controllerSystemName(c.controller->index)); }},
    {"SPCreationClassName", CIM_STRING_ARRAY, VIEW_KEY, [](const ConnectorContext&) { return raw(kSASInitiatorPortClass); }},
    // controller, connector name, connector
    {"SPDeviceID", CIM_STRING_ARRAY, VIEW_KEY,
     [](const ConnectorContext& c) {
         return raw(formatText("%u_%s_%u", static_cast<unsigned>(c.controller->index),
                               c.connector->getName().c_str(), c.connector->getConnectorID()));
     }},
    {"SPName", CIM_STRING_ARRAY, PLAIN, connectorField<&SASConnector::getName>},
    {"SPConnectorID", CIM_UINT32_ARRAY, PLAIN, connectorField<&SASConnector::getConnectorID>},
    {"SPConnectorType", CIM_STRING_ARRAY, PLAIN, connectorField<&SASConnector::getConnectorType>},
    {"SPDevID", CIM_UINT32_ARRAY, PLAIN, [](const ConnectorContext& c) { return raw(c.controller->index); }},
    {"SPPhyID", CIM_STRING_ARRAY, PLAIN, [](const ConnectorContext& c) { return raw(joined(c.connector->getPhyIDs())); }},
    {"SPLaneId", CIM_STRING_ARRAY, PLAIN, [](const ConnectorContext& c) { return raw(joined(c.connector->getLaneIDs())); }},
    {"SPPortType", CIM_UINT16_ARRAY, PLAIN, [](const ConnectorContext&) { return raw(kPortTypeOther); }},
    {"SPPermanentAddress", CIM_STRING_ARRAY, PLAIN, connectorField<&SASConnector::getSASAddress>},
    {"SPEnabledState", CIM_UINT16_ARRAY, PLAIN,
     [](const ConnectorContext& c) { return raw(c.connector->isEnabled() ? kEnabled : kDisabled); }},
    {"SPEnabledDefault", CIM_UINT16_ARRAY, PLAIN, [](const ConnectorContext&) { return raw(kEnabled); }},
    {"SPRequestedState", CIM_UINT16_ARRAY, PLAIN, [](const ConnectorContext&) { return raw(kNotApplicable); }},
    {"SPUsageRestriction", CIM_UINT16_ARRAY, PLAIN, [](const ConnectorContext&) { return raw(kBackEndOnly); }},
};

template <typename Context, typename Object>
std::vector<Context> elementsOf(const ControllerContext& controller) {
    std::vector<Context> elements;
    for (const storlib::RaidObject* object : storlib::FilterCollection(*controller.adapter, Object::kClassName)) {
        elements.push_back(Context{&controller, object->as<Object>()});
    }
    return elements;
}

}  // namespace

void updateSASPhyInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    const std::vector<PhyContext> phys = elementsOf<PhyContext, SASPhy>(controller);
    if (!phys.empty()) {
        instance.addColumns(kPhys, phys);
    }
}

void updateSasConnectorInformation(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    const std::vector<ConnectorContext> connectors = elementsOf<ConnectorContext, SASConnector>(controller);
    if (!connectors.empty()) {
        instance.addColumns(kConnectors, connectors);
    }
}

}  // namespace vex::cim::fwf::fsamap

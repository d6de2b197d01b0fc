#include "controller/ControllerMapping.h"

namespace vex::cim::fwf::fsamap {

namespace {

using storlib::AdapterData;
using Row = PropertyRow<ControllerContext>;

template <auto Member>
constexpr RawValue (*A)(const ControllerContext&) = &fieldOf<ControllerContext, Member>;

const Row kHostBus[] = {
    {"HostBusType", CIM_STRING, PLAIN, A<&AdapterData::hostBusType>},
    {"HostBusSpeed", CIM_STRING, PLAIN, A<&AdapterData::hostBusSpeed>},
    {"HostBusLinkWidth", CIM_UINT32, PLAIN, A<&AdapterData::hostBusLinkWidth>},
};

const Row kPciIds[] = {
    {"DAPCIDeviceID", CIM_UINT16, PLAIN, A<&AdapterData::pciDeviceId>},
    {"DAPCISubSysDeviceID", CIM_UINT16, PLAIN, A<&AdapterData::pciSubDeviceId>},
    {"DAPCISubSysVendorId", CIM_UINT16, PLAIN, A<&AdapterData::pciSubVendorId>},
    {"DAPCIVendorID", CIM_UINT16, PLAIN, A<&AdapterData::pciVendorId>},
};

}  // namespace

void readHostBusInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kHostBus, controller);
}

void readAdapterPCIIds(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kPciIds, controller);
}

}  // namespace vex::cim::fwf::fsamap

#include "controller/CimNames.h"
#include "controller/DeviceMapping.h"
#include "controller/InstanceBatch.h"
#include "controller/SesElementDetails.h"

namespace vex::cim::fwf::fsamap {

namespace {

using Row = PropertyRow<SESElementContext>;
using storlib::EnclosureSlot;

// controller, element type, enclosure logical identifier, element index
RawValue elementId(const SESElementContext& s) {
    return raw(formatText("%d_%d_%llu_%d", s.enclosure->controller, static_cast<int>(s.element->getElementType()),
                          static_cast<unsigned long long>(s.enclosure->enclosure->getLogicalId()),
                          static_cast<int>(s.element->getElementIndex())));
}

const Row kElement[] = {
    {"InstanceID", CIM_STRING, PLAIN, elementId},
    {"DeviceID", CIM_STRING, KEY, elementId},
    {"CreationClassName", CIM_STRING, KEY, [](const SESElementContext&) { return raw(kSESElementClass); }},
    {"SystemCreationClassName", CIM_STRING, KEY, [](const SESElementContext&) { return raw(kSESSystemClass); }},
    {"SystemName", CIM_STRING, KEY, [](const SESElementContext& s) { return raw(enclosureTag(*s.enclosure)); }},
    {"ElementStatus", CIM_UINT32, PLAIN, [](const SESElementContext& s) { return raw(s.element->getStatus()); }},
    {"ElementDesc", CIM_STRING, PLAIN, [](const SESElementContext& s) { return raw(s.element->getDescription()); }},
    {"ElementType", CIM_UINT32, PLAIN, [](const SESElementContext& s) { return raw(s.element->getElementType()); }},
    {"ProtocolIdentifier", CIM_UINT32, PLAIN,
     [](const SESElementContext& s) { return raw(s.enclosure->enclosure->getProtocolIdentifier()); }},
    {"elementIndex", CIM_UINT32, PLAIN, [](const SESElementContext& s) { return raw(s.element->getElementIndex()); }},
    {"descriptorType", CIM_UINT32, PLAIN, [](const SESElementContext& s) { return raw(s.element->getDescriptorType()); }},
};

const EnclosureSlot& slotOf(const SESElementContext& s) { return *s.element->as<EnclosureSlot>(); }

// Device slots: the bay and the SAS descriptor of the device in it.
const Row kSlot[] = {
    {"BayNumber", CIM_UINT32, PLAIN, [](const SESElementContext& s) { return raw(slotOf(s).getBayNumber()); }},
    {"SESArrayDeviceSAS", CIM_BOOLEAN, PLAIN, [](const SESElementContext& s) { return raw(slotOf(s).isArrayDevice()); }},
    {"SESDeviceSAS", CIM_BOOLEAN, PLAIN, [](const SESElementContext& s) { return raw(!slotOf(s).isArrayDevice()); }},
    {"SASPhy", CIM_STRING, PLAIN, [](const SESElementContext& s) { return raw(slotOf(s).getSASAddress()); }},
    {"NotAllPhys", CIM_BOOLEAN, PLAIN, [](const SESElementContext& s) { return raw(slotOf(s).isNotAllPhys()); }},
    {"Invalid", CIM_BOOLEAN, PLAIN, [](const SESElementContext& s) { return raw(slotOf(s).isInvalid()); }},
    {"Eip", CIM_BOOLEAN, PLAIN, [](const SESElementContext& s) { return raw(slotOf(s).isEip()); }},
};

}  // namespace

void initSESData(const SESElementContext& element, InstanceBatch& batch) {
    fsaCIMInstanceWrapper instance;
    instance.addRows(kElement, element);
    if (element.element->as<EnclosureSlot>() != nullptr) {
        instance.addRows(kSlot, element);
    }
    insertSESElementDetails(element, instance);
    batch.add(VEX_OBJ_SES_ELEMENT, instance);
}

}  // namespace vex::cim::fwf::fsamap

#include "controller/SesElementDetails.h"

#include <storlib/SESElement.h>

namespace vex::cim::fwf::fsamap {

namespace {

template <typename Element>
using Row = PropertyRow<Element>;

const Row<storlib::EnclosureFan> kFan[] = {
    {"SpeedRPM", CIM_UINT32, PLAIN, [](const storlib::EnclosureFan& f) { return raw(f.getSpeedRPM()); }},
};

const Row<storlib::EnclosurePowerSupply> kPowerSupply[] = {
    {"ACFailed", CIM_BOOLEAN, PLAIN, [](const storlib::EnclosurePowerSupply& p) { return raw(p.isACFailed()); }},
    {"DCFailed", CIM_BOOLEAN, PLAIN, [](const storlib::EnclosurePowerSupply& p) { return raw(p.isDCFailed()); }},
    {"RatedWatts", CIM_UINT32, PLAIN, [](const storlib::EnclosurePowerSupply& p) { return raw(p.getRatedWatts()); }},
};

const Row<storlib::EnclosureTemperatureSensor> kSensor[] = {
    {"Temperature", CIM_SINT32, PLAIN,
     [](const storlib::EnclosureTemperatureSensor& s) { return raw(s.getTemperature()); }},
    {"HighWarningThreshold", CIM_SINT32, PLAIN,
     [](const storlib::EnclosureTemperatureSensor& s) { return raw(s.getHighWarningThreshold()); }},
    {"HighCriticalThreshold", CIM_SINT32, PLAIN,
     [](const storlib::EnclosureTemperatureSensor& s) { return raw(s.getHighCriticalThreshold()); }},
};

const Row<storlib::EnclosureSlot> kSlot[] = {
    {"Occupied", CIM_BOOLEAN, PLAIN, [](const storlib::EnclosureSlot& s) { return raw(s.isOccupied()); }},
};

template <typename Element, std::size_t N>
bool addIf(const storlib::SESElement& element, const Row<Element> (&rows)[N], fsaCIMInstanceWrapper& instance) {
    const Element* typed = element.as<Element>();
    if (typed == nullptr) {
        return false;
    }
    instance.addRows(rows, *typed);
    return true;
}

}  // namespace

void insertSESElementDetails(const SESElementContext& element, fsaCIMInstanceWrapper& instance) {
    const storlib::SESElement& e = *element.element;
    addIf(e, kFan, instance) || addIf(e, kPowerSupply, instance) || addIf(e, kSensor, instance) ||
        addIf(e, kSlot, instance);
}

}  // namespace vex::cim::fwf::fsamap

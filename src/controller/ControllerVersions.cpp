#include <cstdlib>

#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"

namespace vex::cim::fwf::fsamap {

namespace {

// The controller's three software identities, in the order of the arrays.
enum SoftwareKind { DRIVER = 0, FIRMWARE = 1, BIOS = 2 };

struct SoftwareContext {
    const ControllerContext* controller;
    SoftwareKind kind;
};

using Row = PropertyRow<SoftwareContext>;

const std::string& versionOf(const SoftwareContext& s) {
    const storlib::Adapter& a = *s.controller->adapter;
    switch (s.kind) {
    case DRIVER: return a.getDeviceDriverVersion();
    case FIRMWARE: return a.getFirmwareVersion();
    default: return a.getBiosVersion();
    }
}

// The last number of a dotted version ("7.18.0" -> 0, "1.2.1-60001" -> 60001);
// the firmware reports its build number itself.
unsigned revisionOf(const SoftwareContext& s) {
    if (s.kind == FIRMWARE) {
        return s.controller->adapter->getFirmwareBuild();
    }
    const std::string& version = versionOf(s);
    std::size_t end = version.size();
    std::size_t begin = end;
    while (begin > 0 && version[begin - 1] >= '0' && version[begin - 1] <= '9') {
        --begin;
    }
    return begin == end ? 0u : static_cast<unsigned>(std::strtoul(version.c_str() + begin, nullptr, 10));
}

RawValue instanceId(const SoftwareContext& s) {
    static const char* const kSuffixes[] = {"_Driver", "_Firmware", "_BIOS"};
    return formatText("%d%s", s.controller->index, kSuffixes[s.kind]);
}

// CIM_SoftwareIdentity.Classifications: 2 Driver, 10 Firmware, 11 BIOS/FCode.
RawValue classification(const SoftwareContext& s) {
    static const unsigned kValues[] = {2, 10, 11};
    return raw(kValues[s.kind]);
}

const Row kVersions[] = {
    {"SIInstanceID", CIM_STRING_ARRAY, VIEW_KEY, instanceId},
    {"SIClassifications", CIM_UINT16_ARRAY, PLAIN, classification},
    {"SIVersionString", CIM_STRING_ARRAY, PLAIN, [](const SoftwareContext& s) { return raw(versionOf(s)); }},
    {"SIManufacturer", CIM_STRING_ARRAY, PLAIN, [](const SoftwareContext&) { return raw(kManufacturer); }},
    {"SIRevisionNumber", CIM_UINT16_ARRAY, PLAIN, [](const SoftwareContext& s) { return raw(revisionOf(s)); }},
};

}  // namespace

void updateVersionInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    const std::vector<SoftwareContext> identities = {
        {&controller, DRIVER}, {&controller, FIRMWARE}, {&controller, BIOS}};
    instance.addColumns(kVersions, identities);
}

}  // namespace vex::cim::fwf::fsamap

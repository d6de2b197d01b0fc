#include "providers/storage/CompletedJobRecord.h"

#include <string>

#include "framework/PropertyBuilders.h"

namespace vex::cim::fwf {

namespace {

constexpr unsigned short kFinishedAbove = 94;
constexpr unsigned short kAllDone = 100;

const CIMProperty* findProperty(const std::vector<CIMProperty>& properties, const char* name) {
    for (const CIMProperty& property : properties) {
        if (property.getName() == name) {
            return &property;
        }
    }
    return nullptr;
}

unsigned short lastPercentage(const _CompletedJob& record) {
    const CIMValue<unsigned short> percent = record[CJ_PERCENT_COMPLETE].getUint16Value();
    return percent.isEmpty() ? 0 : percent.getValues()[0];
}

}  // namespace

_CompletedJob completedJobRecord(const std::vector<CIMProperty>& properties) {
    _CompletedJob record;
    for (std::size_t slot = 0; slot < CJ_PROPERTY_COUNT; ++slot) {
        const CIMProperty* property = findProperty(properties, kCompletedJobPropertyNames[slot]);
        if (property != nullptr) {
            record.properties[slot] = *property;
        }
    }
    const bool finished = lastPercentage(record) > kFinishedAbove;
    record[CJ_JOB_STATUS] = stringProperty("JobStatus", finished ? "Completed" : "Failed");
    if (finished) {
        record[CJ_PERCENT_COMPLETE] = uint16Property("PercentComplete", kAllDone);
    }
    return record;
}

}  // namespace vex::cim::fwf

#include "CimText.h"

#include <cstdio>

#include "MofText.h"

namespace vexraid {

namespace {

using cmpihost::Value;

const char* const kOperationalStatus[] = {
    "Unknown", "Other", "OK", "Degraded", "Stressed", "Predictive Failure", "Error",
    "Non-Recoverable Error", "Starting", "Stopping", "Stopped", "In Service", "No Contact",
    "Lost Communication", "Aborted", "Dormant", "Supporting Entity in Error", "Completed",
    "Power Mode", "Relocating"};

const char* const kBatteryStatus[] = {
    "", "Other", "Unknown", "Fully Charged", "Low", "Critical", "Charging", "Charging and High",
    "Charging and Low", "Charging and Critical", "Undefined", "Partially Charged", "Learning", "Overcharged"};

std::optional<std::int64_t> integerOf(const Value& v) {
    if (v.isNull() || v.isArray()) return std::nullopt;
    if ((v.type() & CMPI_SINT) == CMPI_SINT) return v.asSigned();
    if ((v.type() & CMPI_SINT) == CMPI_UINT) return static_cast<std::int64_t>(v.asUnsigned());
    return std::nullopt;
}

template <std::size_t N>
std::string word(const char* const (&words)[N], std::int64_t code) {
    if (code >= 0 && static_cast<std::size_t>(code) < N && words[code][0] != '\0') return words[code];
    return std::to_string(code);
}

std::string scalarText(const Value& v) {
    if (v.isNull()) return "";
    if (v.type() == CMPI_string) return v.asString();
    if (v.type() == CMPI_boolean) return v.asBool() ? "yes" : "no";
    return mofValue(v);
}

}  // namespace

std::string operationalStatusText(const Value* status) {
    if (status == nullptr || status->isNull()) return "";
    if (!status->isArray()) {
        auto code = integerOf(*status);
        return code ? word(kOperationalStatus, *code) : "";
    }
    std::string out;
    for (const Value& element : status->elements()) {
        if (auto code = integerOf(element)) out += (out.empty() ? "" : ", ") + word(kOperationalStatus, *code);
    }
    return out;
}

std::string batteryStatusText(const Value* status) {
    if (status == nullptr) return "";
    auto code = integerOf(*status);
    return code ? word(kBatteryStatus, *code) : "";
}

std::string sizeText(std::uint64_t bytes) {
    static const char* const kUnits[] = {"B", "KB", "MB", "GB", "TB", "PB", "EB"};
    double value = static_cast<double>(bytes);
    std::size_t unit = 0;
    while (value >= 1000.0 && unit + 1 < sizeof kUnits / sizeof kUnits[0]) {
        value /= 1000.0;
        ++unit;
    }
    char text[32];
    std::snprintf(text, sizeof text, unit == 0 ? "%.0f %s" : "%.1f %s", value, kUnits[unit]);
    return text;
}

std::string propertyText(const cmpihost::Instance& instance, const std::string& name) {
    const Value* v = instance.property(name);
    return v == nullptr || v->isArray() ? "" : scalarText(*v);
}

std::optional<std::int64_t> integerProperty(const cmpihost::Instance& instance, const std::string& name) {
    const Value* v = instance.property(name);
    return v == nullptr ? std::nullopt : integerOf(*v);
}

std::string elementText(const cmpihost::Instance& instance, const std::string& name, std::size_t i) {
    const Value* v = instance.property(name);
    if (v == nullptr || v->isNull() || !v->isArray() || i >= v->elements().size()) return "";
    return scalarText(v->elements()[i]);
}

}  // namespace vexraid

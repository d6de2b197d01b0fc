#include "controller/PropertyValues.h"

#include <cerrno>
#include <cstdlib>

namespace vex::cim::fwf::fsamap {

namespace {

template <typename T>
std::optional<unsigned long long> firstNumber(const CIMValue<T>& value) {
    if (value.isEmpty()) {
        return std::nullopt;
    }
    const T first = value.getValues()[0];
    if constexpr (std::is_signed_v<T>) {
        if (first < 0) {
            return std::nullopt;
        }
    }
    return static_cast<unsigned long long>(first);
}

std::optional<unsigned long long> decimal(const CIMValue<std::string>& value) {
    if (value.isEmpty() || value.getValues()[0].empty()) {
        return std::nullopt;
    }
    const std::string& text = value.getValues()[0];
    if (text[0] < '0' || text[0] > '9') {
        return std::nullopt;
    }
    char* end = nullptr;
    errno = 0;
    const unsigned long long number = std::strtoull(text.c_str(), &end, 10);
    if (errno != 0 || *end != '\0') {
        return std::nullopt;
    }
    return number;
}

}  // namespace

std::optional<unsigned long long> numberOf(const CIMProperty& p) {
    switch (p.getType()) {
    case CIM_BOOLEAN: return firstNumber(p.getBoolValue());
    case CIM_UINT8: return firstNumber(p.getUint8Value());
    case CIM_SINT8: return firstNumber(p.getSint8Value());
    case CIM_UINT16: return firstNumber(p.getUint16Value());
    case CIM_SINT16: return firstNumber(p.getSint16Value());
    case CIM_UINT32: return firstNumber(p.getUint32Value());
    case CIM_SINT32: return firstNumber(p.getSint32Value());
    case CIM_UINT64: return firstNumber(p.getUint64Value());
    case CIM_SINT64: return firstNumber(p.getSint64Value());
    case CIM_STRING: return decimal(p.getStringValue());
    default: return std::nullopt;
    }
}

std::optional<bool> flagOf(const CIMProperty& p) {
    if (p.getType() == CIM_STRING) {
        const std::optional<std::string> text = textOf(p);
        if (text && (*text == "true" || *text == "TRUE" || *text == "True")) {
            return true;
        }
        if (text && (*text == "false" || *text == "FALSE" || *text == "False")) {
            return false;
        }
    }
    const std::optional<unsigned long long> number = numberOf(p);
    if (!number) {
        return std::nullopt;
    }
    return *number != 0;
}

std::optional<std::string> textOf(const CIMProperty& p) {
    if (p.getType() != CIM_STRING) {
        return std::nullopt;
    }
    const CIMValue<std::string> value = p.getStringValue();
    if (value.isEmpty()) {
        return std::nullopt;
    }
    return value.getValues()[0];
}

const CIMProperty* findProperty(const std::vector<CIMProperty>& properties, const std::string& name) {
    for (const CIMProperty& property : properties) {
        if (property.getName() == name) {
            return &property;
        }
    }
    return nullptr;
}

}  // namespace vex::cim::fwf::fsamap

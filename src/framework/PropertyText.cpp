#include "framework/PropertyText.h"

#include <cstdio>

#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf {

namespace {

std::string elementText(bool value) { return value ? "true" : "false"; }
std::string elementText(signed char value) { return std::to_string(static_cast<int>(value)); }
std::string elementText(unsigned char value) { return std::to_string(static_cast<unsigned>(value)); }
std::string elementText(short value) { return std::to_string(value); }
std::string elementText(unsigned short value) { return std::to_string(value); }
std::string elementText(int value) { return std::to_string(value); }
std::string elementText(unsigned int value) { return std::to_string(value); }
std::string elementText(long long value) { return std::to_string(value); }
std::string elementText(unsigned long long value) { return std::to_string(value); }
std::string elementText(const std::string& value) { return "\"" + value + "\""; }
std::string elementText(const CIMObjectPath& value) { return value.toString(); }
std::string elementText(const CIMInstance& value) {
    return "<instance " + value.getClassName() + ">";
}
std::string elementText(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%g", value);
    return buffer;
}
std::string elementText(float value) { return elementText(static_cast<double>(value)); }

template <typename T>
std::string valueText(const CIMValue<T>& value, bool isArray) {
    const std::vector<T>& elements = value.getValues();
    if (!isArray) {
        return elements.empty() ? std::string() : elementText(elements.front());
    }
    std::string out = "{";
    for (std::size_t i = 0; i < elements.size(); ++i) {
        out += (i == 0) ? "" : ",";
        out += elementText(elements[i]);
    }
    return out + "}";
}

}  // namespace

std::string describeProperty(const CIMProperty& property) {
    std::string out = property.getName() + "(" + std::to_string(property.getType()) + ")=";
    const bool known = detail::withElementType(property.getType(), [&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        out += valueText(property.getValueAs<T>(), isArrayType(property.getType()));
    });
    if (!known) {
        out += '?';
    }
    return out;
}

}  // namespace vex::cim::fwf

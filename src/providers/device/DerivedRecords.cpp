#include "providers/device/DerivedRecords.h"

#include <cerrno>
#include <cstdlib>

#include "framework/AssociationRow.h"
#include "framework/PropertyBuilders.h"
#include "providers/storage/ArrayElements.h"

namespace vex::cim::fwf::derived {

namespace {

CIMProperty renamed(CIMProperty property, const std::string& to, Flag flag) {
    property.setName(to);
    property.setKey(flag == kKey);
    property.setViewKey(false);
    return property;
}

void put(CIMInstance& out, CIMProperty property) {
    if (property.isKey()) {
        out.addCimKeyBinding(std::move(property));
    } else {
        out.addProperty(std::move(property));
    }
}

}  // namespace

bool copyAs(const CIMInstance& record, const std::string& from, const std::string& to, CIMInstance& out,
            Flag flag) {
    const CIMProperty* property = record.getPropertyByName(from);
    if (property == nullptr) {
        return false;
    }
    put(out, renamed(*property, to, flag));
    return true;
}

bool copyElementAs(const CIMInstance& record, const std::string& from, std::size_t index,
                   const std::string& to, CIMInstance& out, Flag flag) {
    const CIMProperty* array = record.getPropertyByName(from);
    if (array == nullptr) {
        return false;
    }
    std::optional<CIMProperty> element = arrayElement(*array, index);
    if (!element) {
        return false;
    }
    put(out, renamed(std::move(*element), to, flag));
    return true;
}

std::size_t elementCount(const CIMInstance& record, const std::string& name) {
    const CIMProperty* array = record.getPropertyByName(name);
    std::size_t count = 0;
    while (array != nullptr && arrayElement(*array, count)) {
        ++count;
    }
    return count;
}

std::string textOf(const CIMInstance& record, const std::string& name) {
    const CIMProperty* property = record.getPropertyByName(name);
    if (property == nullptr) {
        return std::string();
    }
    // Strings as they are; other values as their key text.
    return property->getType() == CIM_STRING ? stringValueOf(record, name) : keyText(record, name);
}

std::string elementText(const CIMInstance& record, const std::string& name, std::size_t index) {
    CIMInstance element;
    return copyElementAs(record, name, index, name, element) ? textOf(element, name) : std::string();
}

std::optional<long long> numberOf(const CIMInstance& record, const std::string& name) {
    const std::string text = textOf(record, name);
    if (text.empty()) {
        return std::nullopt;
    }
    if (text == "true" || text == "false") {
        return text == "true" ? 1 : 0;
    }
    char* end = nullptr;
    errno = 0;
    const long long value = std::strtoll(text.c_str(), &end, 10);
    if (errno != 0 || end == text.c_str() || *end != '\0') {
        return std::nullopt;
    }
    return value;
}

std::optional<long long> elementNumber(const CIMInstance& record, const std::string& name, std::size_t index) {
    CIMInstance element;
    return copyElementAs(record, name, index, name, element) ? numberOf(element, name) : std::nullopt;
}

bool known(const std::string& text) { return !text.empty() && text != "unknown" && text != "Unknown"; }

void addKey(CIMInstance& out, const std::string& name, const std::string& value) {
    out.addCimKeyBinding(stringProperty(name, value, true));
}

void addText(CIMInstance& out, const std::string& name, const std::string& value) {
    out.addProperty(stringProperty(name, value));
}

void addUint16(CIMInstance& out, const std::string& name, unsigned short value) {
    out.addProperty(uint16Property(name, value));
}

void addUint16s(CIMInstance& out, const std::string& name, std::vector<unsigned short> values) {
    out.addProperty(uint16ArrayProperty(name, std::move(values)));
}

void addUint32(CIMInstance& out, const std::string& name, unsigned int value) {
    out.addProperty(CIMProperty(name, CIMValue<unsigned int>(value), false, CIM_UINT32, false));
}

void addSint32(CIMInstance& out, const std::string& name, int value) {
    out.addProperty(CIMProperty(name, CIMValue<int>(value), false, CIM_SINT32, false));
}

void addBoolean(CIMInstance& out, const std::string& name, bool value) {
    out.addProperty(booleanProperty(name, value));
}

void addTexts(CIMInstance& out, const std::string& name, std::vector<std::string> values) {
    out.addProperty(stringArrayProperty(name, std::move(values)));
}

unsigned short healthOf(unsigned short operationalStatus) {
    switch (operationalStatus) {
    case 2:  // OK
        return 5;
    case 3:  // Degraded
    case 4:  // Stressed
    case 5:  // Predictive Failure
        return 10;
    case 6:   // Error
    case 13:  // Lost Communication
        return 25;
    case 7:  // Non-Recoverable Error
        return 30;
    default:
        return 0;
    }
}

void addHealth(CIMInstance& out, unsigned short operationalStatus) {
    addUint16s(out, "OperationalStatus", {operationalStatus});
    addUint16(out, "HealthState", healthOf(operationalStatus));
}

std::string leadingNumber(const std::string& text) {
    std::size_t end = 0;
    while (end < text.size() && text[end] >= '0' && text[end] <= '9') {
        ++end;
    }
    return text.substr(0, end);
}

}  // namespace vex::cim::fwf::derived

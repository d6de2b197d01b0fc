#include "controller/routines/RoutineInput.h"

#include "controller/PropertyValues.h"
#include "framework/CommonFunctions.h"

namespace vex::cim::fwf::routine {

namespace {

constexpr std::size_t kMaxDigits = 9;      // keeps every field within int
constexpr std::size_t kMaxElements = 1024;  // more drives than any controller has
constexpr char kFieldSeparator = '_';
constexpr const char* kControllerPrefix = "vexController_";

// Exactly `count` decimal fields separated by '_'.
bool fields(const std::string& text, unsigned int count, int* values) {
    if (text.empty() || CommonFunctions::getStringCount(text, kFieldSeparator) != count) {
        return false;
    }
    std::size_t start = 0;
    for (unsigned int i = 0; i < count; ++i) {
        const std::size_t end = text.find(kFieldSeparator, start);
        const std::optional<int> value =
            decimalField(text.substr(start, end == std::string::npos ? std::string::npos : end - start));
        if (!value) {
            return false;
        }
        values[i] = *value;
        start = end + 1;
    }
    return true;
}

std::optional<std::string> stringOf(const CIMProperty& p) {
    if (p.getType() != CIM_STRING) {
        return fsamap::textOf(p);
    }
    const CIMValue<std::string> value = p.getStringValue();
    if (value.isEmpty() || value.getValues()[0].empty()) {
        return std::nullopt;
    }
    return value.getValues()[0];
}

}  // namespace

std::optional<int> decimalField(const std::string& text) {
    if (text.empty() || text.size() > kMaxDigits) {
        return std::nullopt;
    }
    int value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

std::optional<_pdiskIdf> parseDrive(const std::string& text) {
    int v[3];
    if (!fields(text, 3, v)) {
        return std::nullopt;
    }
    return _pdiskIdf{v[0], v[1], v[2]};
}

std::optional<_vdiskIdf> parseLogicalDrive(const std::string& text) {
    int v[2];
    if (!fields(text, 2, v)) {
        return std::nullopt;
    }
    return _vdiskIdf{v[0], v[1]};
}

std::optional<int> parseController(const std::string& text) {
    const std::string prefix = kControllerPrefix;
    if (text.compare(0, prefix.size(), prefix) == 0) {
        return decimalField(text.substr(prefix.size()));
    }
    return decimalField(text);
}

std::optional<std::string> keyText(const CIMObjectPath& path, const char* name) {
    for (const CIMProperty& key : path.getKeyBindings()) {
        if (key.getName() == name) {
            return stringOf(key);
        }
    }
    return std::nullopt;
}

std::optional<std::string> targetText(const CIMObjectPath& path, const CIMMethodParam& in, const char* name) {
    if (std::optional<std::string> key = keyText(path, name)) {
        return key;
    }
    return text(in, name);
}

std::optional<int> targetController(const CIMObjectPath& path, const CIMMethodParam& in) {
    if (std::optional<std::string> name = targetText(path, in, "CSName")) {
        return parseController(*name);
    }
    for (const char* key : {"SystemName", "Name"}) {
        const std::optional<std::string> name = keyText(path, key);
        if (name && name->compare(0, std::string(kControllerPrefix).size(), kControllerPrefix) == 0) {
            return parseController(*name);
        }
    }
    return std::nullopt;
}

const CIMProperty* argument(const CIMMethodParam& in, const char* name) {
    return in.getArgumentByName(name);
}

std::optional<unsigned long long> number(const CIMMethodParam& in, const char* name) {
    const CIMProperty* p = in.getArgumentByName(name);
    return p != nullptr ? fsamap::numberOf(*p) : std::nullopt;
}

std::optional<bool> flag(const CIMMethodParam& in, const char* name) {
    const CIMProperty* p = in.getArgumentByName(name);
    return p != nullptr ? fsamap::flagOf(*p) : std::nullopt;
}

std::optional<std::string> text(const CIMMethodParam& in, const char* name) {
    const CIMProperty* p = in.getArgumentByName(name);
    return p != nullptr ? stringOf(*p) : std::nullopt;
}

std::optional<std::vector<std::string>> texts(const CIMMethodParam& in, const char* name) {
    const CIMProperty* p = in.getArgumentByName(name);
    if (p == nullptr || (p->getType() != CIM_STRING_ARRAY && p->getType() != CIM_STRING)) {
        return std::nullopt;
    }
    std::vector<std::string> values = p->getStringValue().getValues();
    if (values.empty() || values.size() > kMaxElements) {
        return std::nullopt;
    }
    return values;
}

std::vector<CIMObjectPath> references(const CIMProperty& argument) {
    if (argument.getType() != CIM_REFERENCE && argument.getType() != CIM_REFERENCE_ARRAY) {
        return {};
    }
    return argument.getObjectPathValue().getValues();
}

void putNumber(CIMMethodParam& out, const char* name, unsigned int value) {
    out.addArgument(CIMProperty(name, CIMValue<unsigned int>(value), false, CIM_UINT32, false));
}

void putFlag(CIMMethodParam& out, const char* name, bool value) {
    out.addArgument(CIMProperty(name, CIMValue<bool>(value), false, CIM_BOOLEAN, false));
}

void putText(CIMMethodParam& out, const char* name, const std::string& value) {
    out.addArgument(CIMProperty(name, CIMValue<std::string>(value), false, CIM_STRING, false));
}

void putReference(CIMMethodParam& out, const char* name, const CIMObjectPath& value) {
    out.addArgument(CIMProperty(name, CIMValue<CIMObjectPath>(value), false, CIM_REFERENCE, false));
}

}  // namespace vex::cim::fwf::routine

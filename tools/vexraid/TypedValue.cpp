#include "TypedValue.h"

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include <cmpihost/DateTime.h>
#include <cmpihost/ObjectPath.h>

#include "Errors.h"
#include "PathText.h"

namespace vexraid {

namespace {

using cmpihost::Value;

struct TypeName {
    const char* name;
    CMPIType type;
};

const TypeName kTypes[] = {
    {"boolean", CMPI_boolean}, {"char16", CMPI_char16}, {"string", CMPI_string},
    {"datetime", CMPI_dateTime}, {"uint8", CMPI_uint8}, {"uint16", CMPI_uint16},
    {"uint32", CMPI_uint32}, {"uint64", CMPI_uint64}, {"sint8", CMPI_sint8},
    {"sint16", CMPI_sint16}, {"sint32", CMPI_sint32}, {"sint64", CMPI_sint64},
    {"real32", CMPI_real32}, {"real64", CMPI_real64}, {"ref", CMPI_ref}};

[[noreturn]] void badValue(const std::string& text, CMPIType type, const std::string& why) {
    throw UsageError("'" + text + "' is no " + cmpihost::typeName(type) + " value" + (why.empty() ? "" : ": " + why));
}

std::string lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// Decimal, or hexadecimal after "0x".
int baseOf(const std::string& text) {
    const std::size_t digits = text.empty() || (text[0] != '-' && text[0] != '+') ? 0 : 1;
    return text.size() > digits + 2 && text[digits] == '0' && (text[digits + 1] == 'x' || text[digits + 1] == 'X') ? 16 : 10;
}

// Bounds of the unsigned and signed integer types, by size in bits.
int bitsOf(CMPIType type) {
    switch (type) {
        case CMPI_uint8: case CMPI_sint8: return 8;
        case CMPI_uint16: case CMPI_sint16: return 16;
        case CMPI_uint32: case CMPI_sint32: return 32;
        default: return 64;
    }
}

Value unsignedValue(CMPIType type, const std::string& text) {
    errno = 0;
    char* end = nullptr;
    if (text.empty() || text[0] == '-' || text[0] == '+') badValue(text, type, "");
    const unsigned long long v = std::strtoull(text.c_str(), &end, baseOf(text));
    const int bits = bitsOf(type);
    const unsigned long long max = bits == 64 ? std::numeric_limits<unsigned long long>::max() : (1ULL << bits) - 1;
    if (errno != 0 || *end != '\0' || v > max) badValue(text, type, errno == 0 && *end == '\0' ? "out of range" : "");
    switch (type) {
        case CMPI_uint8: return Value::uint8(static_cast<CMPIUint8>(v));
        case CMPI_uint16: return Value::uint16(static_cast<CMPIUint16>(v));
        case CMPI_uint32: return Value::uint32(static_cast<CMPIUint32>(v));
        default: return Value::uint64(v);
    }
}

Value signedValue(CMPIType type, const std::string& text) {
    errno = 0;
    char* end = nullptr;
    if (text.empty()) badValue(text, type, "");
    const long long v = std::strtoll(text.c_str(), &end, baseOf(text));
    const int bits = bitsOf(type);
    const long long max = bits == 64 ? std::numeric_limits<long long>::max() : (1LL << (bits - 1)) - 1;
    if (errno != 0 || *end != '\0' || v > max || v < -max - 1) badValue(text, type, errno == 0 && *end == '\0' ? "out of range" : "");
    switch (type) {
        case CMPI_sint8: return Value::sint8(static_cast<CMPISint8>(v));
        case CMPI_sint16: return Value::sint16(static_cast<CMPISint16>(v));
        case CMPI_sint32: return Value::sint32(static_cast<CMPISint32>(v));
        default: return Value::sint64(v);
    }
}

Value realValue(CMPIType type, const std::string& text) {
    errno = 0;
    char* end = nullptr;
    const double v = std::strtod(text.c_str(), &end);
    if (text.empty() || errno != 0 || *end != '\0' || !std::isfinite(v)) badValue(text, type, "");
    return type == CMPI_real32 ? Value::real32(static_cast<CMPIReal32>(v)) : Value::real64(v);
}

Value booleanValue(const std::string& text) {
    const std::string word = lower(text);
    if (word == "true" || word == "1") return Value::boolean(true);
    if (word == "false" || word == "0") return Value::boolean(false);
    badValue(text, CMPI_boolean, "use true or false");
}

Value scalarValue(CMPIType type, const std::string& text, const std::string& ns) {
    switch (type) {
        case CMPI_boolean: return booleanValue(text);
        case CMPI_string: return Value::string(text);
        case CMPI_char16:
            if (text.size() != 1) badValue(text, type, "one character");
            return Value::char16(static_cast<CMPIChar16>(static_cast<unsigned char>(text[0])));
        case CMPI_dateTime: {
            auto moment = cmpihost::DateTime::fromText(text);
            if (!moment) badValue(text, type, "25 characters, yyyymmddhhmmss.mmmmmmsutc");
            return Value::dateTime(*moment);
        }
        case CMPI_ref: return Value::ref(parseObjectPath(text, ns));
        case CMPI_real32: case CMPI_real64: return realValue(type, text);
        case CMPI_uint8: case CMPI_uint16: case CMPI_uint32: case CMPI_uint64: return unsignedValue(type, text);
        case CMPI_sint8: case CMPI_sint16: case CMPI_sint32: case CMPI_sint64: return signedValue(type, text);
        default: throw UsageError("values of type " + cmpihost::typeName(type) + " cannot be given");
    }
}

// Elements split at commas that are not escaped with a backslash.
std::vector<std::string> arrayElements(const std::string& text) {
    std::vector<std::string> elements;
    if (text.empty()) return elements;
    std::string current;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == ',' || text[i + 1] == '\\')) {
            current += text[++i];
        } else if (text[i] == ',') {
            elements.push_back(current);
            current.clear();
        } else {
            current += text[i];
        }
    }
    elements.push_back(current);
    return elements;
}

bool isName(const std::string& name) {
    if (name.empty() || !(std::isalpha(static_cast<unsigned char>(name[0])) || name[0] == '_')) return false;
    for (char c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_') return false;
    }
    return true;
}

}  // namespace

std::optional<CMPIType> typeFromName(const std::string& name) {
    std::string base = lower(name);
    bool array = false;
    if (base.size() > 2 && base.compare(base.size() - 2, 2, "[]") == 0) {
        base.resize(base.size() - 2);
        array = true;
    }
    for (const TypeName& t : kTypes) {
        if (base == t.name) return static_cast<CMPIType>(array ? (t.type | CMPI_ARRAY) : t.type);
    }
    if (base == "reference") return static_cast<CMPIType>(array ? (CMPI_ref | CMPI_ARRAY) : CMPI_ref);
    return std::nullopt;
}

Assignment parseAssignment(const std::string& text) {
    const std::size_t eq = text.find('=');
    if (eq == std::string::npos) throw UsageError("'" + text + "': expected Name=value or Name=type:value");
    Assignment a;
    a.name = text.substr(0, eq);
    if (!isName(a.name)) throw UsageError("'" + text + "': '" + a.name + "' is no property or parameter name");
    const std::string rest = text.substr(eq + 1);
    const std::size_t colon = rest.find(':');
    if (colon != std::string::npos && colon > 0) {
        if (auto type = typeFromName(rest.substr(0, colon))) {
            a.type = type;
            a.text = rest.substr(colon + 1);
            return a;
        }
    }
    a.text = rest;
    return a;
}

cmpihost::Value valueFromText(CMPIType type, const std::string& text, const std::string& defaultNamespace) {
    if ((type & CMPI_ARRAY) == 0) return scalarValue(type, text, defaultNamespace);
    const auto element = static_cast<CMPIType>(type & ~CMPI_ARRAY);
    Value::Array items;
    for (const std::string& item : arrayElements(text)) {
        items.push_back(scalarValue(element, item, defaultNamespace));
    }
    return Value::array(element, std::move(items));
}

}  // namespace vexraid

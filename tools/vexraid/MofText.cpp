#include "MofText.h"

#include <cstdio>

#include <cmpihost/ObjectPath.h>

#include "PathText.h"

namespace vexraid {

namespace {

using cmpihost::Value;

std::string realText(const Value& value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, value.elementType() == CMPI_real32 ? "%.9g" : "%.17g", value.asReal());
    return buffer;
}

std::string scalarText(const Value& value, int indent) {
    if (value.isNull()) return "NULL";
    switch (value.elementType()) {
        case CMPI_boolean: return value.asBool() ? "TRUE" : "FALSE";
        case CMPI_string: return quotedText(value.asString());
        case CMPI_char16: return "'" + std::string(1, static_cast<char>(value.asUnsigned())) + "'";
        case CMPI_dateTime: return quotedText(value.asDateTime().text());
        case CMPI_ref: return quotedText(pathText(value.asRef()));
        case CMPI_instance: return mofInstance(value.asInstance(), indent, false);
        case CMPI_real32: case CMPI_real64: return realText(value);
        default: break;
    }
    if ((value.elementType() & CMPI_SINT) == CMPI_SINT) return std::to_string(value.asSigned());
    if ((value.elementType() & CMPI_SINT) == CMPI_UINT) return std::to_string(value.asUnsigned());
    return "<" + cmpihost::typeName(value.elementType()) + ">";  // nothing MOF can write
}

}  // namespace

std::string quotedText(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        switch (c) {
            case '"': out += "\\\""; break;
            case '\\': out += "\\\\"; break;
            case '\n': out += "\\n"; break;
            case '\t': out += "\\t"; break;
            case '\r': out += "\\r"; break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    char hex[8];
                    std::snprintf(hex, sizeof hex, "\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
                    out += hex;
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

std::string mofValue(const Value& value, int indent) {
    if (!value.isArray() || value.isNull()) return scalarText(value, indent);
    std::string out = "{";
    const Value::Array& items = value.elements();
    for (std::size_t i = 0; i < items.size(); ++i) {
        out += (i ? ", " : "") + scalarText(items[i], indent);
    }
    return out + "}";
}

std::string mofInstance(const cmpihost::Instance& instance, int indent, bool withPath) {
    const std::string pad(static_cast<std::size_t>(indent), ' ');
    std::string out;
    if (withPath) out += pad + "// " + pathText(instance.path) + "\n" + pad;
    out += "instance of " + instance.className() + " {\n";
    for (const cmpihost::NamedValue& p : instance.properties) {
        out += pad + "    " + p.name + " = " + mofValue(p.value, indent + 4) + ";\n";
    }
    out += pad + "}";
    if (withPath) out += ";";
    return out;
}

}  // namespace vexraid

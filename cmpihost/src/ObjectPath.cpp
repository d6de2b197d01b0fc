#include "cmpihost/ObjectPath.h"

namespace cmpihost {

namespace {

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
        }
        out += c;
    }
    return out + "\"";
}

std::string keyText(const Value& v) {
    if (v.isNull()) {
        return "NULL";
    }
    switch (v.type()) {
    case CMPI_string:
        return quoted(v.asString());
    case CMPI_char16:
        return quoted(std::string(1, static_cast<char>(v.asUnsigned())));
    case CMPI_dateTime:
        return quoted(v.asDateTime().text());
    case CMPI_ref:
        return quoted(v.asRef().toString());
    case CMPI_boolean:
        return v.asBool() ? "TRUE" : "FALSE";
    default:
        break;
    }
    std::string text = v.toString();
    return text.substr(text.find(':') + 1);
}

}  // namespace

ObjectPath& ObjectPath::addKey(const std::string& name, Value value) {
    setNamed(keys, name, std::move(value));
    return *this;
}

std::string ObjectPath::toString() const {
    std::string text;
    if (!host.empty()) {
        text += "//" + host + "/";
    }
    if (!nameSpace.empty()) {
        text += nameSpace + ":";
    }
    text += className;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        text += (i == 0 ? "." : ",") + keys[i].name + "=" + keyText(keys[i].value);
    }
    return text;
}

bool ObjectPath::operator==(const ObjectPath& o) const {
    return host == o.host && nameSpace == o.nameSpace && className == o.className && keys == o.keys;
}

}  // namespace cmpihost

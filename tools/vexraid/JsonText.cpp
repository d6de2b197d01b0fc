#include "JsonText.h"

#include "PathText.h"

namespace vexraid {

namespace {

using cmpihost::Value;
using nlohmann::json;

json scalar(const Value& value) {
    if (value.isNull()) return nullptr;
    switch (value.elementType()) {
        case CMPI_boolean: return value.asBool();
        case CMPI_string: return value.asString();
        case CMPI_char16: return std::string(1, static_cast<char>(value.asUnsigned()));
        case CMPI_dateTime: return value.asDateTime().text();
        case CMPI_ref: return pathText(value.asRef());
        case CMPI_instance: return jsonInstance(value.asInstance());
        case CMPI_real32: case CMPI_real64: return value.asReal();
        default: break;
    }
    if ((value.elementType() & CMPI_SINT) == CMPI_SINT) return value.asSigned();
    if ((value.elementType() & CMPI_SINT) == CMPI_UINT) return value.asUnsigned();
    return "<" + cmpihost::typeName(value.elementType()) + ">";
}

}  // namespace

json jsonValue(const Value& value) {
    if (!value.isArray() || value.isNull()) return scalar(value);
    json items = json::array();
    for (const Value& item : value.elements()) items.push_back(scalar(item));
    return items;
}

json jsonValues(const cmpihost::NamedValues& values) {
    json out = json::object();
    for (const cmpihost::NamedValue& v : values) out[v.name] = jsonValue(v.value);
    return out;
}

json jsonInstance(const cmpihost::Instance& instance) {
    return json{{"path", pathText(instance.path)},
                {"class", instance.className()},
                {"properties", jsonValues(instance.properties)}};
}

std::string jsonText(const json& document, bool pretty) {
    return document.dump(pretty ? 2 : -1, ' ', false, json::error_handler_t::replace);
}

}  // namespace vexraid

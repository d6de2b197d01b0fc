// The text form of an object path.
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf {

namespace {

// The value part of one key: quoted string, nested path, or nothing at all
// (numeric and other keys print as their name and "=" only).
void appendKeyValue(std::string& out, const CIMProperty& key) {
    if (key.getType() == CIM_STRING) {
        const CIMValue<std::string> value = key.getStringValue();
        out += '"';
        if (!value.isEmpty()) {
            out += value.getValues().front();
        }
        out += '"';
    } else if (key.getType() == CIM_REFERENCE) {
        const CIMValue<CIMObjectPath> value = key.getObjectPathValue();
        if (!value.isEmpty()) {
            out += value.getValues().front().toString();
        }
    }
}

}  // namespace

std::string CIMObjectPath::toString() const {
    std::string out;
    out.reserve(64 + m_hostName.size() + m_nameSpace.size() + m_className.size());
    out += "//";
    out += m_hostName;
    out += '/';
    out += m_nameSpace;
    out += ':';
    out += m_className;
    out += '.';
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        if (i > 0) {
            out += ',';
        }
        out += m_keys[i].getName();
        out += '=';
        appendKeyValue(out, m_keys[i]);
    }
    return out;
}

}  // namespace vex::cim::fwf

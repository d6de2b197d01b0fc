#include "Printer.h"

#include "JsonText.h"
#include "MofText.h"
#include "PathText.h"

namespace vexraid {

using Json = nlohmann::json;

void Printer::instances(const std::vector<cmpihost::Instance>& instances) {
    if (m_json) {
        Json all = Json::array();
        for (const cmpihost::Instance& i : instances) all.push_back(jsonInstance(i));
        m_out << jsonText(all, true) << "\n";
        return;
    }
    for (std::size_t i = 0; i < instances.size(); ++i) {
        m_out << (i ? "\n" : "") << mofInstance(instances[i]) << "\n";
    }
}

void Printer::instance(const cmpihost::Instance& instance) {
    if (m_json) {
        m_out << jsonText(jsonInstance(instance), true) << "\n";
    } else {
        m_out << mofInstance(instance) << "\n";
    }
}

void Printer::paths(const std::vector<cmpihost::ObjectPath>& paths) {
    if (m_json) {
        Json all = Json::array();
        for (const cmpihost::ObjectPath& p : paths) all.push_back(pathText(p));
        m_out << jsonText(all, true) << "\n";
        return;
    }
    for (const cmpihost::ObjectPath& p : paths) m_out << pathText(p) << "\n";
}

void Printer::methodResult(const cmpihost::Value& returnValue, const cmpihost::NamedValues& outArgs) {
    if (m_json) {
        m_out << jsonText(Json{{"returnValue", jsonValue(returnValue)}, {"outArgs", jsonValues(outArgs)}}, true) << "\n";
        return;
    }
    m_out << "ReturnValue = " << mofValue(returnValue) << ";\n";
    for (const cmpihost::NamedValue& arg : outArgs) {
        m_out << arg.name << " = " << mofValue(arg.value) << ";\n";
    }
}

void Printer::indication(const std::string& nameSpace, const cmpihost::Instance& indication) {
    if (m_json) {
        Json document = jsonInstance(indication);
        document["namespace"] = nameSpace;
        m_out << jsonText(document, false) << std::endl;
    } else {
        m_out << mofInstance(indication) << std::endl;
    }
}

}  // namespace vexraid

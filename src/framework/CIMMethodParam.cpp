#include "framework/CIMMethodParam.h"

#include <stdexcept>

#include "framework/PropertyText.h"

namespace vex::cim::fwf {

void CIMMethodParam::addArgument(const CIMProperty& argument) {
    m_arguments.push_back(argument);
}

CIMProperty CIMMethodParam::getArgument(unsigned int index) const {
    return m_arguments.at(index);
}

CIMProperty* CIMMethodParam::getArgumentByName(const std::string& name) {
    for (CIMProperty& argument : m_arguments) {
        if (argument.getName() == name) {
            return &argument;
        }
    }
    return nullptr;
}

const CIMProperty* CIMMethodParam::getArgumentByName(const std::string& name) const {
    return const_cast<CIMMethodParam*>(this)->getArgumentByName(name);
}

unsigned int CIMMethodParam::getArgumentCount() const {
    return static_cast<unsigned int>(m_arguments.size());
}

void CIMMethodParam::clearArgument() {
    m_arguments.clear();
}

// "CIMMethodParam[2]: Size(24)=1024; Name(18)="vol1"" - count, then each
// argument as name(type)=value, separated by "; ".
std::string CIMMethodParam::toString() const {
    std::string out = "CIMMethodParam[" + std::to_string(m_arguments.size()) + "]:";
    for (std::size_t i = 0; i < m_arguments.size(); ++i) {
        out += (i == 0) ? " " : "; ";
        out += describeProperty(m_arguments[i]);
    }
    return out;
}

}  // namespace vex::cim::fwf

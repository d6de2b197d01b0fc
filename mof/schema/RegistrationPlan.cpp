#include "RegistrationPlan.h"

#include <sstream>

#include "MofLexer.h"
#include "MofModel.h"

namespace vex::mof {

void RegistrationPlan::parse(const std::string& text, const std::string& source) {
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        std::istringstream words(line.substr(0, line.find('#')));
        std::string keyword, className, extra;
        if (!(words >> keyword)) {
            continue;
        }
        const std::string where = source + ":" + std::to_string(number) + ": ";
        if (!(words >> className) || (words >> extra)) {
            throw MofError(where + "expected 'keyword Class'");
        }
        const std::string key = lowerCase(className);
        ClassPlacement& placement = m_listed[key];
        if (keyword == "lifecycle") {
            placement.lifecycle = true;
            continue;
        }
        if (keyword != "interop" && keyword != "both") {
            throw MofError(where + "unknown keyword '" + keyword + "' (interop, both, lifecycle)");
        }
        if (m_placed[key]) {
            throw MofError(where + className + " is placed twice");
        }
        m_placed[key] = true;
        placement.namespaces = keyword == "interop" ? kInInterop : kInBoth;
    }
}

ClassPlacement RegistrationPlan::placementOf(const std::string& className) const {
    auto found = m_listed.find(lowerCase(className));
    return found == m_listed.end() ? ClassPlacement{} : found->second;
}

}  // namespace vex::mof

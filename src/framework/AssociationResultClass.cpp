#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/CommonFunctions.h"

namespace vex::cim::fwf {

namespace {

// The first class of `classList` whose lowered name contains the lowered filter.
bool findEndClass(const std::string& classList, const std::string& filter, std::string& out) {
    const unsigned int count = CommonFunctions::getStringCount(classList);
    for (unsigned int i = 0; i < count; ++i) {
        const std::string className = CommonFunctions::getStringAt(classList, i);
        if (CommonFunctions::containsIgnoreCase(className, filter)) {
            out = className;
            return true;
        }
    }
    return false;
}

}  // namespace

bool AbstractAssociationProviderPlugin::getResultantClass(const std::string& resultClass,
                                                          std::string& out) {
    return findEndClass(getAntecedent(), resultClass, out) ||
           findEndClass(getDependent(), resultClass, out);
}

}  // namespace vex::cim::fwf

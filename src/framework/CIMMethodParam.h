// CIMMethodParam: the in or out arguments of an extrinsic method, in the
// order added; each argument is named after its method parameter.
#ifndef VEX_FRAMEWORK_CIMMETHODPARAM_H
#define VEX_FRAMEWORK_CIMMETHODPARAM_H

#include <string>
#include <vector>

#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

class CIMMethodParam {
public:
    void addArgument(const CIMProperty& argument);
    // A copy of argument `index`; throws std::out_of_range past the end.
    CIMProperty getArgument(unsigned int index) const;
    // The first argument of exactly this name (case-sensitive), or null. The
    // pointer is valid until the argument list changes.
    CIMProperty* getArgumentByName(const std::string& name);
    const CIMProperty* getArgumentByName(const std::string& name) const;
    unsigned int getArgumentCount() const;
    void clearArgument();

    // One readable line for the log: every argument with type and value.
    std::string toString() const;

private:
    std::vector<CIMProperty> m_arguments;
};

}  // namespace vex::cim::fwf

#endif

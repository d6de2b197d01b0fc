// The registry table: every CIM class the provider can serve, one row each, in
// registration order. A row names the plug-in (the CIM class name in lower
// case) and the class (its proper spelling), its group (its base), the namespaces it is offered in, and the
// factory that makes its plug-in object. A row whose plug-in class is not
// built yet has no factory; PluginsManager leaves it out, so a request for
// that class is refused as an invalid class.
//
// The first kAlwaysRegisteredPlugins rows (the host, profile and application
// software classes) are registered on every start, also when no controller is
// present; the rest only on a start that found controllers.
#ifndef VEX_FRAMEWORK_PLUGINREGISTRY_H
#define VEX_FRAMEWORK_PLUGINREGISTRY_H

#include <cstddef>

#include "framework/AbstractProviderPlugin.h"

namespace vex::cim::fwf {

enum class PluginGroup {
    Association,     // AbstractAssociationProviderPlugin
    CachedInstance,  // AbstractCachedInstanceProviderPlugin
    Method,          // adds AbstractMethodProviderPlugin (most are also cached)
    Instance         // AbstractInstanceProviderPlugin
};

// Where the object manager is told that a class is served.
enum PluginNameSpaces : unsigned int {
    kServedInImplementation = 1u,  // "root/tkz/vex/smi_15"
    kServedInInterop = 2u,         // "root/PG_InterOp", or any namespace but the first
    kServedInBoth = 3u
};

using PluginFactory = AbstractProviderPlugin* (*)();

struct PluginRegistration {
    const char* name;       // lower-case CIM class name: the plug-in name
    const char* className;  // the CIM class name in its proper spelling
    PluginGroup group;
    unsigned int nameSpaces;  // PluginNameSpaces bits
    PluginFactory factory;    // null while the plug-in class does not exist
};

inline constexpr std::size_t kAlwaysRegisteredPlugins = 10;

// The whole table, in registration order. It is composition, defined with the
// providers: the framework knows no concrete class.
const PluginRegistration* pluginRegistrations();
std::size_t pluginRegistrationCount();

}  // namespace vex::cim::fwf

#endif

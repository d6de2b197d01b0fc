// Association requests. A request that names its association class is served
// by that class's plug-in alone - with no results when the source class is at
// neither end; one that names a class of the CIM schema by every served
// association derived from it; one that names none by every association class
// the source takes part in. For References and ReferenceNames the result class
// names the association; for Associators and AssociatorNames it filters the
// far ends, by name or by derivation (resultClassFilter).
#include <string>
#include <vector>

#include "cmpi/AssociationRelation.h"
#include "cmpi/CMPIAdapter.h"
#include "cmpi/CMPIAdapterSupport.h"
#include "cmpi/CMPIHelper.h"
#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/CommonFunctions.h"
#include "framework/PluginRegistry.h"

namespace vex::cim::adap::cmpi {

using support::guarded;
using support::requestPath;
using support::requireFacade;
using support::text;

namespace {

bool isSchemaClass(const std::string& className) {
    return fwf::CommonFunctions::toLower(className.substr(0, 4)) == "cim_";
}

// A registered association class whose plug-in is not part of this build.
bool isUnbuiltAssociation(const std::string& className) {
    const std::string name = fwf::CommonFunctions::toLower(className);
    for (std::size_t i = 0; i < fwf::pluginRegistrationCount(); ++i) {
        const fwf::PluginRegistration& row = fwf::pluginRegistrations()[i];
        if (row.group == fwf::PluginGroup::Association && name == row.name) {
            return row.factory == nullptr;
        }
    }
    return false;
}

std::vector<std::string> namedAssociation(fwf::FrameworkFacade& facade,
                                          const fwf::CIMObjectPath& source,
                                          const std::string& assocClass,
                                          const CMPIBroker* broker) {
    auto* plugin =
        dynamic_cast<fwf::AbstractAssociationProviderPlugin*>(facade.getPlugIn(assocClass));
    if (plugin == nullptr) {
        // A class of the CIM schema ("CIM_ElementConformsToProfile"): every
        // served association derived from it.
        std::vector<std::string> derived;
        CMPIHelper::GetAssociationClasses(source, assocClass.c_str(), broker, derived);
        if (!derived.empty() || isSchemaClass(assocClass)) {
            return derived;
        }
        if (isUnbuiltAssociation(assocClass)) {
            TkzLogMsg(TKZ_LOG_ERROR, "%s :: no plug-in serves association class %s",
                      "associationClasses", assocClass.c_str());
            return {};  // links nothing yet; the other classes of the request still answer
        }
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get plugin for association class");
        throw fwf::CIMException(fwf::CIM_ERR_INVALID_CLASS,
                                "Failed to get plugin for association class");
    }
    if (!isRelatedAssociation(facade, source, assocClass, broker)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Unrelated Association class %s for %s", assocClass.c_str(),
                  source.getClassName().c_str());
        return {};
    }
    return {facade.getClassName(assocClass)};
}

// The association classes that serve this request.
std::vector<std::string> associationClasses(fwf::FrameworkFacade& facade,
                                            const fwf::CIMObjectPath& source,
                                            const char* assocClass, const CMPIBroker* broker) {
    if (assocClass != nullptr && *assocClass != '\0') {
        return namedAssociation(facade, source, assocClass, broker);
    }
    std::vector<std::string> names;
    CMPIHelper::GetAssociationClasses(source, nullptr, broker, names);
    return names;
}

// Runs `serve` for each association class of the request and gathers what it
// finds. When the request spans several association classes, one that fails
// is logged and passed over, so that the others still answer.
template <typename T, typename Serve>
std::vector<T> gather(const std::vector<std::string>& classes, Serve serve) {
    std::vector<T> all;
    for (const std::string& name : classes) {
        std::vector<T> found;
        try {
            serve(name, found);
        } catch (const fwf::CIMException& e) {
            if (classes.size() == 1) {
                throw;
            }
            TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s :: %s", "association", name.c_str(),
                      e.getErrMessage().c_str());
            continue;
        }
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

}  // namespace

void CMPIAdapter::Associators(CMPIAssociationMI*, const CMPIContext* ctx,
                              const CMPIResult* result, const CMPIObjectPath* ref,
                              const char* assocClass, const char* resultClass, const char* role,
                              const char* resultRole, const char** properties,
                              const CMPIBroker* broker, CMPIStatus* status) {
    support::OperationTrace trace("Associators");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath source = requestPath(ref, true);
        TkzLogMsg(TKZ_LOG_INFO, "CMPIAdapter::Associators: From:%s To:%s Tru:%s",
                  source.getClassName().c_str(), text(resultClass).c_str(),
                  text(assocClass).c_str());
        TkzLogMsg(TKZ_LOG_INFO, " Association class = %s, Result class = %s",
                  text(assocClass).c_str(), text(resultClass).c_str());
        fwf::FrameworkFacade& facade = requireFacade();
        std::vector<CIMInstance> all = gather<CIMInstance>(
            associationClasses(facade, source, assocClass, broker),
            [&](std::string name, std::vector<CIMInstance>& found) {
                std::string wanted, r = text(role), rr = text(resultRole);
                if (resultClassFilter(facade, name, source, text(resultClass), broker, wanted)) {
                    facade.associators(source, name, found, wanted, r, rr, properties);
                }
            });
        ReturnInstances(broker, result, properties, all, status);
    });
}

void CMPIAdapter::AssociatorNames(CMPIAssociationMI*, const CMPIContext* ctx,
                                  const CMPIResult* result, const CMPIObjectPath* ref,
                                  const char* assocClass, const char* resultClass,
                                  const char* role, const char* resultRole,
                                  const CMPIBroker* broker, CMPIStatus* status) {
    support::OperationTrace trace("AssociatorNames");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath source = requestPath(ref, true);
        TkzLogMsg(TKZ_LOG_INFO, "CMPIAdapter::AssociatorNames: From:%s To:%s Tru:%s",
                  source.getClassName().c_str(), text(resultClass).c_str(),
                  text(assocClass).c_str());
        fwf::FrameworkFacade& facade = requireFacade();
        std::vector<CIMObjectPath> all = gather<CIMObjectPath>(
            associationClasses(facade, source, assocClass, broker),
            [&](std::string name, std::vector<CIMObjectPath>& found) {
                std::string wanted, r = text(role), rr = text(resultRole);
                if (resultClassFilter(facade, name, source, text(resultClass), broker, wanted)) {
                    facade.associatorsNames(source, name, found, wanted, r, rr);
                }
            });
        ReturnObjectPaths(broker, result, all, status);
    });
}

void CMPIAdapter::References(CMPIAssociationMI*, const CMPIContext* ctx, const CMPIResult* result,
                             const CMPIObjectPath* ref, const char* resultClass, const char* role,
                             const char** properties, const CMPIBroker* broker,
                             CMPIStatus* status) {
    support::OperationTrace trace("References");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath source = requestPath(ref, true);
        TkzLogMsg(TKZ_LOG_INFO, "CMPIAdapter::References: From:%s Tru:%s",
                  source.getClassName().c_str(), text(resultClass).c_str());
        fwf::FrameworkFacade& facade = requireFacade();
        std::vector<CIMInstance> all = gather<CIMInstance>(
            associationClasses(facade, source, resultClass, broker),
            [&](const std::string& name, std::vector<CIMInstance>& found) {
                facade.references(source, name, found, text(role));
            });
        ReturnInstances(broker, result, properties, all, status);
    });
}

void CMPIAdapter::ReferenceNames(CMPIAssociationMI*, const CMPIContext* ctx,
                                 const CMPIResult* result, const CMPIObjectPath* ref,
                                 const char* resultClass, const char* role,
                                 const CMPIBroker* broker, CMPIStatus* status) {
    support::OperationTrace trace("ReferenceNames");
    setContext(ctx);
    guarded(broker, status, [&] {
        CIMObjectPath source = requestPath(ref, true);
        TkzLogMsg(TKZ_LOG_INFO, "CMPIAdapter::ReferenceNames: From:%s Tru:%s",
                  source.getClassName().c_str(), text(resultClass).c_str());
        fwf::FrameworkFacade& facade = requireFacade();
        std::vector<CIMObjectPath> all = gather<CIMObjectPath>(
            associationClasses(facade, source, resultClass, broker),
            [&](const std::string& name, std::vector<CIMObjectPath>& found) {
                facade.referencesNames(source, name, text(role), found);
            });
        ReturnObjectPaths(broker, result, all, status);
    });
}

}  // namespace vex::cim::adap::cmpi

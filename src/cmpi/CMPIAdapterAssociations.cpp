// Association requests. A request that names its association class is served
// by that class's plug-in alone - with no results when the source class is at
// neither end; one that names none goes through every association class the
// source takes part in. For References and ReferenceNames the result class
// names the association.
#include <string>
#include <vector>

#include "cmpi/AssociationRelation.h"
#include "cmpi/CMPIAdapter.h"
#include "cmpi/CMPIAdapterSupport.h"
#include "cmpi/CMPIHelper.h"
#include "framework/AbstractAssociationProviderPlugin.h"

namespace vex::cim::adap::cmpi {

using support::guarded;
using support::requestPath;
using support::requireFacade;
using support::text;

namespace {

std::vector<std::string> namedAssociation(fwf::FrameworkFacade& facade,
                                          const fwf::CIMObjectPath& source,
                                          const std::string& assocClass,
                                          const CMPIBroker* broker) {
    auto* plugin =
        dynamic_cast<fwf::AbstractAssociationProviderPlugin*>(facade.getPlugIn(assocClass));
    if (plugin == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get plugin for association class");
        throw fwf::CIMException(fwf::CIM_ERR_INVALID_CLASS,
                                "Failed to get plugin for association class");
    }
    if (!isRelatedAssociation(facade, source, assocClass, broker)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Unrelated Association class %s for %s", assocClass.c_str(),
                  source.getClassName().c_str());
        return {};
    }
    return {assocClass};
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

template <typename T>
void append(std::vector<T>& all, std::vector<T>& more) {
    all.insert(all.end(), more.begin(), more.end());
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
        std::vector<CIMInstance> all;
        for (std::string name : associationClasses(facade, source, assocClass, broker)) {
            std::string wanted = text(resultClass), r = text(role), rr = text(resultRole);
            std::vector<CIMInstance> found;
            facade.associators(source, name, found, wanted, r, rr, properties);
            append(all, found);
        }
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
        std::vector<CIMObjectPath> all;
        for (std::string name : associationClasses(facade, source, assocClass, broker)) {
            std::string wanted = text(resultClass), r = text(role), rr = text(resultRole);
            std::vector<CIMObjectPath> found;
            facade.associatorsNames(source, name, found, wanted, r, rr);
            append(all, found);
        }
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
        std::vector<CIMInstance> all;
        for (const std::string& name : associationClasses(facade, source, resultClass, broker)) {
            std::vector<CIMInstance> found;
            facade.references(source, name, found, text(role));
            append(all, found);
        }
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
        std::vector<CIMObjectPath> all;
        for (const std::string& name : associationClasses(facade, source, resultClass, broker)) {
            std::vector<CIMObjectPath> found;
            facade.referencesNames(source, name, text(role), found);
            append(all, found);
        }
        ReturnObjectPaths(broker, result, all, status);
    });
}

}  // namespace vex::cim::adap::cmpi

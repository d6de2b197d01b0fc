// AbstractAssociationProviderPlugin: following associations from one object -
// the association instances that refer to it (references) and the objects at
// their other end (associators).
#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/CIMException.h"
#include "framework/CommonFunctions.h"
#include "framework/FrameworkFacade.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using CommonFunctions::containsIgnoreCase;
using CommonFunctions::equalsIgnoreCase;

// How an association instance refers to the source.
struct Ends {
    bool found = false;
    std::string resultRole;      // name of the reference to the other end
    CIMObjectPath result;        // the other end
};

bool pointsTo(const CIMProperty& reference, const CIMObjectPath& source) {
    const CIMValue<CIMObjectPath> value = reference.getObjectPathValue();
    return !value.isEmpty() && value.getValues()[0] == source;
}

std::vector<CIMProperty> referencesOf(const CIMInstance& instance) {
    std::vector<CIMProperty> references;
    for (CIMProperty& property : instance.getPropertyList()) {
        if (property.getType() == CIM_REFERENCE) {
            references.push_back(std::move(property));
        }
    }
    return references;
}

// The first reference that points to the source under the requested role
// (any role when empty) is the source's; the other one is the result end.
Ends endsOf(const CIMInstance& instance, const CIMObjectPath& source, const std::string& role) {
    Ends ends;
    const std::vector<CIMProperty> references = referencesOf(instance);
    if (references.size() != 2) {
        return ends;
    }
    for (std::size_t i = 0; i < 2 && !ends.found; ++i) {
        if (!pointsTo(references[i], source)) {
            continue;
        }
        TkzLogMsg(TKZ_LOG_DEBUG, "----------------%s//////%s", role.c_str(),
                  references[i].getName().c_str());
        if (role.empty() || equalsIgnoreCase(role, references[i].getName())) {
            ends.found = true;
            ends.resultRole = references[1 - i].getName();
            ends.result = references[1 - i].getObjectPathValue().getValues()[0];
        }
    }
    return ends;
}

// Keeps the keys and the listed properties of an associated instance.
void keepListed(CIMInstance& instance, const std::vector<std::string>& names) {
    std::vector<CIMProperty> properties = instance.getPropertyList();
    const std::vector<CIMProperty> keys = instance.getKeyPropertyList();
    instance.removeAllProperties();
    for (CIMProperty& property : properties) {
        bool keep = false;
        for (const CIMProperty& key : keys) {
            keep = keep || key.getName() == property.getName();
        }
        for (const std::string& name : names) {
            keep = keep || equalsIgnoreCase(name, property.getName());
        }
        if (keep) {
            instance.addProperty(std::move(property));
        }
    }
}

// The result end of a link passes the result-role and result-class filters.
bool resultEndPasses(const Ends& ends, const std::string& resultRole, bool filterClass,
                     const std::string& resultClass) {
    return (resultRole.empty() || equalsIgnoreCase(resultRole, ends.resultRole)) &&
           (!filterClass || containsIgnoreCase(ends.result.getClassName(), resultClass));
}

// The full instance at the far end of a link, through the plug-in of its
// class; false when it cannot be had.
bool fetchFarEnd(const CIMObjectPath& path, CIMInstance& out) {
    FrameworkFacade* facade = FrameworkFacade::getInstance();
    std::vector<CIMInstance> found;
    try {
        CIMObjectPath request = path;
        if (facade != nullptr) {
            facade->getCIMInstance(request, found);
        }
    } catch (const CIMException&) {
        found.clear();
    }
    if (found.empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Failed to retrieve instance for object path %s.",
                  "associators", path.toString().c_str());
        return false;
    }
    out = std::move(found[0]);
    return true;
}

}  // namespace

std::vector<CIMInstance> AbstractAssociationProviderPlugin::associationHelper(
    CIMObjectPath& source, const std::string& assocClass, std::string& role,
    const std::string& resultRole, std::string& resultClass) {
    TkzTrace("Entering AbstractAssociationProviderPlugin ::                associationHelper()");
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Object Path recieved : %s", "associationHelper",
              source.toString().c_str());
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: ResultClass recieved : %s", "associationHelper",
              assocClass.c_str());
    CIMObjectPath assocPath(source.getHostName(), source.getNameSpace(), assocClass, {});
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Association Object Path formed : %s", "associationHelper",
              assocPath.toString().c_str());
    std::string resultEnd;
    const bool filterClass = !resultClass.empty();
    std::vector<CIMInstance> all;
    if (!filterClass || getResultantClass(resultClass, resultEnd)) {
        all = candidateLinks(source, assocPath);  // else the filter names neither end
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Association Objects retrieved : %d", "associationHelper",
              static_cast<int>(all.size()));
    if (all.empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "No instances for the association class : %s",
                  assocClass.c_str());
    }
    std::vector<CIMInstance> out;
    for (CIMInstance& instance : all) {
        const Ends ends = endsOf(instance, source, role);
        if (ends.found && resultEndPasses(ends, resultRole, filterClass, resultClass)) {
            out.push_back(std::move(instance));
        }
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Instances Returned : %d", "associationHelper",
              static_cast<int>(out.size()));
    TkzTrace("Exiting AbstractAssociationProviderPlugin :: associationHelper()");
    return out;
}

void AbstractAssociationProviderPlugin::associators(CIMObjectPath& source, std::string& assocClass,
                                                    std::vector<CIMInstance>& out,
                                                    std::string& resultClass, std::string& role,
                                                    std::string& resultRole,
                                                    const char** propertyList) {
    TkzTrace("Entering AbstractAssociationProviderPlugin::associators()");
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Object Path recieved : %s", "associators",
              source.toString().c_str());
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: AssociationClass recieved : %s", "associators",
              assocClass.c_str());
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: ResultClass recieved : %s", "associators", resultClass.c_str());
    const std::vector<std::string> names = CommonFunctions::propertyListToNames(propertyList);
    for (const CIMInstance& link :
         associationHelper(source, assocClass, role, resultRole, resultClass)) {
        CIMInstance far;
        if (fetchFarEnd(endsOf(link, source, role).result, far)) {
            if (propertyList != nullptr) {
                keepListed(far, names);
            }
            out.push_back(std::move(far));
        }
    }
    TkzTrace("Exiting AbstractAssociationProviderPlugin::associators");
}

void AbstractAssociationProviderPlugin::associatorNames(CIMObjectPath& source,
                                                        std::string& assocClass,
                                                        std::vector<CIMObjectPath>& out,
                                                        std::string& resultClass,
                                                        std::string& role,
                                                        std::string& resultRole) {
    TkzTrace("Entering AbstractAssociationProviderPlugin::associatorNames()");
    std::vector<CIMInstance> associated;
    associators(source, assocClass, associated, resultClass, role, resultRole, nullptr);
    for (const CIMInstance& instance : associated) {
        out.push_back(instance.getPath());
    }
    if (associated.empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "No instances of association class %s", assocClass.c_str());
    }
    TkzTrace(" Exiting AbstractAssociationProviderPlugin::                associatorNames()");
}

void AbstractAssociationProviderPlugin::references(CIMObjectPath& source,
                                                   const std::string& resultClass,
                                                   std::vector<CIMInstance>& out,
                                                   const std::string& role) {
    TkzTrace("Entering AbstractAssociationProviderPlugin::references()");
    std::string sourceRole = role;
    std::string anyEnd;
    for (CIMInstance& link : associationHelper(source, resultClass, sourceRole, "", anyEnd)) {
        out.push_back(std::move(link));
    }
    TkzTrace("Exiting AbstractAssociationProviderPlugin::references()");
}

void AbstractAssociationProviderPlugin::referencesNames(CIMObjectPath& source,
                                                        const std::string& resultClass,
                                                        const std::string& role,
                                                        std::vector<CIMObjectPath>& out) {
    TkzTrace("Entering AbstractAssociationProviderPlugin::referencesNames()");
    std::vector<CIMInstance> links;
    references(source, resultClass, links, role);
    for (const CIMInstance& link : links) {
        out.push_back(link.getPath());
    }
    if (links.empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "No object paths refering the objectpath : %s",
                  source.toString().c_str());
    }
    TkzTrace("Exiting AbstractAssociationProviderPlugin::referencesNames()");
}

}  // namespace vex::cim::fwf

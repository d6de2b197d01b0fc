// AbstractAssociationProviderPlugin: the base of association classes. Nothing
// about associations is stored: every request enumerates the two end classes
// through the facade (each served by its own plug-in) and pairs them with the
// concrete plug-in's MatchInstances rule over the full cross product.
//
// An association instance carries, in this order: the reference to the first
// end (named by getAntecedentPropertyName), the reference to the second end
// (getDependentPropertyName), both of type reference and flagged as keys, then
// the extra properties MatchInstances appended.
//
// An end may name several classes as a comma list ("VEX_A,VEX_B", read with
// CommonFunctions::getStringAt); an end class without a registered plug-in
// contributes no instances (a class that is not served yet links nothing).
#ifndef VEX_FRAMEWORK_ABSTRACTASSOCIATIONPROVIDERPLUGIN_H
#define VEX_FRAMEWORK_ABSTRACTASSOCIATIONPROVIDERPLUGIN_H

#include <string>
#include <vector>

#include "framework/AbstractInstanceProviderPlugin.h"

namespace vex::cim::fwf {

class AbstractAssociationProviderPlugin : public virtual AbstractInstanceProviderPlugin {
public:
    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) override;
    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;
    void enumerateInstanceNames(CIMObjectPath& classPath,
                                std::vector<CIMObjectPath>& out) override;
    void associators(CIMObjectPath& source, std::string& assocClass,
                     std::vector<CIMInstance>& out, std::string& resultClass, std::string& role,
                     std::string& resultRole, const char** propertyList) override;
    void associatorNames(CIMObjectPath& source, std::string& assocClass,
                         std::vector<CIMObjectPath>& out, std::string& resultClass,
                         std::string& role, std::string& resultRole) override;
    void references(CIMObjectPath& source, const std::string& resultClass,
                    std::vector<CIMInstance>& out, const std::string& role) override;
    void referencesNames(CIMObjectPath& source, const std::string& resultClass,
                         const std::string& role, std::vector<CIMObjectPath>& out) override;

    // Association instances are built, not read: the hooks have nothing to do.
    void getKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& keys) override;
    void getNonKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& others) override;
    void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) override;

    // What a concrete association supplies.
    // True when the two end instances are linked; may append further
    // properties of the association instance to `extra`. The references are
    // taken from the two instances after the call, so a rule may also point an
    // end to another namespace (setPath) where its class is served.
    virtual bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                                std::vector<CIMProperty>& extra) = 0;
    virtual std::string getAntecedent() = 0;  // CIM class name(s) of the first end
    virtual std::string getDependent() = 0;   // CIM class name(s) of the second end
    virtual std::string getAntecedentPropertyName() = 0;  // "Antecedent", "GroupComponent"...
    virtual std::string getDependentPropertyName() = 0;   // "Dependent", "PartComponent"...

    // The association instances that refer to `source`. `assocClass` is the
    // CIM class of this association as the request names it (for references
    // the request's result class is the association class); it becomes the
    // class of the association instances. A non-empty role must name, in any
    // case, the reference that points to the source; a non-empty result role
    // the other one. A non-empty `resultClass` that names one of the ends (see
    // getResultantClass) keeps only instances whose other reference points to
    // a class containing it; one that names neither end leaves nothing
    // (the adapter turns superclass names such as "CIM_ComputerSystem" into
    // the end class they stand for before it asks).
    virtual std::vector<CIMInstance> associationHelper(CIMObjectPath& source,
                                                       const std::string& assocClass,
                                                       std::string& role,
                                                       const std::string& resultRole,
                                                       std::string& resultClass);

    // Which end class a result-class filter names: the first class, of the
    // first end and then of the second, whose lowered name contains the
    // lowered filter is written to `out`. False (out untouched) when none does.
    virtual bool getResultantClass(const std::string& resultClass, std::string& out);

protected:
    // The association instances, with the host, namespace and class of
    // `assocPath`, among which associationHelper looks for those that refer to
    // `source`: by default every instance of the association. A family that
    // can tell from the source which instances may refer to it returns only
    // those (a superset of the referring ones, in enumeration order).
    virtual std::vector<CIMInstance> candidateLinks(const CIMObjectPath& source,
                                                    CIMObjectPath& assocPath);

    // Every instance of the end classes of `classList`, enumerated through the
    // facade with the host and namespace of `request`. A class without a
    // plug-in contributes nothing.
    static std::vector<CIMInstance> enumerateEnd(const CIMObjectPath& request,
                                                 const std::string& classList);

    // Builds one association instance from the two end paths and the extras,
    // with the host, namespace and class of `assocPath`.
    CIMInstance makeAssociationInstance(const CIMObjectPath& assocPath,
                                        const CIMObjectPath& antecedent,
                                        const CIMObjectPath& dependent,
                                        std::vector<CIMProperty>& extra);
};

}  // namespace vex::cim::fwf

#endif

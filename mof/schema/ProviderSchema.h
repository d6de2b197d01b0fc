// Everything the provider's schema says, in one place: its classes (the MOF
// files), the DMTF superclass chains they rest on (hierarchy.txt) and where
// each class is registered (registration.txt). The registration files of
// both object managers, vexraid's routing and the conformance test are all
// derived from this.
#ifndef VEX_MOF_PROVIDERSCHEMA_H
#define VEX_MOF_PROVIDERSCHEMA_H

#include <optional>
#include <string>
#include <vector>

#include "ClassChains.h"
#include "MofModel.h"
#include "RegistrationPlan.h"

namespace vex::mof {

// What the object manager is told the provider does for a class.
struct ProviderTypes {
    bool instance = false;
    bool association = false;
    bool method = false;
    bool indication = false;  // the class is an indication class
    bool lifecycle = false;   // CIM_Inst* indications are sent about its instances
};

class ProviderSchema {
public:
    // Each throws MofError on a syntax error.
    void addMof(const std::string& text, const std::string& source);
    void addChains(const std::string& text, const std::string& source);
    void addPlan(const std::string& text, const std::string& source);

    // The provider's classes in declaration order.
    const std::vector<ClassDecl>& classes() const { return m_classes; }
    const ClassDecl* find(const std::string& className) const;
    // A provider class or a DMTF class of the chains.
    bool knows(const std::string& className) const;
    std::optional<std::string> superClassOf(const std::string& className) const;
    // True when className is ancestor or derives from it.
    bool isA(const std::string& className, const std::string& ancestor) const;

    // NamespaceBits of a provider class, 0 for any other class.
    unsigned namespacesOf(const std::string& className) const;
    bool servedIn(const std::string& className, const std::string& nameSpace) const;
    bool sendsLifecycleIndications(const std::string& className) const;
    ProviderTypes typesOf(const ClassDecl& cls) const;
    // The provider classes registered in a namespace, in declaration order.
    std::vector<const ClassDecl*> classesIn(const std::string& nameSpace) const;

    const ClassChains& chains() const { return m_chains; }
    const RegistrationPlan& plan() const { return m_plan; }

    // What is wrong with the schema as a whole, one sentence each: unknown
    // superclasses and reference classes, classes missing from a namespace
    // that needs them, duplicate or keyless classes, plan entries naming no
    // class.
    std::vector<std::string> problems() const;

private:
    void classProblems(const ClassDecl& cls, std::vector<std::string>& out) const;
    void namespaceProblems(unsigned bit, std::vector<std::string>& out) const;

    std::vector<ClassDecl> m_classes;
    ClassChains m_chains;
    RegistrationPlan m_plan;
};

// NamespaceBits of a namespace name, 0 for neither of the two.
unsigned namespaceBit(const std::string& nameSpace);

}  // namespace vex::mof

#endif

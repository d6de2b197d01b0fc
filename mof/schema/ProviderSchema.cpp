#include "ProviderSchema.h"

#include <map>
#include <set>

#include "MofParser.h"

namespace vex::mof {

namespace {

constexpr int kMaxDepth = 64;

// The classes a declaration needs before it: its superclass and every
// class it references.
std::vector<std::string> classesNeeded(const ClassDecl& cls) {
    std::vector<std::string> needed;
    if (!cls.superClass.empty()) {
        needed.push_back(cls.superClass);
    }
    for (const Property& p : cls.properties) {
        if (p.type.isRef) needed.push_back(p.type.name);
    }
    for (const Method& m : cls.methods) {
        for (const Parameter& p : m.parameters) {
            if (p.type.isRef) needed.push_back(p.type.name);
        }
    }
    return needed;
}

std::string namespaceName(unsigned bit) {
    return bit == kInInterop ? kInteropNamespace : kImplementationNamespace;
}

}  // namespace

unsigned namespaceBit(const std::string& nameSpace) {
    if (sameName(nameSpace, kImplementationNamespace)) return kInImplementation;
    if (sameName(nameSpace, kInteropNamespace) || sameName(nameSpace, kSfcbInteropNamespace)) {
        return kInInterop;
    }
    return 0;
}

void ProviderSchema::addMof(const std::string& text, const std::string& source) {
    for (ClassDecl& cls : parseMof(text, source)) {
        m_classes.push_back(std::move(cls));
    }
}

void ProviderSchema::addChains(const std::string& text, const std::string& source) {
    m_chains.parse(text, source);
}

void ProviderSchema::addPlan(const std::string& text, const std::string& source) {
    m_plan.parse(text, source);
}

const ClassDecl* ProviderSchema::find(const std::string& className) const {
    for (const ClassDecl& cls : m_classes) {
        if (sameName(cls.name, className)) return &cls;
    }
    return nullptr;
}

bool ProviderSchema::knows(const std::string& className) const {
    return find(className) != nullptr || m_chains.knows(className);
}

std::optional<std::string> ProviderSchema::superClassOf(const std::string& className) const {
    if (const ClassDecl* cls = find(className)) {
        return cls->superClass.empty() ? std::nullopt : std::optional<std::string>(cls->superClass);
    }
    return m_chains.superClassOf(className);
}

bool ProviderSchema::isA(const std::string& className, const std::string& ancestor) const {
    std::optional<std::string> current = className;
    for (int depth = 0; current && depth < kMaxDepth; ++depth) {
        if (sameName(*current, ancestor)) return true;
        current = superClassOf(*current);
    }
    return false;
}

unsigned ProviderSchema::namespacesOf(const std::string& className) const {
    return find(className) == nullptr ? 0u : m_plan.placementOf(className).namespaces;
}

bool ProviderSchema::servedIn(const std::string& className, const std::string& nameSpace) const {
    return (namespacesOf(className) & namespaceBit(nameSpace)) != 0;
}

bool ProviderSchema::sendsLifecycleIndications(const std::string& className) const {
    return find(className) != nullptr && m_plan.placementOf(className).lifecycle;
}

ProviderTypes ProviderSchema::typesOf(const ClassDecl& cls) const {
    ProviderTypes types;
    types.indication = cls.isIndication();
    types.lifecycle = sendsLifecycleIndications(cls.name);
    types.instance = !cls.isIndication();
    types.association = cls.isAssociation();
    types.method = !cls.methods.empty();
    return types;
}

std::vector<const ClassDecl*> ProviderSchema::classesIn(const std::string& nameSpace) const {
    std::vector<const ClassDecl*> out;
    for (const ClassDecl& cls : m_classes) {
        if (servedIn(cls.name, nameSpace)) out.push_back(&cls);
    }
    return out;
}

void ProviderSchema::classProblems(const ClassDecl& cls, std::vector<std::string>& out) const {
    const std::string where = cls.source + ":" + std::to_string(cls.line) + ": " + cls.name;
    for (const std::string& needed : classesNeeded(cls)) {
        if (!knows(needed)) out.push_back(where + " needs the unknown class " + needed);
    }
    std::optional<std::string> current = cls.superClass.empty() ? std::nullopt : std::optional<std::string>(cls.superClass);
    for (int depth = 0; current && depth <= kMaxDepth; ++depth) {
        current = superClassOf(*current);
    }
    if (current) {
        out.push_back(where + " has a superclass chain without end");
    }
    if (!cls.isIndication() && cls.keyNames().empty()) {
        out.push_back(where + " declares no Key property");
    }
    std::size_t refs = 0;
    for (const Property& p : cls.properties) refs += p.type.isRef ? 1 : 0;
    if (cls.isAssociation() && refs < 2) {
        out.push_back(where + " is an association with fewer than two references");
    }
}

// Each class staged into a namespace needs its superclass and reference
// classes there before it (DMTF classes are the object manager's).
void ProviderSchema::namespaceProblems(unsigned bit, std::vector<std::string>& out) const {
    std::set<std::string> declared;
    for (const ClassDecl& cls : m_classes) {
        if ((namespacesOf(cls.name) & bit) == 0) continue;
        for (const std::string& needed : classesNeeded(cls)) {
            if (find(needed) != nullptr && declared.count(lowerCase(needed)) == 0) {
                out.push_back(cls.name + " needs " + needed + " declared before it in " + namespaceName(bit));
            }
        }
        declared.insert(lowerCase(cls.name));
    }
}

std::vector<std::string> ProviderSchema::problems() const {
    std::vector<std::string> out;
    std::map<std::string, int> seen;
    for (const ClassDecl& cls : m_classes) {
        if (++seen[lowerCase(cls.name)] == 2) out.push_back(cls.name + " is declared twice");
        classProblems(cls, out);
    }
    namespaceProblems(kInImplementation, out);
    namespaceProblems(kInInterop, out);
    for (const auto& [name, placement] : m_plan.listed()) {
        if (find(name) == nullptr) out.push_back("registration names the unknown class " + name);
    }
    return out;
}

}  // namespace vex::mof

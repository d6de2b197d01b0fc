#include "MofModel.h"

#include <algorithm>
#include <cctype>

namespace vex::mof {

std::string lowerCase(const std::string& text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return out;
}

bool sameName(const std::string& a, const std::string& b) {
    return a.size() == b.size() && lowerCase(a) == lowerCase(b);
}

const Qualifier* findQualifier(const std::vector<Qualifier>& qualifiers, const std::string& name) {
    for (const Qualifier& q : qualifiers) {
        if (sameName(q.name, name)) {
            return &q;
        }
    }
    return nullptr;
}

namespace {

// A boolean qualifier is set when present without a value or with "true".
bool flagSet(const std::vector<Qualifier>& qualifiers, const std::string& name) {
    const Qualifier* q = findQualifier(qualifiers, name);
    return q != nullptr && (q->values.empty() || sameName(q->values.front(), "true"));
}

template <typename T>
const T* findNamed(const std::vector<T>& items, const std::string& name) {
    for (const T& item : items) {
        if (sameName(item.name, name)) {
            return &item;
        }
    }
    return nullptr;
}

}  // namespace

std::string MofType::toString() const {
    if (isRef) {
        return name + " REF" + (isArray ? "[]" : "");
    }
    return name + (isArray ? "[]" : "");
}

bool Property::isKey() const { return flagSet(qualifiers, "Key"); }

std::string Property::embeddedInstance() const {
    const Qualifier* q = findQualifier(qualifiers, "EmbeddedInstance");
    return q != nullptr && !q->values.empty() ? q->values.front() : std::string();
}

bool Parameter::isIn() const {
    const Qualifier* q = findQualifier(qualifiers, "IN");
    return q == nullptr || q->values.empty() || sameName(q->values.front(), "true");
}

bool Parameter::isOut() const { return flagSet(qualifiers, "OUT"); }

const Parameter* Method::parameter(const std::string& name) const {
    return findNamed(parameters, name);
}

bool ClassDecl::isAssociation() const { return flagSet(qualifiers, "Association"); }

bool ClassDecl::isIndication() const { return flagSet(qualifiers, "Indication"); }

const Property* ClassDecl::property(const std::string& name) const {
    return findNamed(properties, name);
}

const Method* ClassDecl::method(const std::string& name) const { return findNamed(methods, name); }

std::vector<std::string> ClassDecl::keyNames() const {
    std::vector<std::string> keys;
    for (const Property& p : properties) {
        if (p.isKey()) {
            keys.push_back(p.name);
        }
    }
    return keys;
}

}  // namespace vex::mof

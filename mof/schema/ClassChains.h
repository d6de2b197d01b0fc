// The superclass chains of the DMTF classes the provider's classes derive
// from, as listed in hierarchy.txt: one chain per line, from a class up to
// its root, "CIM_StorageVolume : CIM_StorageExtent : ... : CIM_ManagedElement".
// The DMTF schema itself lives in the object manager; this is just enough of
// it to answer "is this class a CIM_System?".
#ifndef VEX_MOF_CLASSCHAINS_H
#define VEX_MOF_CLASSCHAINS_H

#include <map>
#include <optional>
#include <string>

namespace vex::mof {

class ClassChains {
public:
    // Adds the chains of text ('#' starts a comment); throws MofError when a
    // line is malformed or gives a class another superclass than before.
    void parse(const std::string& text, const std::string& source);
    // Records one link (an empty superclass only makes the class known);
    // false when the class already has another superclass.
    bool add(const std::string& className, const std::string& superClass);

    bool knows(const std::string& className) const;
    // Empty for a root class or a class not listed.
    std::optional<std::string> superClassOf(const std::string& className) const;
    const std::map<std::string, std::string>& links() const { return m_super; }

private:
    std::map<std::string, std::string> m_super;  // lower-case class -> superclass as written ("" for roots)
};

}  // namespace vex::mof

#endif

// Where each class is registered, beyond the default, as registration.txt
// says: one "keyword Class" per line.
//   interop    offered only in the interop namespace (root/PG_InterOp in
//              OpenPegasus, root/interop in sfcb)
//   both       offered in the implementation and the interop namespace
//   lifecycle  its changes are sent as CIM_InstCreation, CIM_InstModification
//              and CIM_InstDeletion indications
// Every other class of the schema is offered in the implementation namespace
// (root/tkz/vex/smi_15) only.
#ifndef VEX_MOF_REGISTRATIONPLAN_H
#define VEX_MOF_REGISTRATIONPLAN_H

#include <map>
#include <string>

namespace vex::mof {

inline constexpr const char* kImplementationNamespace = "root/tkz/vex/smi_15";
// The interop namespace: OpenPegasus' name (and the provider's default);
// sfcb's interop namespace is root/interop, which its registration names.
inline constexpr const char* kInteropNamespace = "root/PG_InterOp";
inline constexpr const char* kSfcbInteropNamespace = "root/interop";

enum NamespaceBits : unsigned { kInImplementation = 1u, kInInterop = 2u, kInBoth = 3u };

struct ClassPlacement {
    unsigned namespaces = kInImplementation;
    bool lifecycle = false;
};

class RegistrationPlan {
public:
    // Throws MofError on an unknown keyword, a malformed line or a class
    // given two placements.
    void parse(const std::string& text, const std::string& source);

    // The placement of a class (the default for a class not listed).
    ClassPlacement placementOf(const std::string& className) const;
    // Every class the file names, lower case, with its placement.
    const std::map<std::string, ClassPlacement>& listed() const { return m_listed; }

private:
    std::map<std::string, ClassPlacement> m_listed;
    std::map<std::string, bool> m_placed;  // lower-case class -> namespace keyword seen
};

}  // namespace vex::mof

#endif

// Writes what an operation returned, as MOF-like text or (--json) as JSON.
#ifndef VEXRAID_PRINTER_H
#define VEXRAID_PRINTER_H

#include <cmpihost/Instance.h>
#include <cmpihost/ObjectPath.h>
#include <cmpihost/Value.h>

#include <ostream>
#include <vector>

namespace vexraid {

class Printer {
public:
    Printer(bool json, std::ostream& out) : m_json(json), m_out(out) {}

    bool json() const { return m_json; }
    std::ostream& out() { return m_out; }

    // JSON: an array of instance objects; text: one block after the other.
    void instances(const std::vector<cmpihost::Instance>& instances);
    // JSON: one instance object.
    void instance(const cmpihost::Instance& instance);
    // JSON: an array of path texts; text: one path a line.
    void paths(const std::vector<cmpihost::ObjectPath>& paths);
    // JSON: {"returnValue": ..., "outArgs": {...}}.
    void methodResult(const cmpihost::Value& returnValue, const cmpihost::NamedValues& outArgs);
    // One indication as it arrives: JSON, one compact object a line.
    void indication(const std::string& nameSpace, const cmpihost::Instance& indication);

private:
    bool m_json;
    std::ostream& m_out;
};

}  // namespace vexraid

#endif

// Object paths and typed values as written on vexraid's command line: any
// text is either read or refused with a UsageError, and a path that is read
// prints as text that reads back to the same path.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Errors.h"
#include "PathText.h"
#include "TypedValue.h"

namespace {

const std::string kNs = "root/tkz/vex/smi_15";

void roundTrip(const cmpihost::ObjectPath& path) {
    const std::string text = vexraid::pathText(path);
    cmpihost::ObjectPath again;
    try {
        again = vexraid::parseObjectPath(text, kNs);
    } catch (const vexraid::UsageError&) {
        std::abort();  // what pathText writes must read back
    }
    if (!(again == path) && vexraid::pathText(again) != text) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    try {
        roundTrip(vexraid::parseObjectPath(text, kNs));
    } catch (const vexraid::UsageError&) {
    }
    try {
        vexraid::parseClassPath(text, kNs);
    } catch (const vexraid::UsageError&) {
    }
    try {
        const vexraid::Assignment a = vexraid::parseAssignment(text);
        if (a.type) vexraid::valueFromText(*a.type, a.text, kNs);
    } catch (const vexraid::UsageError&) {
    }
    return 0;
}

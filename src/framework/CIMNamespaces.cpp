#include "framework/CIMNamespaces.h"

#include <atomic>
#include <strings.h>

namespace vex::cim::fwf {

namespace {

// Set once at initialisation, read by every request thread.
std::atomic<const char*> g_interop{kInteropNameSpace};

bool sameText(const std::string& a, const char* b) { return strcasecmp(a.c_str(), b) == 0; }

}  // namespace

bool isInteropNameSpace(const std::string& nameSpace) {
    return sameText(nameSpace, kInteropNameSpace) || sameText(nameSpace, kSfcbInteropNameSpace);
}

const char* interopNameSpace() { return g_interop.load(); }

void selectInteropNameSpace(const char* brokerName) {
    const bool sfcb = brokerName != nullptr && (strcasecmp(brokerName, "RequestHandler") == 0 ||
                                                strncasecmp(brokerName, "sfcb", 4) == 0);
    g_interop.store(sfcb ? kSfcbInteropNameSpace : kInteropNameSpace);
}

std::string interopNameSpaceFor(const std::string& requestNameSpace) {
    return isInteropNameSpace(requestNameSpace) ? requestNameSpace : interopNameSpace();
}

}  // namespace vex::cim::fwf

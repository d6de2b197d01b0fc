// Shared helpers of the host tests: the test provider's path and a host
// with it loaded.
#ifndef CMPIHOST_TESTS_TESTSUPPORT_H
#define CMPIHOST_TESTS_TESTSUPPORT_H

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <cmpihost/Host.h>

namespace cmpihost::test {

inline const char* providerPath() { return CMPIHOST_TEST_PROVIDER; }
inline const char* providerName() { return "HostTest"; }
inline const char* testNs() { return "root/ht"; }

// A host with the test provider loaded (each host its own copy of the
// provider's static state).
inline std::unique_ptr<Host> loadedHost(HostConfig config = {}) {
    auto host = std::make_unique<Host>(config);
    LoadOptions options;
    options.freshLife = true;
    Status st = host->load(providerPath(), providerName(), options);
    EXPECT_TRUE(st.ok()) << st.toString();
    return host;
}

inline ObjectPath classPath(const std::string& cls) { return ObjectPath(testNs(), cls); }

// invokeMethod on HT_Methods in the test namespace.
inline Response call(Host& host, const std::string& method, const NamedValues& in = {},
                     const CallOptions& o = {}) {
    return host.invokeMethod(classPath("HT_Methods"), method, in, o);
}

}  // namespace cmpihost::test

#endif

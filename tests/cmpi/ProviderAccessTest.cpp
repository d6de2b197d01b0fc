// The role check of extrinsic methods and modifications. The suite's copy of
// the provider reads the test file named by VEX_CMPI_PASSWD_FILE: "root" and
// "operator" have primary group 0, "alice" has not, and "toor" has user id 0
// but group 100. The provider as installed reads "/etc/passwd" whatever the
// environment says.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include <unistd.h>

#include "ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::Principal;
using cmpihost::Response;

const cmpihost::ObjectPath kHost(kImplNs, "VEX_HostComputerSystem");

class ProviderAccessTest : public ProviderTest {
protected:
    void SetUp() override {
        ProviderTest::SetUp();
        char name[] = "/tmp/vex_cmpi_passwd_XXXXXX";
        int fd = mkstemp(name);
        ASSERT_GE(fd, 0);
        close(fd);
        m_file = name;
        std::ofstream(m_file) << "root:x:0:0:root:/root:/bin/bash\n"
                                 "alice:x:1001:1001::/home/alice:/bin/sh\n"
                                 "operator:x:11:0:operator:/root:/sbin/nologin\n"
                                 "toor:x:0:100::/root:/bin/sh\n"
                                 "broken line without fields\n";
        setenv("VEX_CMPI_PASSWD_FILE", m_file.c_str(), 1);
    }
    void TearDown() override {
        ProviderTest::TearDown();
        unsetenv("VEX_CMPI_PASSWD_FILE");
        std::remove(m_file.c_str());
    }

    Response invokeAs(const Principal& principal) {
        return cimom().invokeMethod(kHost, "RequestStateChange", {},
                                    cmpihost::CallOptions().as(principal));
    }
    Response modifyAs(const Principal& principal) {
        return cimom().modifyInstance(kHost, cmpihost::Instance(kHost), std::vector<std::string>{},
                                      cmpihost::CallOptions().as(principal));
    }
    // The request got past the role check (and failed further on, since the
    // host system has no method and cannot be modified).
    static bool passed(const Response& r) {
        return r.status.rc != CMPI_RC_ERR_ACCESS_DENIED &&
               r.status.message != std::string("Failed to get CharsPtr from string username");
    }

    std::string m_file;
};

TEST_F(ProviderAccessTest, OnlyMembersOfTheRootGroupRunMethods) {
    start();
    for (const char* user : {"root", "operator"}) {
        Response r = invokeAs(Principal::user(user));
        EXPECT_TRUE(passed(r)) << user << ": " << r.status.toString();
        EXPECT_TRUE(traced("Entering CMPIAdapter::InvokeMethod"));
    }
    // A principal of several words is checked by its first word.
    EXPECT_TRUE(passed(invokeAs(Principal::user("root as admin"))));
    EXPECT_TRUE(loggedAt(5, "UserName = root, HostName = \\\\" + hostName()));
    for (const char* user : {"alice", "toor", "nobody", "alice root"}) {
        clearLog();
        Response r = invokeAs(Principal::user(user));
        std::string login = std::string(user).substr(0, std::string(user).find(' '));
        EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_ACCESS_DENIED,
                              login + " : is not a member of Administrator/root"));
        EXPECT_TRUE(r.data.empty()) << "no method ran for " << user;
        EXPECT_FALSE(logged("Entering FrameworkFacade invokeMethod()"));
    }
}

TEST_F(ProviderAccessTest, InstalledProviderReadsOnlyTheSystemPasswordFile) {
    std::ofstream(m_file) << "intruder:x:4242:0::/nonexistent:/bin/sh\n";
    startShipped();
    EXPECT_TRUE(hasStatus(invokeAs(Principal::user("intruder")), CMPI_RC_ERR_ACCESS_DENIED,
                          "intruder : is not a member of Administrator/root"));
    EXPECT_TRUE(passed(invokeAs(Principal::user("root"))));
}

TEST_F(ProviderAccessTest, ModificationsAreCheckedLikeMethods) {
    start();
    EXPECT_TRUE(hasStatus(modifyAs(Principal::user("alice")), CMPI_RC_ERR_ACCESS_DENIED,
                          "alice : is not a member of Administrator/root"));
    Response root = modifyAs(Principal::user("root"));
    EXPECT_TRUE(passed(root)) << root.status.toString();
    EXPECT_EQ(root.status.rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(ProviderAccessTest, ObjectManagerWithoutAuthenticationPasses) {
    // sfcb without authentication: a principal string with NULL characters.
    start(cmpihost::HostConfig::sfcb14());
    Response r = invokeAs(Principal::nullChars());
    EXPECT_TRUE(passed(r)) << r.status.toString();
    EXPECT_TRUE(loggedAt(5, std::string("UserName = , HostName = \\\\") + hostName()));
    EXPECT_TRUE(passed(modifyAs(Principal::nullChars())));
    EXPECT_TRUE(passed(invokeAs(Principal::user(""))));
}

TEST_F(ProviderAccessTest, NoPrincipalOrNoPasswordFileLetsNobodyIn) {
    setenv("VEX_CMPI_PASSWD_FILE", "/nonexistent/passwd", 1);
    start();
    EXPECT_TRUE(hasStatus(invokeAs(Principal::absent()), CMPI_RC_ERR_FAILED,
                          "Failed to get context entry type CMPIPrinciple"));
    EXPECT_TRUE(hasStatus(modifyAs(Principal::absent()), CMPI_RC_ERR_FAILED,
                          "Failed to get context entry type CMPIPrinciple"));
    EXPECT_TRUE(hasStatus(invokeAs(Principal::user("root")), CMPI_RC_ERR_ACCESS_DENIED,
                          "root : is not a member of Administrator/root"));
}

}  // namespace
}  // namespace vex::cmpitest

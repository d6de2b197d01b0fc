// File transfer: files live only in the transfer directory; names that
// would leave it, and sizes that do not match, are refused and write nothing.
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "RoutineTestSupport.h"

namespace vex::cim::fwf::test {

namespace {

class FileRoutinesTest : public RoutineTest {
protected:
    void TearDown() override {
        std::filesystem::remove(directory() + "/" + kName);
        RoutineTest::TearDown();
    }
    static std::string directory() { return "/tmp/TKZ" + std::to_string(::getuid()); }
    static CIMMethodParam piece(const std::string& name, const std::string& data, unsigned int size) {
        CIMMethodParam in = args();
        withText(in, "fileName", name);
        withText(in, "dataStream", data);
        withNumber(in, "dataSize", size);
        return in;
    }
    // Each test process has a file of its own: ctest runs tests side by side.
    inline static const std::string kName = "routines-test-" + std::to_string(::getpid()) + ".bin";
};

}  // namespace

TEST_F(FileRoutinesTest, AFileIsWrittenInPiecesReadBackAndDeleted) {
    ASSERT_EQ(call("createFile", piece(kName, "STORVEX-FW ", 11)), 0u);
    ASSERT_EQ(call("appendFile", piece(kName, "controller 9.9", 14)), 0u);
    CIMMethodParam read = args();
    withText(read, "fileName", kName);
    ASSERT_EQ(call("readFile", read), 0u);
    EXPECT_EQ(out.getArgumentByName("dataStream")->getStringValue().getValues().at(0), "STORVEX-FW controller 9.9");
    EXPECT_EQ(out.getArgumentByName("dataSize")->getUint32Value().getValues().at(0), 25u);
    EXPECT_EQ(std::filesystem::status(directory()).permissions() & std::filesystem::perms::all,
              std::filesystem::perms::owner_all);
    // createFile starts the file again.
    ASSERT_EQ(call("createFile", piece(kName, "x", 1)), 0u);
    EXPECT_EQ(std::filesystem::file_size(directory() + "/" + kName), 1u);
    ASSERT_EQ(call("deleteFile", read), 0u);
    EXPECT_FALSE(std::filesystem::exists(directory() + "/" + kName));
}

TEST_F(FileRoutinesTest, NamesOutsideTheDirectoryAndWrongSizesWriteNothing) {
    const std::string victim = dir + "/victim";
    for (const std::string& name : {std::string("../victim"), victim, std::string("a/b"), std::string(".."),
                                    std::string("."), std::string("bad\nname"), std::string("nul\0x", 5)}) {
        EXPECT_EQ(call("createFile", piece(name, "data", 4)), unsigned{FSAIF_INVALID_PARAM}) << name;
        EXPECT_EQ(call("appendFile", piece(name, "data", 4)), unsigned{FSAIF_INVALID_PARAM}) << name;
    }
    EXPECT_FALSE(std::filesystem::exists(victim));
    EXPECT_FALSE(std::filesystem::exists("/tmp/victim"));
    EXPECT_EQ(call("createFile", piece("", "data", 4)), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("FileName is empty, it is a mandatory field"));
    EXPECT_EQ(call("createFile", piece(kName, "data", 5)), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("Data size mismatch"));
    EXPECT_FALSE(std::filesystem::exists(directory() + "/" + kName));
}

TEST_F(FileRoutinesTest, ASymbolicLinkInTheDirectoryIsNotFollowed) {
    call("createFile", piece(kName, "x", 1));
    std::filesystem::remove(directory() + "/" + kName);
    const std::string target = dir + "/target";
    std::ofstream(target) << "keep";
    std::filesystem::create_symlink(target, directory() + "/" + kName);
    EXPECT_NE(call("appendFile", piece(kName, "data", 4)), 0u);
    std::ifstream in(target);
    std::string content;
    in >> content;
    EXPECT_EQ(content, "keep");
}

TEST_F(FileRoutinesTest, FirmwarePathsMustBeAbsoluteRegularFiles) {
    CIMMethodParam in = args();
    EXPECT_EQ(call("InstallOrUpgradeFirmware", in), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("AbsolutePath is empty, it is a mandatory field"));
    const std::string image = dir + "/fw.img";
    std::ofstream(image) << "STORVEX-FW controller 9.9.9\n";
    for (const std::string& path : {std::string("fw.img"), dir + "/../" + dir.substr(5) + "/fw.img", dir}) {
        CIMMethodParam bad = args();
        withText(bad, "fwImagesAbsPath", path);
        EXPECT_EQ(call("InstallOrUpgradeFirmware", bad), unsigned{FSAIF_INVALID_PARAM}) << path;
    }
    withText(in, "fwImagesAbsPath", image);
    EXPECT_EQ(call("InstallOrUpgradeFirmware", in), 0u);
}

TEST_F(FileRoutinesTest, VerifyUserRefusesEmptyCredentialsAndUnknownUsers) {
    CIMMethodParam none = args();
    EXPECT_EQ(call("VerifyUser", none), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid user name"));
    withText(none, "Username", "root");
    withText(none, "Password", "");
    EXPECT_EQ(call("VerifyUser", none), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid password"));
    CIMMethodParam wrong = args();
    withText(wrong, "Username", "no-such-user-here");
    withText(wrong, "Password", "secret-words");
    EXPECT_EQ(call("VerifyUser", wrong), unsigned{FSAIF_NOT_ALLOWED});
    EXPECT_FALSE(logged("secret-words"));
}

}  // namespace vex::cim::fwf::test

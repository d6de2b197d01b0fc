// System descriptions: the shipped ones load, broken ones are refused whole.
#include "SimFixture.h"

#include <storlib/Enclosure.h>
#include <storlib/SystemGenerator.h>

#include <filesystem>

namespace storlibtest {
namespace {

struct BadCase {
    const char* what;
    const char* json;
    const char* field;  // expected in the message, after the file name
};

const BadCase kBad[] = {
    {"not JSON", R"({"controllers": [)", "not valid JSON"},
    {"no controllers", R"({})", "controllers: missing"},
    {"unknown field", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 1, "colour": "red"}]}]})",
     "controllers[0].drives[0].colour: unknown field"},
    {"wrong type", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": "big"}]}]})",
     "controllers[0].drives[0].sizeMB: expected an integer"},
    {"unknown level", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 9}, {"device": 1, "sizeMB": 9}],
       "logicalDrives": [{"raidLevel": "RAID7", "members": ["0:0", "0:1"]}]}]})",
     "controllers[0].logicalDrives[0].raidLevel: unknown value"},
    {"RAID 5 on two drives", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 9}, {"device": 1, "sizeMB": 9}],
       "logicalDrives": [{"raidLevel": "RAID5", "members": ["0:0", "0:1"]}]}]})",
     "controllers[0].logicalDrives[0].members: RAID5 with 2 members"},
    {"drive listed twice", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 9}, {"device": 0, "sizeMB": 9}]}]})",
     "controllers[0].drives[1]: drive 0:0 is listed twice"},
    {"member that does not exist", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 9}],
       "logicalDrives": [{"raidLevel": "RAID1", "members": ["0:0", "0:9"]}]}]})",
     "controllers[0].logicalDrives[0].members[1]: no drive 0:9"},
    {"bad member syntax", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 9}],
       "logicalDrives": [{"raidLevel": "RAID1", "members": ["0:0", "zero"]}]}]})",
     "controllers[0].logicalDrives[0].members[1]: expected \"channel:device\""},
    {"spare that is a member", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 9}, {"device": 1, "sizeMB": 9}],
       "logicalDrives": [{"raidLevel": "RAID1", "members": ["0:0", "0:1"]}], "globalSpares": ["0:1"]}]})",
     "controllers[0].globalSpares[0]: drive 0:1 is a member"},
    {"slot outside the enclosure", R"({"controllers": [{"enclosures": [{"device": 9, "numSlots": 4}],
       "drives": [{"device": 0, "sizeMB": 9, "enclosureIndex": 0, "slot": 4}]}]})",
     "controllers[0].drives[0].slot: enclosure 0 has slots 0..3"},
    {"task on a missing logical drive", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 9}],
       "tasks": [{"taskType": "verify", "logicalDriveID": 3}]}]})",
     "controllers[0].tasks[0].logicalDriveID: no such logical drive"},
};

using Description = SimFixture;

TEST_F(Description, BrokenDescriptionsAreRefusedWholeNamingFileAndField) {
    for (const BadCase& c : kBad) {
        SCOPED_TRACE(c.what);
        std::string file = writeFile("bad.json", c.json);
        storlib::Ret r = lib_.open(options(file));
        EXPECT_EQ(r.getStatus(), storlib::RetStatus::BadDescription);
        EXPECT_EQ(r.getReason().rfind(file + ": ", 0), 0u) << r.getReason();
        EXPECT_NE(r.getReason().find(c.field), std::string::npos) << r.getReason();
        EXPECT_FALSE(lib_.isOpen());
        for (const auto& e : std::filesystem::directory_iterator(dir_ + "/state"))
            EXPECT_EQ(e.path().string().find(".state.json"), std::string::npos) << "half-loaded state written";
    }
}

TEST_F(Description, TheShippedSystemsLoad) {
    struct Shipped { const char* file; size_t controllers; size_t drives; size_t lds; };
    for (const Shipped& s : {Shipped{"demo.json", 2, 17, 5}, Shipped{"minimal.json", 1, 2, 1}, Shipped{"none.json", 0, 0, 0}}) {
        SCOPED_TRACE(s.file);
        lib_.close();
        ASSERT_TRUE(lib_.open(options(std::string(STORLIB_SYSTEMS_DIR) + "/" + s.file)));
        unsigned long n = 99;
        ASSERT_TRUE(lib_.getControllerCount(n));
        EXPECT_EQ(n, s.controllers);
        EXPECT_EQ(storlib::FilterCollection(*config(), "HardDrive").size(), s.drives);
        EXPECT_EQ(storlib::FilterCollection(*config(), "LogicalDrive").size(), s.lds);
    }
}

TEST_F(Description, TheBuiltInSystemIsTheDemo) {
    ASSERT_TRUE(lib_.open(options("")));
    auto builtIn = config();
    SimFixture::held_.reset();
    storlib::StorLib demo;
    ASSERT_TRUE(demo.open(options(std::string(STORLIB_SYSTEMS_DIR) + "/demo.json")));
    auto shipped = demo.getSystemConfig();
    ASSERT_EQ(builtIn->getAdapterCount(), shipped->getAdapterCount());
    EXPECT_EQ(builtIn->getAdapter(0)->getSerialNumber(), shipped->getAdapter(0)->getSerialNumber());
    EXPECT_EQ(storlib::FilterCollection(*builtIn, "RaidObject").size(),
              storlib::FilterCollection(*shipped, "RaidObject").size());
}

TEST_F(Description, GeneratedSystemsHaveTheRequestedSize) {
    storlib::GeneratorParams p;
    p.controllers = 2;
    p.drivesPerController = 40;
    p.volumesPerController = 24;
    p.sparesPerController = 2;
    ASSERT_TRUE(lib_.open(options(writeFile("gen.json", storlib::generateSystemDescription(p)))));
    EXPECT_EQ(config()->getAdapterCount(), 2u);
    for (size_t a = 0; a < 2; ++a) {
        const storlib::Adapter& ad = *config()->getAdapter(a);
        EXPECT_EQ(storlib::FilterCollection(ad, "HardDrive").size(), 40u);
        EXPECT_EQ(storlib::FilterCollection(ad, "LogicalDrive").size(), 24u);
        EXPECT_EQ(storlib::FilterCollection(ad, "SES2EnclosureDevice").size(), 2u);
        for (const storlib::RaidObject* o : storlib::FilterCollection(ad, "LogicalDrive"))
            EXPECT_EQ(o->as<storlib::LogicalDrive>()->getState(), storlib::LogicalDriveState::Optimal);
    }
}

}  // namespace
}  // namespace storlibtest

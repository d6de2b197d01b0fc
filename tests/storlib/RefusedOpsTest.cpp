// Requests the controller refuses: a reason, a status, and no change.
#include "SimFixture.h"

#include <functional>

namespace storlibtest {
namespace {

using storlib::Ret;
using storlib::RetStatus;

struct Refusal {
    const char* what;
    std::function<Ret(storlib::StorLib&, storlib::Simulator&)> request;
    RetStatus status;
    const char* reason;
};

storlib::LogicalDriveSpec spec(storlib::RaidLevel level, std::initializer_list<uint32_t> devices, uint32_t stripe = 256) {
    storlib::LogicalDriveSpec s;
    s.raidLevel = level;
    s.stripeSizeKB = stripe;
    for (uint32_t d : devices) s.chunks.emplace_back(drv(d));
    return s;
}

const char* const kSystem = R"({"controllers": [{"drives": [
  {"device": 0, "sizeMB": 100000}, {"device": 1, "sizeMB": 100000}, {"device": 2, "sizeMB": 100000},
  {"device": 3, "sizeMB": 100000}, {"device": 4, "sizeMB": 100000}, {"device": 5, "sizeMB": 1000}],
  "logicalDrives": [{"id": 0, "name": "Mirror", "raidLevel": "RAID1", "members": ["0:0", "0:1"]},
                    {"id": 1, "name": "Stripe", "raidLevel": "RAID0", "members": ["0:2", "0:3"]}],
  "features": [{"id": 72, "value": 0}, {"id": 29, "value": -1}]}]})";

std::vector<Refusal> refusals() {
    using L = storlib::StorLib;
    using S = storlib::Simulator;
    using R = storlib::RaidLevel;
    return {
        {"RAID 5 on two drives", [](L& l, S&) { return l.createLogicalDrive(spec(R::Raid5, {4, 5})); },
         RetStatus::InvalidArgument, "RAID5 with 2 members: too few members"},
        {"a drive already a member", [](L& l, S&) { return l.createLogicalDrive(spec(R::Raid1, {0, 4})); },
         RetStatus::NoSpace, "drive 0:0 is already a member of logical drive 0 (Mirror)"},
        {"a drive given twice", [](L& l, S&) { return l.createLogicalDrive(spec(R::Raid1, {4, 4})); },
         RetStatus::InvalidArgument, "given twice"},
        {"a stripe size that is no power of two", [](L& l, S&) { return l.createLogicalDrive(spec(R::Raid1, {4, 5}, 100)); },
         RetStatus::InvalidArgument, "stripe size 100 KB"},
        {"a level the controller does not build",
         [](L& l, S&) { return l.createLogicalDrive(spec(static_cast<R>(99), {4, 5})); }, RetStatus::NotSupported, "not supported"},
        {"a missing logical drive", [](L& l, S&) { return l.deleteLogicalDrive(ldAddr(9)); }, RetStatus::NotFound,
         "no logical drive 9"},
        {"a missing controller", [](L& l, S&) { return l.rescan(3); }, RetStatus::NotFound, "no controller 3"},
        {"a missing drive", [](L& l, S&) { return l.createJBOD(drv(42)); }, RetStatus::NotFound, "no drive 0:42"},
        {"a spare for RAID 0", [](L& l, S&) { return l.assignDedicatedSpare(drv(4), ldAddr(1)); },
         RetStatus::NotSupported, "has no redundancy"},
        {"a spare that is too small", [](L& l, S&) { return l.assignDedicatedSpare(drv(5), ldAddr(0)); },
         RetStatus::NoSpace, "too small"},
        {"a member as global spare", [](L& l, S&) { return l.assignGlobalSpare(drv(2)); }, RetStatus::InvalidState,
         "drive 0:2 is online"},
        {"a member as JBOD", [](L& l, S&) { return l.createJBOD(drv(0)); }, RetStatus::InvalidState, "drive 0:0 is online"},
        {"HBA mode with logical drives", [](L& l, S&) { return l.setFunctionalMode(0, storlib::FunctionalMode::HBA); },
         RetStatus::InvalidState, "delete every logical drive"},
        {"repairing RAID 0", [](L& l, S&) { return l.verifyLogicalDrive(ldAddr(1), true); }, RetStatus::NotSupported,
         "no redundancy"},
        {"a migration that is not enabled",
         [](L& l, S&) { return l.modifyLogicalDrive(ldAddr(0), spec(R::Raid5, {0, 1, 4})); }, RetStatus::NotSupported,
         "migrating RAID1 to RAID5 is not supported by this controller"},
        {"a migration that is not enabled (-1)",
         [](L& l, S&) { return l.modifyLogicalDrive(ldAddr(1), spec(R::Raid0, {2, 3, 4})); }, RetStatus::NotSupported,
         "expanding RAID0 is not enabled on this controller"},
        {"a task that does not exist", [](L& l, S&) { return l.abortTask(storlib::Addr(0, 0x7fffffff, 0x7fffffff, 0x7fffffff, 77)); },
         RetStatus::NotFound, "no task 77"},
        {"a firmware file that is not an image",
         [](L& l, S&) { return l.upgradeControllerFirmware(0, "/proc/self/status"); }, RetStatus::InvalidArgument,
         "not a firmware image"},
        {"a relative firmware path", [](L& l, S&) { return l.upgradeControllerFirmware(0, "fw.bin"); },
         RetStatus::InvalidArgument, "absolute"},
        {"failing a drive twice", [](L&, S& s) { return s.failDrive(drv(5)) ? s.failDrive(drv(5)) : Ret(); },
         RetStatus::InvalidState, "already failed"},
        {"an unknown setting value", [](L& l, S&) { return l.setSpinUpLimits(0, 99, 1); }, RetStatus::InvalidArgument,
         "outside 0..32"},
    };
}

using RefusedOps = SimFixture;

TEST_F(RefusedOps, RefusalsAnswerWithAReasonAndChangeNothing) {
    openSystem(kSystem);
    for (const Refusal& c : refusals()) {
        SCOPED_TRACE(c.what);
        std::string before;
        ASSERT_TRUE(lib_.saveConfig(0, before));
        Ret r = c.request(lib_, sim_);
        EXPECT_EQ(r.getStatus(), c.status) << r.getReason();
        EXPECT_NE(r.getReason().find(c.reason), std::string::npos) << r.getReason();
        std::string after;
        ASSERT_TRUE(lib_.saveConfig(0, after));
        EXPECT_EQ(before, after);
    }
}

TEST_F(RefusedOps, NothingWorksOnAClosedHandle) {
    storlib::StorLib closed;
    EXPECT_EQ(closed.rescan(0).getStatus(), RetStatus::NotOpen);
    EXPECT_EQ(closed.getSystemConfig(), nullptr);
    EXPECT_EQ(closed.getNumAdapters(), 0u);
}

}  // namespace
}  // namespace storlibtest

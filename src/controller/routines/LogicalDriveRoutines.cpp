// The logical drive routines that need no logical drive spec: initialise,
// verify, force online, delete, fast-tier background check.
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RoutineRunner.h"
#include "controller/routines/Routines.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;
using storlib::Ret;

constexpr unsigned long long kLowestPriority = 3;   // TaskPriority: 1 high, 2 medium, 3 low
constexpr unsigned long long kLastInitMethod = 3;   // InitMethod: 0 build .. 3 skip
constexpr unsigned long long kLastLdState = 6;      // LogicalDriveState: 0 optimal .. 6 migrating

const RoutineSpec kInitVD{
    "FsaifExInitVD", TargetKind::LogicalDrive,
    {maybeNumber("InitFlag", 0, kLastInitMethod), needNumber("TaskPriority", "No valid data for Task Priority", kLowestPriority, 1)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifInitializeLogicalDrive(t.logicalDrive, static_cast<unsigned int>(v.number[0]),
                                           static_cast<unsigned int>(v.number[1]), r);
    }};

const RoutineSpec kVerifyVD{
    "FsaifExVerifyVD", TargetKind::LogicalDrive, {maybeFlag("bFix", false)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSynchronizeLogicalDrive(t.logicalDrive, v.flag(0), r);
    }};

const RoutineSpec kForceOnline{
    "FsaifExForceOnlineLogicalDrive", TargetKind::LogicalDrive,
    {needNumber("ForceOnlineState", "No valid data for device state to be force online into", kLastLdState),
     maybeNumber("ForceOnlineCommand", 0, 0xffffffffull), maybeNumber("ForceOnlineOptions", 0, 0xffffffffull)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetLDState(t.logicalDrive, static_cast<unsigned int>(v.number[0]),
                               static_cast<unsigned int>(v.number[1]), static_cast<unsigned int>(v.number[2]), r);
    },
    "Returning success from FsaifExForceOnlineLogicalDrive", "Return failure from FsaifExForceOnlineLogicalDrive"};

const RoutineSpec kDeleteVD{
    "FsaifExDeleteVD", TargetKind::Controller, {needNumber("PoolID", "No valid data for Pool ID", 0x7ffffffeull)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifDeleteLogicalDrive(_vdiskIdf{t.controller, static_cast<int>(v.number[0])}, r);
    }};

const RoutineSpec kSetFastTierBgCheck{
    "FsaifExSetFastTierBgCheck", TargetKind::LogicalDrive,
    {needFlag("enableFastTierBgCheck", "No valid data for enableFastTierBgCheck")},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetFastTierBgCheck(t.logicalDrive, v.flag(0), r);
    }};

}  // namespace

VEX_TABLE_ROUTINE(FsaifExInitVD, kInitVD)
VEX_TABLE_ROUTINE(FsaifExVerifyVD, kVerifyVD)
VEX_TABLE_ROUTINE(FsaifExForceOnlineLogicalDrive, kForceOnline)
VEX_TABLE_ROUTINE(FsaifExDeleteVD, kDeleteVD)
VEX_TABLE_ROUTINE(FsaifExSetFastTierBgCheck, kSetFastTierBgCheck)

}  // namespace vex::cim::fwf

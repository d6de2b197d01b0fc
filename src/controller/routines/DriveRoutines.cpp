// The physical drive routines: one row each over the shared routine shape.
#include <storlib/Enclosure.h>

#include "controller/routines/ControllerSnapshot.h"
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RoutineRunner.h"
#include "controller/routines/Routines.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;
using storlib::Ret;

const RoutineSpec kInitPD{"FsaifExInitPD", TargetKind::Drive, {}, [](const Target& t, const Values&, Ret& r, CIMMethodParam&) {
    return fsaifInitializeHardDrive(t.drive, r);
}};

const RoutineSpec kUninitializePD{
    "FsaifExUninitializePD", TargetKind::Drive, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam&) { return fsaifUninitializeHardDriveSet({t.drive}, r); },
    "Returning success from fsaifUninitializeHardDriveSet", "Failed to execute fsaifUninitializeHardDriveSet"};

const RoutineSpec kForceOffline{
    "FsaifExForceOffline", TargetKind::Drive, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam&) { return fsaifDownHardDrive(t.drive, r); },
    "Returning success form downharddrive"};

const RoutineSpec kStartPDTask{
    "FsaifExStartPDTask", TargetKind::Drive, {needNumber("TaskID", "No valid data for Task ID", 0xffff)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifStartHardDriveTask(t.drive, static_cast<unsigned int>(v.number[0]), r);
    }};

const RoutineSpec kSetPDWriteCacheMode{
    "FsaifExSetPDWriteCacheMode", TargetKind::Drive, {needFlag("bWBEnable", "No valid data for writecachemode")},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifPDiskSetWriteCacheEnable(t.drive, v.flag(0), r);
    }};

const RoutineSpec kSecureErase{
    "FsaifExSecureErase", TargetKind::Drive,
    {needText("SecureErasePassword", "No valid data for secure erase password")},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) { return fsaifPDiskSecureErase(t.drive, v.text[0], r); }};

const RoutineSpec kCreateJBOD{"FsaifExCreateJBOD", TargetKind::Drive, {}, [](const Target& t, const Values&, Ret& r, CIMMethodParam&) {
    return fsaifCreateJBOD(t.drive, r);
}};

const RoutineSpec kDeleteJBOD{"FsaifExDeleteJBOD", TargetKind::Drive, {}, [](const Target& t, const Values&, Ret& r, CIMMethodParam&) {
    return fsaifDeleteJBOD(t.drive, r);
}};

const RoutineSpec kAddToFastTier{
    "FsaifExAddDrivetoFastTierPool", TargetKind::Drive, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam&) { return fsaifAddDriveToFastTierPool(t.drive, r); }};

const RoutineSpec kRemoveFromFastTier{
    "FsaifExRemoveDrivetoFastTierPool", TargetKind::Drive, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam&) { return fsaifRemoveDriveFromFastTierPool(t.drive, r); }};

const RoutineSpec kLocatePhysicalDisk{
    "FsaifExLocatePhysicalDisk", TargetKind::Drive, {needFlag("locateIN", "LOCATE not invoked!")},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifLocateDevice(driveAddr(t.drive), v.flag(0), r);
    },
    nullptr, "LOCATE: Failed!"};

const RoutineSpec kLocateVirtualDisk{
    "FsaifExLocateVirtualDisk", TargetKind::LogicalDrive, {needFlag("locateIN", "LOCATE not invoked!")},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifLocateDevice(logicalDriveAddr(t.logicalDrive), v.flag(0), r);
    },
    nullptr, "LOCATE: Failed!"};

// The enclosure a "Tag" names ("<controller>_<logical id>"), by its address.
std::optional<storlib::Addr> enclosureByTag(const std::string& tag) {
    const std::size_t separator = tag.find('_');
    if (separator == std::string::npos) {
        return std::nullopt;
    }
    const std::optional<int> controller = decimalField(tag.substr(0, separator));
    const std::string logicalId = tag.substr(separator + 1);
    if (!controller || logicalId.empty() || logicalId.size() > 20 ||
        logicalId.find_first_not_of("0123456789") != std::string::npos) {
        return std::nullopt;
    }
    const auto config = snapshot();
    const storlib::Adapter* adapter = config ? adapterOf(*config, *controller) : nullptr;
    if (adapter == nullptr) {
        return std::nullopt;
    }
    for (const storlib::RaidObject* object : storlib::FilterCollection(*adapter, storlib::Enclosure::kClassName)) {
        if (std::to_string(object->as<storlib::Enclosure>()->getLogicalId()) == logicalId) {
            return object->getAddr();
        }
    }
    return std::nullopt;
}

}  // namespace

VEX_TABLE_ROUTINE(FsaifExInitPD, kInitPD)
VEX_TABLE_ROUTINE(FsaifExUninitializePD, kUninitializePD)
VEX_TABLE_ROUTINE(FsaifExForceOffline, kForceOffline)
VEX_TABLE_ROUTINE(FsaifExStartPDTask, kStartPDTask)
VEX_TABLE_ROUTINE(FsaifExSetPDWriteCacheMode, kSetPDWriteCacheMode)
VEX_TABLE_ROUTINE(FsaifExSecureErase, kSecureErase)
VEX_TABLE_ROUTINE(FsaifExCreateJBOD, kCreateJBOD)
VEX_TABLE_ROUTINE(FsaifExDeleteJBOD, kDeleteJBOD)
VEX_TABLE_ROUTINE(FsaifExAddDrivetoFastTierPool, kAddToFastTier)
VEX_TABLE_ROUTINE(FsaifExRemoveDrivetoFastTierPool, kRemoveFromFastTier)
VEX_TABLE_ROUTINE(FsaifExLocatePhysicalDisk, kLocatePhysicalDisk)
VEX_TABLE_ROUTINE(FsaifExLocateVirtualDisk, kLocateVirtualDisk)

unsigned int FsaifExLocateEnclosure(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExLocateEnclosure");
    const std::optional<std::string> tag = targetText(path, in, "Tag");
    const std::optional<bool> on = routine::flag(in, "locateIN");
    if (!tag || !on) {
        TkzLogMsg(TKZ_LOG_ERROR, "LOCATE Not invoked!");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<storlib::Addr> enclosure = enclosureByTag(*tag);
    if (!enclosure) {
        TkzLogMsg(TKZ_LOG_ERROR, "LOCATE Not invoked!");
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    const unsigned int result = afaifBlinkEnclosure(*enclosure, *on, ret);
    if (result != FSAIF_SUCCESS) {
        TkzLogMsg(TKZ_LOG_ERROR, "LOCATE Failed!");
    }
    return result;
}

}  // namespace vex::cim::fwf

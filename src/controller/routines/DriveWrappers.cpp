// Wrappers of the physical drive operations.
#include "controller/FsaifCall.h"
#include "controller/routines/OperationWrappers.h"

namespace vex::cim::fwf {

namespace {

using storlib::StorLib;

storlib::AddrCollection collection(const std::vector<_pdiskIdf>& drives) {
    storlib::AddrCollection addrs;
    for (const _pdiskIdf& d : drives) {
        addrs.add(driveAddr(d));
    }
    return addrs;
}

}  // namespace

storlib::Addr driveAddr(const _pdiskIdf& d) {
    return storlib::Addr::device(static_cast<uint32_t>(d.controller), static_cast<uint32_t>(d.channel),
                                 static_cast<uint32_t>(d.device));
}

unsigned int fsaifInitializeHardDrive(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifInitializeHardDrive", ret,
                     [&](StorLib& lib) { return lib.initializeHardDrives(collection({drive})); });
}

unsigned int fsaifUninitializeHardDriveSet(const std::vector<_pdiskIdf>& drives, storlib::Ret& ret) {
    return fsaifCall("fsaifUninitializeHardDriveSet", ret,
                     [&](StorLib& lib) { return lib.uninitializeHardDrives(collection(drives)); });
}

unsigned int fsaifDownHardDrive(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifDownHardDrive", ret, [&](StorLib& lib) { return lib.downHardDrive(driveAddr(drive)); });
}

unsigned int fsaifStartHardDriveTask(const _pdiskIdf& drive, unsigned int task, storlib::Ret& ret) {
    return fsaifCall("fsaifStartHardDriveTask", ret, [&](StorLib& lib) {
        return lib.startHardDriveTask(driveAddr(drive), static_cast<storlib::TaskType>(task));
    });
}

unsigned int fsaifPDiskSetWriteCacheEnable(const _pdiskIdf& drive, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifPDiskSetWriteCacheEnable", ret,
                     [&](StorLib& lib) { return lib.setHardDriveWriteCache(driveAddr(drive), enable); });
}

unsigned int fsaifPDiskSecureErase(const _pdiskIdf& drive, const std::string& password, storlib::Ret& ret) {
    return fsaifCall("fsaifPDiskSecureErase", ret,
                     [&](StorLib& lib) { return lib.secureEraseHardDrive(driveAddr(drive), password); });
}

unsigned int fsaifCreateJBOD(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifCreateJBOD", ret, [&](StorLib& lib) { return lib.createJBOD(driveAddr(drive)); });
}

unsigned int fsaifDeleteJBOD(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifDeleteJBOD", ret, [&](StorLib& lib) { return lib.deleteJBOD(driveAddr(drive)); });
}

unsigned int fsaifAddDriveToFastTierPool(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifAddDriveToFastTierPool", ret,
                     [&](StorLib& lib) { return lib.addDriveToFastTierPool(driveAddr(drive)); });
}

unsigned int fsaifRemoveDriveFromFastTierPool(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifRemoveDriveFromFastTierPool", ret,
                     [&](StorLib& lib) { return lib.removeDriveFromFastTierPool(driveAddr(drive)); });
}

unsigned int fsaifLocateDevice(const storlib::Addr& target, bool on, storlib::Ret& ret) {
    return fsaifCall("fsaifLocateDevice", ret, [&](StorLib& lib) { return lib.locateDevice(target, on); });
}

unsigned int afaifBlinkEnclosure(const storlib::Addr& enclosure, bool on, storlib::Ret& ret) {
    return fsaifCall("afaifBlinkEnclosure", ret, [&](StorLib& lib) { return lib.blinkEnclosure(enclosure, on); });
}

unsigned int fsaifProtectHardDriveSet(int controller, const std::vector<_pdiskIdf>& drives, bool allDrives,
                                      bool protect, storlib::Ret& ret) {
    return fsaifCall("fsaifProtectHardDriveSet", ret, [&](StorLib& lib) {
        return lib.protectHardDrives(static_cast<uint32_t>(controller), collection(drives), allDrives, protect);
    });
}

unsigned int flashSATADriveMicrocode(const std::vector<_pdiskIdf>& drives, const std::string& image,
                                     unsigned int packetSize, unsigned int mode, storlib::Ret& ret) {
    return fsaifCall("flashSATADriveMicrocode", ret, [&](StorLib& lib) {
        return lib.flashSATADriveMicrocode(collection(drives), image, packetSize, mode);
    });
}

unsigned int fsaifFlashSasHarddrive(const std::vector<_pdiskIdf>& drives, const std::string& image,
                                    unsigned int packetSize, unsigned int mode, storlib::Ret& ret) {
    return fsaifCall("fsaifFlashSasHarddrive", ret, [&](StorLib& lib) {
        return lib.flashSASDriveFirmware(collection(drives), image, packetSize, mode);
    });
}

unsigned int fsaifAssignGlobalSpare(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifAssignGlobalSpare", ret,
                     [&](StorLib& lib) { return lib.assignGlobalSpare(driveAddr(drive)); });
}

unsigned int fsaifAssignDedicatedSpare(const _pdiskIdf& drive, const _vdiskIdf& logicalDrive, storlib::Ret& ret) {
    return fsaifCall("fsaifAssignDedicatedSpare", ret, [&](StorLib& lib) {
        return lib.assignDedicatedSpare(driveAddr(drive), logicalDriveAddr(logicalDrive));
    });
}

unsigned int fsaifUnassignSpare(const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifUnassignSpare", ret, [&](StorLib& lib) { return lib.unassignSpare(driveAddr(drive)); });
}

}  // namespace vex::cim::fwf

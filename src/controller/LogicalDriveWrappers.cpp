#include "controller/FsaifCall.h"
#include "controller/FsaifWrappers.h"

namespace vex::cim::fwf {

namespace {

storlib::Addr logicalDriveAt(int controller, int logicalDrive) {
    return storlib::Addr::logicalDrive(static_cast<uint32_t>(controller), static_cast<uint32_t>(logicalDrive));
}

}  // namespace

unsigned int fsaifSetLDCache(int controller, int logicalDrive, unsigned int readMode, unsigned int writeMode,
                             storlib::Ret& ret) {
    return fsaifCall("fsaifSetLDCache", ret, [&](storlib::StorLib& lib) {
        return lib.setLogicalDriveCache(logicalDriveAt(controller, logicalDrive),
                                        static_cast<storlib::ReadCacheMode>(readMode),
                                        static_cast<storlib::WriteCacheMode>(writeMode));
    });
}

unsigned int fsaifSetFastTierPreferredCache(int controller, int logicalDrive, unsigned int preferred,
                                            bool isFastTier3, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFastTierPreferredCache", ret, [&](storlib::StorLib& lib) {
        return lib.setLogicalDriveFastTier(logicalDriveAt(controller, logicalDrive), preferred, isFastTier3);
    });
}

unsigned int fsaifSetPreferredFastTierWriteCache(int controller, int logicalDrive, unsigned int preferred,
                                                 unsigned int policy, storlib::Ret& ret) {
    return fsaifCall("fsaifSetPreferredFastTierWriteCache", ret, [&](storlib::StorLib& lib) {
        return lib.setLogicalDriveFastTierWriteCache(logicalDriveAt(controller, logicalDrive), preferred, policy);
    });
}

unsigned int fsaifChangeLDName(int controller, int logicalDrive, const std::string& name, storlib::Ret& ret) {
    return fsaifCall("fsaifChangeLDName", ret, [&](storlib::StorLib& lib) {
        return lib.setLogicalDriveName(logicalDriveAt(controller, logicalDrive), name);
    });
}

unsigned int fsaifSetPMEnabled(int controller, int logicalDrive, bool enabled, storlib::Ret& ret) {
    return fsaifCall("fsaifSetPMEnabled", ret, [&](storlib::StorLib& lib) {
        return lib.setLogicalDrivePowerManagement(logicalDriveAt(controller, logicalDrive), enabled);
    });
}

unsigned int fsaifSetPMTimers(int controller, int logicalDrive, unsigned int powerOffMinutes,
                              unsigned int reduceRpmMinutes, unsigned int verifyHours, storlib::Ret& ret) {
    return fsaifCall("fsaifSetPMTimers", ret, [&](storlib::StorLib& lib) {
        return lib.setLogicalDrivePowerTimers(logicalDriveAt(controller, logicalDrive), powerOffMinutes,
                                              reduceRpmMinutes, verifyHours);
    });
}

}  // namespace vex::cim::fwf

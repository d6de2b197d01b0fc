// Wrappers of the logical drive and task operations.
#include "controller/FsaifCall.h"
#include "controller/routines/OperationWrappers.h"

namespace vex::cim::fwf {

namespace {

using storlib::StorLib;

storlib::Addr taskAddr(int controller, unsigned long long task) {
    return storlib::Addr(static_cast<uint32_t>(controller), storlib::Addr::ANY, storlib::Addr::ANY,
                         storlib::Addr::ANY, task);
}

}  // namespace

storlib::Addr logicalDriveAddr(const _vdiskIdf& l) {
    return storlib::Addr::logicalDrive(static_cast<uint32_t>(l.controller), static_cast<uint32_t>(l.logicalDrive));
}

unsigned int fsaifCreateLogicalDrive(const storlib::LogicalDriveSpec& spec, storlib::Ret& ret, std::uint32_t* newId) {
    return fsaifCall("fsaifCreateLogicalDrive", ret, [&](StorLib& lib) { return lib.createLogicalDrive(spec, newId); });
}

unsigned int fsaifModifyLogicalDrive(const _vdiskIdf& logicalDrive, const storlib::LogicalDriveSpec& target,
                                     storlib::Ret& ret) {
    return fsaifCall("fsaifModifyLogicalDrive", ret,
                     [&](StorLib& lib) { return lib.modifyLogicalDrive(logicalDriveAddr(logicalDrive), target); });
}

unsigned int fsaifDeleteLogicalDrive(const _vdiskIdf& logicalDrive, storlib::Ret& ret) {
    return fsaifCall("fsaifDeleteLogicalDrive", ret,
                     [&](StorLib& lib) { return lib.deleteLogicalDrive(logicalDriveAddr(logicalDrive)); });
}

unsigned int fsaifInitializeLogicalDrive(const _vdiskIdf& logicalDrive, unsigned int method,
                                         unsigned int priority, storlib::Ret& ret) {
    return fsaifCall("fsaifInitializeLogicalDrive", ret, [&](StorLib& lib) {
        return lib.initializeLogicalDrive(logicalDriveAddr(logicalDrive), static_cast<storlib::InitMethod>(method),
                                          static_cast<storlib::TaskPriority>(priority));
    });
}

unsigned int fsaifSynchronizeLogicalDrive(const _vdiskIdf& logicalDrive, bool fix, storlib::Ret& ret) {
    return fsaifCall("fsaifSynchronizeLogicalDrive", ret,
                     [&](StorLib& lib) { return lib.verifyLogicalDrive(logicalDriveAddr(logicalDrive), fix); });
}

unsigned int fsaifRebuildLogicalDrive(const _vdiskIdf& logicalDrive, const _pdiskIdf& drive, storlib::Ret& ret) {
    return fsaifCall("fsaifRebuildLogicalDrive", ret, [&](StorLib& lib) {
        return lib.rebuildLogicalDrive(logicalDriveAddr(logicalDrive), driveAddr(drive));
    });
}

unsigned int fsaifSetLDState(const _vdiskIdf& logicalDrive, unsigned int state, unsigned int command,
                             unsigned int options, storlib::Ret& ret) {
    return fsaifCall("fsaifSetLDState", ret, [&](StorLib& lib) {
        return lib.setLogicalDriveState(logicalDriveAddr(logicalDrive), static_cast<storlib::LogicalDriveState>(state),
                                        command, options);
    });
}

unsigned int fsaifSetFastTierBgCheck(const _vdiskIdf& logicalDrive, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFastTierBgCheck", ret,
                     [&](StorLib& lib) { return lib.setFastTierBgCheck(logicalDriveAddr(logicalDrive), enable); });
}

unsigned int FsaifSetTaskPriority(int controller, unsigned long long task, unsigned int priority, storlib::Ret& ret) {
    return fsaifCall("FsaifSetTaskPriority", ret, [&](StorLib& lib) {
        return lib.setTaskPriority(taskAddr(controller, task), static_cast<storlib::TaskPriority>(priority));
    });
}

unsigned int FsaifAbortTask(int controller, unsigned long long task, storlib::Ret& ret) {
    return fsaifCall("FsaifAbortTask", ret, [&](StorLib& lib) { return lib.abortTask(taskAddr(controller, task)); });
}

}  // namespace vex::cim::fwf

// Wrappers of the controller-wide operations and the fast tier.
#include "controller/FsaifCall.h"
#include "controller/routines/OperationWrappers.h"

namespace vex::cim::fwf {

namespace {

using storlib::StorLib;

uint32_t at(int controller) { return static_cast<uint32_t>(controller); }

}  // namespace

unsigned int RescanDeviceBus(int c, storlib::Ret& ret) {
    return fsaifCall("RescanDeviceBus", ret, [&](StorLib& lib) { return lib.rescan(at(c)); });
}

unsigned int fsaifSetStatisticDataCollectionMode(int c, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifSetStatisticDataCollectionMode", ret,
                     [&](StorLib& lib) { return lib.setStatisticsCollection(at(c), enable); });
}

unsigned int fsaifResetStatisticsCounters(int c, storlib::Ret& ret) {
    return fsaifCall("fsaifResetStatisticsCounters", ret,
                     [&](StorLib& lib) { return lib.resetStatisticsCounters(at(c)); });
}

unsigned int FsaifGetControllerLog(int c, unsigned int type, std::string& xml, std::string& csv, storlib::Ret& ret) {
    return fsaifCall("FsaifGetControllerLog", ret, [&](StorLib& lib) {
        return lib.getControllerLog(at(c), static_cast<storlib::LogType>(type), xml, csv);
    });
}

unsigned int fsaifClearControllerLog(int c, unsigned int type, storlib::Ret& ret) {
    return fsaifCall("fsaifClearControllerLog", ret, [&](StorLib& lib) {
        return lib.clearControllerLog(at(c), static_cast<storlib::LogType>(type));
    });
}

unsigned int FsaifSetDefaultLDTaskPriority(int c, unsigned int priority, bool applyToRunning, storlib::Ret& ret) {
    return fsaifCall("FsaifSetDefaultLDTaskPriority", ret, [&](StorLib& lib) {
        return lib.setDefaultTaskPriority(at(c), static_cast<storlib::TaskPriority>(priority), applyToRunning);
    });
}

unsigned int manageAlarmStatus(int c, unsigned int state, storlib::Ret& ret) {
    return fsaifCall("manageAlarmStatus", ret,
                     [&](StorLib& lib) { return lib.setAlarmState(at(c), static_cast<storlib::AlarmState>(state)); });
}

unsigned int fsaifSetFunctionalMode(int c, unsigned int mode, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFunctionalMode", ret, [&](StorLib& lib) {
        return lib.setFunctionalMode(at(c), static_cast<storlib::FunctionalMode>(mode));
    });
}

unsigned int fsaifSaveConfig(int c, std::string& config, storlib::Ret& ret) {
    return fsaifCall("fsaifSaveConfig", ret, [&](StorLib& lib) { return lib.saveConfig(at(c), config); });
}

unsigned int fsaifPlayConfig(int c, const std::string& config, bool force, bool matchBySlot, storlib::Ret& ret) {
    return fsaifCall("fsaifPlayConfig", ret,
                     [&](StorLib& lib) { return lib.playConfig(at(c), config, force, matchBySlot); });
}

unsigned int FsaifResetConfig(int c, storlib::Ret& ret) {
    return fsaifCall("FsaifResetConfig", ret, [&](StorLib& lib) { return lib.resetConfig(at(c)); });
}

unsigned int fsaifUpgradeControllerFirmware(int c, const std::string& image, storlib::Ret& ret) {
    return fsaifCall("fsaifUpgradeControllerFirmware", ret,
                     [&](StorLib& lib) { return lib.upgradeControllerFirmware(at(c), image); });
}

unsigned int fsaifSetFastTierWrite(int c, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFastTierWrite", ret, [&](StorLib& lib) { return lib.setFastTierWrite(at(c), enable); });
}

unsigned int fsaifSetFastTierFetchRate(int c, unsigned int rate, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFastTierFetchRate", ret,
                     [&](StorLib& lib) { return lib.setFastTierFetchRate(at(c), rate); });
}

unsigned int fsaifSetFastTierDirtyPageThreshold(int c, unsigned int percent, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFastTierDirtyPageThreshold", ret,
                     [&](StorLib& lib) { return lib.setFastTierDirtyPageThreshold(at(c), percent); });
}

unsigned int fsaifSetFastTierRWFactor(int c, unsigned int readFactor, unsigned int writeFactor, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFastTierRWFactor", ret,
                     [&](StorLib& lib) { return lib.setFastTierRWFactor(at(c), readFactor, writeFactor); });
}

unsigned int fsaifSetFastTierWriteDisableAll(int c, bool disable, storlib::Ret& ret) {
    return fsaifCall("fsaifSetFastTierWriteDisableAll", ret,
                     [&](StorLib& lib) { return lib.setFastTierWriteDisableAll(at(c), disable); });
}

unsigned int fsaifStartFastTierCoherencyCheck(int c, storlib::Ret& ret) {
    return fsaifCall("fsaifStartFastTierCoherencyCheck", ret,
                     [&](StorLib& lib) { return lib.startFastTierCoherencyCheck(at(c)); });
}

unsigned int fsaifClearFastTierPool(int c, storlib::Ret& ret) {
    return fsaifCall("fsaifClearFastTierPool", ret, [&](StorLib& lib) { return lib.clearFastTierPool(at(c)); });
}

unsigned int fsaifHasFastTierDirtyData(int c, bool& dirty, storlib::Ret& ret) {
    return fsaifCall("fsaifHasFastTierDirtyData", ret,
                     [&](StorLib& lib) { return lib.hasFastTierDirtyData(at(c), dirty); });
}

}  // namespace vex::cim::fwf

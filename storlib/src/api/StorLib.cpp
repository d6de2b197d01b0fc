// The StorLib handle: every call goes to the library core.
#include <storlib/StorLib.h>

#include "core/Core.h"
#include "sim/Ops.h"

#include <cstdlib>
#include <string>

namespace storlib {
namespace ops = sim::ops;

namespace {

std::string env(const char* name) {
    const char* v = std::getenv(name);
    return v ? v : "";
}

}  // namespace

Options Options::fromEnvironment() {
    Options o;
    o.systemFile = env("STORVEX_SYSTEM");
    o.stateDir = env("STORVEX_STATE_DIR");
    if (std::string s = env("STORVEX_TIME_SCALE"); !s.empty()) {
        char* end = nullptr;
        double v = std::strtod(s.c_str(), &end);
        if (end && *end == '\0' && v >= 0) o.timeScale = v;
    }
    if (std::string s = env("STORVEX_EVENT_QUEUE"); !s.empty()) {
        char* end = nullptr;
        unsigned long v = std::strtoul(s.c_str(), &end, 10);
        if (end && *end == '\0' && v > 0 && v <= 1000000) o.eventQueueSize = static_cast<uint32_t>(v);
    }
    return o;
}

StorLib::StorLib() : core_(std::make_shared<detail::Core>()) {}
StorLib::~StorLib() { close(); }

Ret StorLib::open() { return open(Options::fromEnvironment()); }
Ret StorLib::open(const Options& options) { return core_->open(options); }
void StorLib::close() { core_->close(); }
bool StorLib::isOpen() const { return core_->isOpen(); }

Ret StorLib::getControllerCount(unsigned long& count) {
    count = 0;
    return core_->read([&](const sim::Model& m) {
        for (const sim::ControllerRec& c : m.controllers) count += c.present;
        return Ret::success();
    });
}

unsigned long StorLib::getNumAdapters() {
    unsigned long n = 0;
    getControllerCount(n);
    return n;
}

std::shared_ptr<const SystemConfig> StorLib::getSystemConfig() { return core_->snapshot(); }

Ret StorLib::getEvents(uint32_t adapter, StorEventCollection& out) { return core_->events(adapter, false, 0, out); }
Ret StorLib::getEventHistory(uint32_t adapter, size_t maxCount, StorEventCollection& out) {
    return core_->events(adapter, true, maxCount, out);
}
Ret StorLib::getLastError() const { return core_->lastError(); }

#define STORLIB_WRITE(call) return core_->write([&](sim::Model& m) { return call; })

Ret StorLib::initializeHardDrives(const AddrCollection& d) { STORLIB_WRITE(ops::initializeDrives(m, d)); }
Ret StorLib::uninitializeHardDrives(const AddrCollection& d) { STORLIB_WRITE(ops::uninitializeDrives(m, d)); }
Ret StorLib::downHardDrive(const Addr& d) { STORLIB_WRITE(ops::downDrive(m, d)); }
Ret StorLib::upHardDrive(const Addr& d) { STORLIB_WRITE(ops::upDrive(m, d)); }
Ret StorLib::startHardDriveTask(const Addr& d, TaskType t) { STORLIB_WRITE(ops::startDriveTask(m, d, t)); }
Ret StorLib::setHardDriveWriteCache(const Addr& d, bool e) { STORLIB_WRITE(ops::setDriveWriteCache(m, d, e)); }
Ret StorLib::secureEraseHardDrive(const Addr& d, const std::string& p) { STORLIB_WRITE(ops::secureErase(m, d, p)); }
Ret StorLib::createJBOD(const Addr& d) { STORLIB_WRITE(ops::createJBOD(m, d)); }
Ret StorLib::deleteJBOD(const Addr& d) { STORLIB_WRITE(ops::deleteJBOD(m, d)); }
Ret StorLib::locateDevice(const Addr& a, bool on) { STORLIB_WRITE(ops::locate(m, a, on)); }
Ret StorLib::blinkEnclosure(const Addr& a, bool on) { STORLIB_WRITE(ops::blinkEnclosure(m, a, on)); }
Ret StorLib::protectHardDrives(uint32_t a, const AddrCollection& d, bool all, bool p) {
    STORLIB_WRITE(ops::protectDrives(m, a, d, all, p));
}
Ret StorLib::flashSATADriveMicrocode(const AddrCollection& d, const std::string& img, uint32_t, uint32_t) {
    STORLIB_WRITE(ops::flashDrives(m, d, img, InterfaceType::SATA));
}
Ret StorLib::flashSASDriveFirmware(const AddrCollection& d, const std::string& img, uint32_t, uint32_t) {
    STORLIB_WRITE(ops::flashDrives(m, d, img, InterfaceType::SAS));
}
Ret StorLib::addDriveToFastTierPool(const Addr& d) { STORLIB_WRITE(ops::fastTierDrive(m, d, true)); }
Ret StorLib::removeDriveFromFastTierPool(const Addr& d) { STORLIB_WRITE(ops::fastTierDrive(m, d, false)); }

Ret StorLib::createLogicalDrive(const LogicalDriveSpec& s, uint32_t* id) { STORLIB_WRITE(ops::createLd(m, s, id)); }
Ret StorLib::modifyLogicalDrive(const Addr& l, const LogicalDriveSpec& s) { STORLIB_WRITE(ops::modifyLd(m, l, s)); }
Ret StorLib::deleteLogicalDrive(const Addr& l) { STORLIB_WRITE(ops::deleteLd(m, l)); }
Ret StorLib::initializeLogicalDrive(const Addr& l, InitMethod i, TaskPriority p) {
    STORLIB_WRITE(ops::initializeLd(m, l, i, p));
}
Ret StorLib::verifyLogicalDrive(const Addr& l, bool fix) { STORLIB_WRITE(ops::verifyLd(m, l, fix)); }
Ret StorLib::rebuildLogicalDrive(const Addr& l, const Addr& d) { STORLIB_WRITE(ops::rebuildLd(m, l, d)); }
Ret StorLib::setLogicalDriveState(const Addr& l, LogicalDriveState s, uint32_t c, uint32_t o) {
    STORLIB_WRITE(ops::setLdState(m, l, s, c, o));
}
Ret StorLib::setLogicalDriveCache(const Addr& l, ReadCacheMode r, WriteCacheMode w) {
    STORLIB_WRITE(ops::setLdCache(m, l, r, w));
}
Ret StorLib::setLogicalDriveName(const Addr& l, const std::string& n) { STORLIB_WRITE(ops::setLdName(m, l, n)); }
Ret StorLib::setLogicalDriveFastTier(const Addr& l, uint32_t p, bool t3) { STORLIB_WRITE(ops::setLdFastTier(m, l, p, t3)); }
Ret StorLib::setLogicalDriveFastTierWriteCache(const Addr& l, uint32_t p, uint32_t pol) {
    STORLIB_WRITE(ops::setLdFastTierWriteCache(m, l, p, pol));
}
Ret StorLib::setLogicalDrivePowerManagement(const Addr& l, bool e) { STORLIB_WRITE(ops::setLdPower(m, l, e)); }
Ret StorLib::setLogicalDrivePowerTimers(const Addr& l, uint32_t o, uint32_t r, uint32_t v) {
    STORLIB_WRITE(ops::setLdPowerTimers(m, l, o, r, v));
}
Ret StorLib::setFastTierBgCheck(const Addr& l, bool e) { STORLIB_WRITE(ops::setLdFastTierBgCheck(m, l, e)); }

Ret StorLib::assignGlobalSpare(const Addr& d) { STORLIB_WRITE(ops::assignGlobalSpare(m, d)); }
Ret StorLib::assignDedicatedSpare(const Addr& d, const Addr& l) { STORLIB_WRITE(ops::assignDedicatedSpare(m, d, l)); }
Ret StorLib::unassignSpare(const Addr& d) { STORLIB_WRITE(ops::unassignSpare(m, d)); }

Ret StorLib::setTaskPriority(const Addr& t, TaskPriority p) { STORLIB_WRITE(ops::setTaskPriority(m, t, p)); }
Ret StorLib::abortTask(const Addr& t) { STORLIB_WRITE(ops::abortTask(m, t)); }
Ret StorLib::setDefaultTaskPriority(uint32_t a, TaskPriority p, bool run) {
    STORLIB_WRITE(ops::setDefaultTaskPriority(m, a, p, run));
}

Ret StorLib::rescan(uint32_t a) { STORLIB_WRITE(ops::rescan(m, a)); }
Ret StorLib::setStatisticsCollection(uint32_t a, bool e) { STORLIB_WRITE(ops::setStatistics(m, a, e)); }
Ret StorLib::resetStatisticsCounters(uint32_t a) { STORLIB_WRITE(ops::resetStatistics(m, a)); }
Ret StorLib::getControllerLog(uint32_t a, LogType t, std::string& xml, std::string& csv) {
    STORLIB_WRITE(ops::controllerLog(m, a, t, xml, csv));
}
Ret StorLib::clearControllerLog(uint32_t a, LogType t) { STORLIB_WRITE(ops::clearLog(m, a, t)); }
Ret StorLib::setAlarmState(uint32_t a, AlarmState s) { STORLIB_WRITE(ops::setAlarm(m, a, s)); }
Ret StorLib::setFunctionalMode(uint32_t a, FunctionalMode f) { STORLIB_WRITE(ops::setFunctionalMode(m, a, f)); }
Ret StorLib::setGlobalMaxSASPhyLinkRate(uint32_t a, LinkRate r) { STORLIB_WRITE(ops::setLinkRate(m, a, r)); }
Ret StorLib::setGlobalPhysicalDevicesWriteCachePolicy(uint32_t a, DriveWriteCachePolicy p) {
    STORLIB_WRITE(ops::setDriveCachePolicy(m, a, p));
}
Ret StorLib::setAutomaticFailover(uint32_t a, bool e) { STORLIB_WRITE(ops::setSetting(m, a, "automaticFailover", {e})); }
Ret StorLib::setStayAwakePeriod(uint32_t a, bool on, uint32_t start, uint32_t stop, uint32_t days) {
    STORLIB_WRITE(ops::setSetting(m, a, "stayAwake", {on, start, stop, days}));
}
Ret StorLib::setCopyBack(uint32_t a, bool e) { STORLIB_WRITE(ops::setSetting(m, a, "copyBack", {e})); }
Ret StorLib::setPerformanceMode(uint32_t a, PerformanceMode p) {
    STORLIB_WRITE(ops::setSetting(m, a, "performanceMode", {static_cast<uint32_t>(p)}));
}
Ret StorLib::setNCQ(uint32_t a, bool e) { STORLIB_WRITE(ops::setSetting(m, a, "ncq", {e})); }
Ret StorLib::setBackgroundConsistencyCheck(uint32_t a, bool e) {
    STORLIB_WRITE(ops::setSetting(m, a, "bgConsistencyCheck", {e}));
}
Ret StorLib::setBackgroundConsistencyCheckPeriod(uint32_t a, uint32_t d) {
    STORLIB_WRITE(ops::setSetting(m, a, "bgConsistencyCheckPeriod", {d}));
}
Ret StorLib::setSpinUpLimits(uint32_t a, uint32_t i, uint32_t e) { STORLIB_WRITE(ops::setSetting(m, a, "spinUpLimits", {i, e})); }
Ret StorLib::saveConfig(uint32_t a, std::string& c) { STORLIB_WRITE(ops::saveConfig(m, a, c)); }
Ret StorLib::playConfig(uint32_t a, const std::string& c, bool f, bool s) { STORLIB_WRITE(ops::playConfig(m, a, c, f, s)); }
Ret StorLib::resetConfig(uint32_t a) { STORLIB_WRITE(ops::resetConfig(m, a)); }
Ret StorLib::upgradeControllerFirmware(uint32_t a, const std::string& img) { STORLIB_WRITE(ops::upgradeFirmware(m, a, img)); }

Ret StorLib::setFastTierWrite(uint32_t a, bool e) { STORLIB_WRITE(ops::fastTierSetting(m, a, "write", {e})); }
Ret StorLib::setFastTierFetchRate(uint32_t a, uint32_t r) { STORLIB_WRITE(ops::fastTierSetting(m, a, "fetchRate", {r})); }
Ret StorLib::setFastTierDirtyPageThreshold(uint32_t a, uint32_t p) {
    STORLIB_WRITE(ops::fastTierSetting(m, a, "dirtyPageThreshold", {p}));
}
Ret StorLib::setFastTierRWFactor(uint32_t a, uint32_t r, uint32_t w) { STORLIB_WRITE(ops::fastTierSetting(m, a, "rwFactor", {r, w})); }
Ret StorLib::setFastTierWriteDisableAll(uint32_t a, bool d) { STORLIB_WRITE(ops::fastTierSetting(m, a, "writeDisableAll", {d})); }
Ret StorLib::startFastTierCoherencyCheck(uint32_t a) { STORLIB_WRITE(ops::fastTierCoherency(m, a)); }
Ret StorLib::clearFastTierPool(uint32_t a) { STORLIB_WRITE(ops::clearFastTierPool(m, a)); }
Ret StorLib::hasFastTierDirtyData(uint32_t a, bool& dirty) {
    return core_->read([&](const sim::Model& m) {
        uint32_t i = 0;
        for (const sim::ControllerRec& c : m.controllers)
            if (c.present && i++ == a) {
                dirty = c.ad.fastTierDirty;
                return Ret::success();
            }
        return Ret(RetStatus::NotFound, "no controller " + std::to_string(a));
    });
}

}  // namespace storlib

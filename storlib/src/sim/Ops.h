// Every operation on the simulated controllers. Each one checks the request
// completely before it changes anything, and answers a refusal with a reason.
#pragma once
#include "sim/Model.h"

#include <storlib/LogicalDriveSpec.h>
#include <storlib/Ret.h>

#include <string>

namespace storlib::sim::ops {

// drives
Ret initializeDrives(Model& m, const AddrCollection& drives);
Ret uninitializeDrives(Model& m, const AddrCollection& drives);
Ret downDrive(Model& m, const Addr& a);
Ret upDrive(Model& m, const Addr& a);
Ret startDriveTask(Model& m, const Addr& a, TaskType type);
Ret setDriveWriteCache(Model& m, const Addr& a, bool enable);
Ret secureErase(Model& m, const Addr& a, const std::string& password);
Ret createJBOD(Model& m, const Addr& a);
Ret deleteJBOD(Model& m, const Addr& a);
Ret locate(Model& m, const Addr& a, bool on);
Ret blinkEnclosure(Model& m, const Addr& a, bool on);
Ret protectDrives(Model& m, uint32_t adapter, const AddrCollection& drives, bool all, bool protect);
Ret flashDrives(Model& m, const AddrCollection& drives, const std::string& image, InterfaceType iface);
Ret fastTierDrive(Model& m, const Addr& a, bool add);

// logical drives
Ret createLd(Model& m, const LogicalDriveSpec& spec, uint32_t* newId);
Ret modifyLd(Model& m, const Addr& a, const LogicalDriveSpec& spec);
Ret deleteLd(Model& m, const Addr& a);
Ret initializeLd(Model& m, const Addr& a, InitMethod method, TaskPriority prio);
Ret verifyLd(Model& m, const Addr& a, bool fix);
Ret rebuildLd(Model& m, const Addr& ld, const Addr& drive);
Ret setLdState(Model& m, const Addr& a, LogicalDriveState target, uint32_t command, uint32_t options);
Ret setLdCache(Model& m, const Addr& a, ReadCacheMode r, WriteCacheMode w);
Ret setLdName(Model& m, const Addr& a, const std::string& name);
Ret setLdFastTier(Model& m, const Addr& a, uint32_t preferred, bool isFastTier3);
Ret setLdFastTierWriteCache(Model& m, const Addr& a, uint32_t preferred, uint32_t policy);
Ret setLdPower(Model& m, const Addr& a, bool enabled);
Ret setLdPowerTimers(Model& m, const Addr& a, uint32_t off, uint32_t rpm, uint32_t verify);
Ret setLdFastTierBgCheck(Model& m, const Addr& a, bool enable);

// spares
Ret assignGlobalSpare(Model& m, const Addr& drive);
Ret assignDedicatedSpare(Model& m, const Addr& drive, const Addr& ld);
Ret unassignSpare(Model& m, const Addr& drive);

// tasks
Ret setTaskPriority(Model& m, const Addr& task, TaskPriority prio);
Ret abortTask(Model& m, const Addr& task);
Ret setDefaultTaskPriority(Model& m, uint32_t adapter, TaskPriority prio, bool applyToRunning);

// controller
Ret rescan(Model& m, uint32_t adapter);
Ret setStatistics(Model& m, uint32_t adapter, bool enable);
Ret resetStatistics(Model& m, uint32_t adapter);
Ret controllerLog(Model& m, uint32_t adapter, LogType type, std::string& xml, std::string& csv);
Ret clearLog(Model& m, uint32_t adapter, LogType type);
Ret setAlarm(Model& m, uint32_t adapter, AlarmState state);
Ret setFunctionalMode(Model& m, uint32_t adapter, FunctionalMode mode);
Ret setLinkRate(Model& m, uint32_t adapter, LinkRate rate);
Ret setDriveCachePolicy(Model& m, uint32_t adapter, DriveWriteCachePolicy policy);

// One controller setting, by name, with its value(s) checked by the table.
Ret setSetting(Model& m, uint32_t adapter, const std::string& name, const std::vector<uint32_t>& values);

Ret saveConfig(Model& m, uint32_t adapter, std::string& out);
Ret playConfig(Model& m, uint32_t adapter, const std::string& text, bool force, bool bySlot);
Ret resetConfig(Model& m, uint32_t adapter);
Ret upgradeFirmware(Model& m, uint32_t adapter, const std::string& image);

// fast tier (controller)
Ret fastTierSetting(Model& m, uint32_t adapter, const std::string& name, const std::vector<uint32_t>& values);
Ret fastTierCoherency(Model& m, uint32_t adapter);
Ret clearFastTierPool(Model& m, uint32_t adapter);

// simulator faults
Ret failDrive(Model& m, const Addr& a);
Ret pullDrive(Model& m, const Addr& a);
Ret insertDrive(Model& m, const Addr& a, bool asNew);
Ret setSmartError(Model& m, const Addr& a, bool tripped);
Ret setElementFailed(Model& m, const Addr& encl, SESElementType type, uint32_t index, bool failed);
Ret setSensorTemperature(Model& m, const Addr& encl, uint32_t index, int32_t celsius);
Ret setControllerTemperature(Model& m, uint32_t adapter, int32_t celsius);
Ret setBatteryFailed(Model& m, uint32_t adapter, bool failed);
Ret setControllerStatus(Model& m, uint32_t adapter, uint32_t status);
Ret removeController(Model& m, uint32_t adapter);
Ret addController(Model& m);
Ret finishTask(Model& m, const Addr& task);
Ret finishAllTasks(Model& m);

}  // namespace storlib::sim::ops

// Finding controllers, drives, logical drives, enclosures and tasks by address.
#pragma once
#include "sim/Model.h"

#include <storlib/Ret.h>

#include <string>

namespace storlib::sim {

inline Ret refuse(RetStatus s, std::string why) { return Ret(s, std::move(why)); }

ControllerRec* findController(Model& m, uint32_t adapter);
uint32_t controllerIndex(const Model& m, const ControllerRec& c);
DriveRec* findDrive(ControllerRec& c, uint32_t channel, uint32_t device);
LdRec* findLd(ControllerRec& c, uint32_t id);
EnclosureRec* findEnclosure(ControllerRec& c, uint32_t channel, uint32_t device);
EnclosureRec* findEnclosureByIndex(ControllerRec& c, uint32_t index);
TaskRec* findTask(ControllerRec& c, uint32_t id);

Ret resolveController(Model& m, uint32_t adapter, ControllerRec*& c);
Ret resolveDrive(Model& m, const Addr& a, ControllerRec*& c, DriveRec*& d);
Ret resolveLd(Model& m, const Addr& a, ControllerRec*& c, LdRec*& ld);
Ret resolveEnclosure(Model& m, const Addr& a, ControllerRec*& c, EnclosureRec*& e);

std::string driveName(const DriveRec& d);   // "drive 0:3"
std::string ldName(const LdRec& ld);        // "logical drive 1 (Data)"

// The logical drives whose members (or migration targets) use the drive.
std::vector<LdRec*> ldsUsingDrive(ControllerRec& c, const DriveRec& d);
bool hasRunningTask(const ControllerRec& c, uint32_t ldId, uint32_t channel, uint32_t device);
bool isRedundant(RaidLevel level);

}  // namespace storlib::sim

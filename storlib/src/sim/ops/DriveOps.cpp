// Operations on single hard drives.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Layout.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"

#include <storlib/Names.h>

namespace storlib::sim::ops {
namespace {

Ret notFree(const DriveRec& d, const char* what) {
    return refuse(RetStatus::InvalidState, driveName(d) + " is " + toString(d.hd.state) + ": cannot " + what);
}

// The drive holds no logical drive data and is no spare.
Ret requireUnconfigured(ControllerRec& c, const DriveRec& d, const char* what) {
    if (auto lds = ldsUsingDrive(c, d); !lds.empty())
        return refuse(RetStatus::InvalidState,
                      driveName(d) + " is a member of " + ldName(*lds.front()) + ": cannot " + what);
    if (d.hd.spareType != SpareType::None)
        return refuse(RetStatus::InvalidState, driveName(d) + " is a hot spare: cannot " + what);
    if (hasRunningTask(c, Addr::ANY, d.channel, d.device))
        return refuse(RetStatus::Busy, driveName(d) + " has a task running: cannot " + what);
    return Ret::success();
}

void setState(Model& m, ControllerRec& c, DriveRec& d, DriveState s, const std::string& why) {
    DriveState old = d.hd.state;
    if (old == s) return;
    d.hd.state = s;
    emit(m, c, EventType::DriveState, EventTarget::drive(d),
         driveName(d) + " is " + toString(s) + (why.empty() ? "" : " (" + why + ")"),
         static_cast<uint32_t>(s), static_cast<uint32_t>(old));
}

using DriveCheck = Ret (*)(ControllerRec&, DriveRec&);

// Resolves every drive of the collection and checks all before changing any.
Ret forEachDrive(Model& m, const AddrCollection& drives, DriveCheck check,
                 void (*apply)(Model&, ControllerRec&, DriveRec&)) {
    if (drives.empty()) return refuse(RetStatus::InvalidArgument, "no drive given");
    std::vector<std::pair<ControllerRec*, DriveRec*>> found;
    for (const Addr& a : drives) {
        ControllerRec* c = nullptr;
        DriveRec* d = nullptr;
        if (Ret r = resolveDrive(m, a, c, d); !r) return r;
        if (Ret r = check(*c, *d); !r) return r;
        found.emplace_back(c, d);
    }
    for (auto& [c, d] : found) apply(m, *c, *d);
    for (auto& [c, d] : found) reconcile(m, *c);
    return Ret::success();
}

}  // namespace

Ret initializeDrives(Model& m, const AddrCollection& drives) {
    return forEachDrive(m, drives,
        [](ControllerRec& c, DriveRec& d) {
            if (d.hd.state != DriveState::Ready && d.hd.state != DriveState::Raw && d.hd.state != DriveState::JBOD)
                return notFree(d, "initialize");
            return requireUnconfigured(c, d, "initialize");
        },
        [](Model& mm, ControllerRec& c, DriveRec& d) {
            setState(mm, c, d, DriveState::Ready, "initialized");
            emit(mm, c, EventType::ConfigChange, EventTarget::drive(d), driveName(d) + " initialized", 0, 0, 4);
        });
}

Ret uninitializeDrives(Model& m, const AddrCollection& drives) {
    return forEachDrive(m, drives,
        [](ControllerRec& c, DriveRec& d) {
            if (d.hd.state != DriveState::Ready && d.hd.state != DriveState::Raw) return notFree(d, "uninitialize");
            return requireUnconfigured(c, d, "uninitialize");
        },
        [](Model& mm, ControllerRec& c, DriveRec& d) {
            setState(mm, c, d, DriveState::Raw, "uninitialized");
            emit(mm, c, EventType::ConfigChange, EventTarget::drive(d), driveName(d) + " uninitialized", 0, 0, 4);
        });
}

Ret downDrive(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state == DriveState::Missing || d->hd.state == DriveState::Offline || d->hd.state == DriveState::Failed)
        return notFree(*d, "take it offline");
    if (d->hd.isProtected) return refuse(RetStatus::InvalidState, driveName(*d) + " is protected");
    d->hd.spareType = SpareType::None;
    d->hd.dedicatedTo.clear();
    setState(m, *c, *d, DriveState::Offline, "taken offline by request");
    reconcile(m, *c);
    return Ret::success();
}

Ret upDrive(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state != DriveState::Offline && d->hd.state != DriveState::Failed)
        return notFree(*d, "bring it online");
    setState(m, *c, *d, DriveState::Ready, "brought back by request");
    for (LdRec* ld : ldsUsingDrive(*c, *d)) {
        for (size_t i = 0; i < ld->members.size(); ++i) {
            ChunkRec& k = ld->members[i];
            if (k.channel != d->channel || k.device != d->device || k.state == ChunkState::Ok) continue;
            if (evaluateHealth(*ld) == LogicalDriveState::Failed) {
                k.state = ChunkState::Ok;  // the array was dead: its data is taken as it is
            } else {
                startRebuild(m, *c, *ld, i, *d);
            }
        }
    }
    reconcile(m, *c);
    return Ret::success();
}

Ret startDriveTask(Model& m, const Addr& a, TaskType type) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (type != TaskType::DriveVerify && type != TaskType::DriveClear)
        return refuse(RetStatus::InvalidArgument, std::string("task ") + toString(type) + " cannot run on a drive");
    if (hasRunningTask(*c, Addr::ANY, d->channel, d->device))
        return refuse(RetStatus::Busy, driveName(*d) + " has a task running");
    DriveState s = d->hd.state;
    bool usable = s == DriveState::Ready || s == DriveState::Raw || s == DriveState::Online ||
                  s == DriveState::HotSpare || s == DriveState::JBOD;
    if (!usable) return notFree(*d, "run a task");
    if (type == TaskType::DriveClear)
        if (Ret r = requireUnconfigured(*c, *d, "clear it"); !r) return r;
    startTask(m, *c, type, {Addr::ANY, d->channel, d->device}, static_cast<double>(d->hd.sizeMB),
              c->ad.defaultTaskPriority, "");
    return Ret::success();
}

Ret setDriveWriteCache(Model& m, const Addr& a, bool enable) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state == DriveState::Missing || d->hd.state == DriveState::Failed) return notFree(*d, "set its cache");
    d->hd.writeCacheEnabled = enable;
    emit(m, *c, EventType::DriveProperty, EventTarget::drive(*d),
         driveName(*d) + " write cache " + (enable ? "enabled" : "disabled"), 1, enable);
    return Ret::success();
}

Ret secureErase(Model& m, const Addr& a, const std::string& password) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (password.empty()) return refuse(RetStatus::InvalidArgument, "a secure erase needs a password");
    if (d->hd.state != DriveState::Ready && d->hd.state != DriveState::Raw) return notFree(*d, "erase it");
    if (Ret r = requireUnconfigured(*c, *d, "erase it"); !r) return r;
    if (!d->hd.ataSecuritySupported && d->dev.interfaceType == InterfaceType::SATA)
        return refuse(RetStatus::NotSupported, driveName(*d) + " does not support the ATA security feature set");
    startTask(m, *c, TaskType::SecureErase, {Addr::ANY, d->channel, d->device},
              static_cast<double>(d->hd.sizeMB), TaskPriority::High, "");
    return Ret::success();
}

Ret createJBOD(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state != DriveState::Ready && d->hd.state != DriveState::Raw) return notFree(*d, "make it a JBOD");
    if (Ret r = requireUnconfigured(*c, *d, "make it a JBOD"); !r) return r;
    uint32_t jbods = 0;
    for (const DriveRec& x : c->drives) jbods += x.hd.state == DriveState::JBOD;
    if (jbods >= c->ad.maxJBODs) return refuse(RetStatus::LimitReached, "the controller has its maximum of JBODs");
    setState(m, *c, *d, DriveState::JBOD, "JBOD created");
    emit(m, *c, EventType::ConfigChange, EventTarget::drive(*d), driveName(*d) + " is a JBOD", 0, 0, 4);
    return Ret::success();
}

Ret deleteJBOD(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state != DriveState::JBOD) return notFree(*d, "delete a JBOD");
    setState(m, *c, *d, DriveState::Ready, "JBOD deleted");
    emit(m, *c, EventType::ConfigChange, EventTarget::drive(*d), driveName(*d) + " is no longer a JBOD", 0, 0, 4);
    return Ret::success();
}

Ret locate(Model& m, const Addr& a, bool on) {
    if (a.getLogicalDriveID() != Addr::ANY) {
        ControllerRec* c = nullptr;
        LdRec* ld = nullptr;
        if (Ret r = resolveLd(m, a, c, ld); !r) return r;
        ld->ld.locateActive = on;
        for (ChunkRec& k : ld->members)
            if (DriveRec* d = findDrive(*c, k.channel, k.device)) d->hd.locateActive = on;
        emit(m, *c, EventType::Locate, EventTarget::ld(*ld), ldName(*ld) + (on ? " locate on" : " locate off"), on);
        return Ret::success();
    }
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state == DriveState::Missing) return notFree(*d, "blink it");
    d->hd.locateActive = on;
    emit(m, *c, EventType::Locate, EventTarget::drive(*d), driveName(*d) + (on ? " locate on" : " locate off"), on);
    return Ret::success();
}

Ret blinkEnclosure(Model& m, const Addr& a, bool on) {
    ControllerRec* c = nullptr;
    EnclosureRec* e = nullptr;
    if (Ret r = resolveEnclosure(m, a, c, e); !r) return r;
    e->enc.locateActive = on;
    emit(m, *c, EventType::Locate, {e->channel, e->device, Addr::ANY, Addr::ANY64},
         "enclosure " + std::to_string(e->enc.enclosureIndex) + (on ? " locate on" : " locate off"), on);
    return Ret::success();
}

Ret protectDrives(Model& m, uint32_t adapter, const AddrCollection& drives, bool all, bool protect) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    std::vector<DriveRec*> chosen;
    if (all) {
        for (DriveRec& d : c->drives) chosen.push_back(&d);
    } else {
        if (drives.empty()) return refuse(RetStatus::InvalidArgument, "no drive given");
        for (const Addr& a : drives) {
            if (a.getAdapterID() != adapter)
                return refuse(RetStatus::InvalidArgument, "drive " + a.toString() + " is on another controller");
            DriveRec* d = findDrive(*c, a.getChannelID(), a.getDeviceID());
            if (!d) return refuse(RetStatus::NotFound, "no drive " + a.toString());
            chosen.push_back(d);
        }
    }
    for (DriveRec* d : chosen) {
        d->hd.isProtected = protect;
        emit(m, *c, EventType::DriveProperty, EventTarget::drive(*d),
             driveName(*d) + (protect ? " protected" : " unprotected"), 2, protect);
    }
    return Ret::success();
}

Ret fastTierDrive(Model& m, const Addr& a, bool add) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (!c->ad.supportsFastTier) return refuse(RetStatus::NotSupported, "the controller has no fast tier");
    if (!add) {
        if (!d->hd.fastTierAssigned) return refuse(RetStatus::InvalidState, driveName(*d) + " is not in the fast tier pool");
        if (c->ad.fastTierDirty) return refuse(RetStatus::Busy, "the fast tier holds dirty data; flush it first");
    } else {
        if (d->hd.fastTierAssigned) return refuse(RetStatus::InvalidState, driveName(*d) + " is already in the fast tier pool");
        if (d->hd.mediaType != MediaType::SSD || !d->hd.fastTierCapable)
            return refuse(RetStatus::NotSupported, driveName(*d) + " is not a fast tier capable SSD");
        if (d->hd.state != DriveState::Ready) return notFree(*d, "add it to the fast tier pool");
        if (Ret r = requireUnconfigured(*c, *d, "add it to the fast tier pool"); !r) return r;
        uint32_t n = 0;
        for (const DriveRec& x : c->drives) n += x.hd.fastTierAssigned;
        if (n >= c->ad.maxFastTierDrives) return refuse(RetStatus::LimitReached, "the fast tier pool is full");
    }
    d->hd.fastTierAssigned = add;
    emit(m, *c, EventType::FastTier, EventTarget::drive(*d),
         driveName(*d) + (add ? " added to" : " removed from") + " the fast tier pool", add ? 1 : 2);
    return Ret::success();
}

}  // namespace storlib::sim::ops

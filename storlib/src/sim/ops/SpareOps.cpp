// Global and dedicated hot spares.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"

#include <storlib/Names.h>

#include <algorithm>

namespace storlib::sim::ops {
namespace {

Ret checkCandidate(ControllerRec& c, const DriveRec& d) {
    if (d.hd.state != DriveState::Ready)
        return refuse(RetStatus::InvalidState, driveName(d) + " is " + toString(d.hd.state) + ": cannot make it a spare");
    if (auto lds = ldsUsingDrive(c, d); !lds.empty())
        return refuse(RetStatus::InvalidState, driveName(d) + " is a member of " + ldName(*lds.front()));
    if (d.hd.fastTierAssigned) return refuse(RetStatus::InvalidState, driveName(d) + " belongs to the fast tier pool");
    if (hasRunningTask(c, Addr::ANY, d.channel, d.device))
        return refuse(RetStatus::Busy, driveName(d) + " has a task running");
    return Ret::success();
}

}  // namespace

Ret assignGlobalSpare(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (Ret r = checkCandidate(*c, *d); !r) return r;
    uint32_t n = 0;
    for (const DriveRec& x : c->drives) n += x.hd.spareType == SpareType::Global;
    if (n >= c->ad.maxGlobalSpares) return refuse(RetStatus::LimitReached, "the controller has its maximum of global spares");
    d->hd.state = DriveState::HotSpare;
    d->hd.spareType = SpareType::Global;
    emit(m, *c, EventType::SpareChange, EventTarget::drive(*d), driveName(*d) + " is a global spare", 1);
    reconcile(m, *c);
    return Ret::success();
}

Ret assignDedicatedSpare(Model& m, const Addr& a, const Addr& la) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    LdRec* ld = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    ControllerRec* lc = nullptr;
    if (Ret r = resolveLd(m, la, lc, ld); !r) return r;
    if (lc != c) return refuse(RetStatus::InvalidArgument, "the drive is on another controller");
    if (!isRedundant(ld->ld.raidLevel))
        return refuse(RetStatus::NotSupported, std::string(toString(ld->ld.raidLevel)) + " has no redundancy: a spare cannot protect it");
    auto& to = d->hd.dedicatedTo;
    if (std::find(to.begin(), to.end(), ld->id) != to.end())
        return refuse(RetStatus::InvalidState, driveName(*d) + " already protects " + ldName(*ld));
    if (d->hd.spareType == SpareType::Global) return refuse(RetStatus::InvalidState, driveName(*d) + " is a global spare");
    if (d->hd.spareType == SpareType::None)
        if (Ret r = checkCandidate(*c, *d); !r) return r;
    uint64_t chunk = ld->members.empty() ? 0 : ld->members.front().sizeMB;
    if (d->hd.sizeMB < chunk)
        return refuse(RetStatus::NoSpace, driveName(*d) + " is too small to protect " + ldName(*ld));
    uint32_t n = 0;
    for (const DriveRec& x : c->drives) n += std::count(x.hd.dedicatedTo.begin(), x.hd.dedicatedTo.end(), ld->id) > 0;
    if (n >= c->ad.maxDedicatedSparesPerLD)
        return refuse(RetStatus::LimitReached, ldName(*ld) + " has its maximum of dedicated spares");
    d->hd.state = DriveState::HotSpare;
    d->hd.spareType = SpareType::Dedicated;
    to.push_back(ld->id);
    emit(m, *c, EventType::SpareChange, EventTarget::drive(*d), driveName(*d) + " is a dedicated spare of " + ldName(*ld), 2, ld->id);
    reconcile(m, *c);
    return Ret::success();
}

Ret unassignSpare(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state != DriveState::HotSpare || d->hd.spareType == SpareType::None)
        return refuse(RetStatus::InvalidState, driveName(*d) + " is not a hot spare");
    d->hd.state = DriveState::Ready;
    d->hd.spareType = SpareType::None;
    d->hd.dedicatedTo.clear();
    emit(m, *c, EventType::SpareChange, EventTarget::drive(*d), driveName(*d) + " is no longer a spare", 3);
    reconcile(m, *c);
    return Ret::success();
}

}  // namespace storlib::sim::ops

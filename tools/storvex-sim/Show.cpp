#include "Show.h"

#include <storlib/Battery.h>
#include <storlib/Channel.h>
#include <storlib/Chunk.h>
#include <storlib/Enclosure.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Names.h>
#include <storlib/Progress.h>
#include <storlib/SESElement.h>

#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <string>

namespace storvexsim {
namespace {

using namespace storlib;

std::string fmt(const char* f, ...) __attribute__((format(printf, 1, 2)));
std::string fmt(const char* f, ...) {
    char buf[512];
    va_list ap;
    va_start(ap, f);
    vsnprintf(buf, sizeof buf, f, ap);
    va_end(ap);
    return buf;
}

std::string gb(uint64_t mb) { return fmt("%.1f GB", static_cast<double>(mb) * 1048576.0 / 1e9); }

std::string when(int64_t t) {
    time_t tt = static_cast<time_t>(t);
    struct tm tmv{};
    gmtime_r(&tt, &tmv);
    char buf[32];
    strftime(buf, sizeof buf, "%Y-%m-%d %H:%M:%S", &tmv);
    return buf;
}

void showDrives(const Adapter& a, std::ostream& out) {
    out << "  Drives:\n";
    for (const RaidObject* o : FilterCollection(a, "HardDrive")) {
        const auto* d = o->as<HardDrive>();
        std::string role = d->getSpareType() == SpareType::None ? "" : std::string(" ") + toString(d->getSpareType()) + " spare";
        std::string slot = d->getEnclosureIndex() >= 0 ? fmt(" encl %d slot %d", d->getEnclosureIndex(), d->getSlot()) : "";
        out << fmt("    %u:%-3u %-10s %-4s %-3s %10s %-8s %-14s %-14s fw %-8s%s%s%s\n", d->getChannelID(),
                   d->getDeviceID(), toString(d->getState()), toString(d->getInterfaceType()), toString(d->getMediaType()),
                   gb(d->getSizeMB()).c_str(), d->getVendor().c_str(), d->getProduct().c_str(),
                   d->getSerialNumber().c_str(), d->getFirmwareRevision().c_str(), role.c_str(), slot.c_str(),
                   d->isLocateActive() ? " [locate]" : "");
    }
}

void showLogicalDrives(const Adapter& a, std::ostream& out) {
    out << "  Logical drives:\n";
    for (const RaidObject* o : FilterCollection(a, "LogicalDrive")) {
        const auto* l = o->as<LogicalDrive>();
        std::string members;
        for (const RaidObject* k : FilterCollection(*l, "Chunk")) {
            const auto* c = k->as<Chunk>();
            members += fmt(" %u:%u%s", c->getChannelID(), c->getDeviceID(),
                           c->getState() == ChunkState::Ok ? "" : (std::string("(") + toString(c->getState()) + ")").c_str());
        }
        std::string state = toString(l->getState());
        if (l->getSubstate() != l->getState() && l->getSubstate() != LogicalDriveState::Optimal)
            state += std::string("/") + toString(l->getSubstate());
        out << fmt("    %-3u %-12s %-7s %-19s %11s stripe %uK%s members:%s\n", l->getLogicalDriveID(),
                   l->getName().c_str(), toString(l->getRaidLevel()), state.c_str(),
                   gb(l->getDataSizeMB()).c_str(), l->getStripeSizeKB(), l->isHotSpareProtected() ? " protected" : "",
                   members.c_str());
    }
}

void showEnclosures(const Adapter& a, std::ostream& out) {
    for (const RaidObject* o : FilterCollection(a, "SES2EnclosureDevice")) {
        const auto* e = o->as<SES2EnclosureDevice>();
        out << fmt("  Enclosure %u at %u:%u %s %s, %u slots, status %s\n", e->getEnclosureIndex(), e->getChannelID(),
                   e->getDeviceID(), e->getVendor().c_str(), e->getProduct().c_str(), e->getNumSlots(),
                   toString(e->getStatus()));
        for (const RaidObject* f : FilterCollection(*e, "Fan"))
            out << fmt("    fan %u: %s, %u rpm\n", f->as<EnclosureFan>()->getElementIndex(),
                       toString(f->as<EnclosureFan>()->getStatus()), f->as<EnclosureFan>()->getSpeedRPM());
        for (const RaidObject* p : FilterCollection(*e, "PowerSupply"))
            out << fmt("    power supply %u: %s\n", p->as<SESElement>()->getElementIndex(),
                       toString(p->as<SESElement>()->getStatus()));
        for (const RaidObject* t : FilterCollection(*e, "TemperatureSensor")) {
            const auto* s = t->as<EnclosureTemperatureSensor>();
            out << fmt("    sensor %u: %s, %d C\n", s->getElementIndex(), toString(s->getStatus()), s->getTemperature());
        }
    }
}

void showRest(const Adapter& a, std::ostream& out) {
    for (const RaidObject* o : FilterCollection(a, "Battery")) {
        const auto* b = o->as<Battery>();
        out << fmt("  %s: %s\n", b->isSuperCap() ? "Super-capacitor" : "Battery", toString(b->getStatus()));
    }
    for (const RaidObject* o : FilterCollection(a, "Progress")) {
        const auto* p = o->as<Progress>();
        std::string target = p->getLogicalDriveID() != Addr::ANY ? fmt("logical drive %u", p->getLogicalDriveID()) : "";
        if (p->getChannelID() != Addr::ANY)
            target += fmt("%sdrive %u:%u", target.empty() ? "" : ", ", p->getChannelID(), p->getDeviceID());
        out << fmt("  Task %u:T%u %-10s %-9s %3u%% %s, %llu s left\n", a.getControllerID(), p->getTaskID(),
                   toString(p->getTaskType()), toString(p->getTaskState()), p->getPercentComplete(), target.c_str(),
                   static_cast<unsigned long long>(p->getRemainingSeconds()));
    }
}

}  // namespace

void showSystem(const SystemConfig& config, std::ostream& out, int onlyController) {
    out << "Controller clock: " << when(config.getTime()) << " UTC\n";
    if (config.getAdapterCount() == 0) out << "No controllers.\n";
    for (size_t i = 0; i < config.getAdapterCount(); ++i) {
        if (onlyController >= 0 && static_cast<size_t>(onlyController) != i) continue;
        const Adapter& a = *config.getAdapter(i);
        out << fmt("Controller %zu: %s serial %s fw %s, status %u, alarm %s%s, temperature %d C\n", i, a.getModel().c_str(),
                   a.getSerialNumber().c_str(), a.getFirmwareVersion().c_str(), a.getAdapterStatus(),
                   toString(a.getAlarmState()), a.isAlarmSounding() ? " (sounding)" : "", a.getTemperature());
        showLogicalDrives(a, out);
        showDrives(a, out);
        showEnclosures(a, out);
        showRest(a, out);
    }
}

void showEvents(const StorEventCollection& events, std::ostream& out) {
    for (const StorEvent& e : events)
        out << fmt("  #%-5llu %s type 0x%08x details %u/%u/%u  %s\n", static_cast<unsigned long long>(e.getSequence()),
                   when(e.getTime()).c_str(), e.getType(), e.getDetail(0), e.getDetail(1), e.getDetail(2),
                   e.getDescription().c_str());
}

}  // namespace storvexsim

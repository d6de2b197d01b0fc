// Firmware images for the controller and for drives.
//
// An image file starts with one line:  STORVEX-FW <kind> <version>
// where kind is "controller", "sas-drive" or "sata-drive".
#include "sim/Events.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"

#include <storlib/Names.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <sstream>

namespace storlib::sim::ops {
namespace {

constexpr size_t kHeaderMax = 256;

Ret readHeader(const std::string& path, std::string& kind, std::string& version) {
    if (path.empty() || path[0] != '/') return refuse(RetStatus::InvalidArgument, "the image path must be absolute");
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (fd < 0) return refuse(RetStatus::NotFound, "cannot open image " + path + ": " + std::strerror(errno));
    struct stat st{};
    char buf[kHeaderMax + 1] = {};
    ssize_t n = -1;
    if (fstat(fd, &st) == 0 && S_ISREG(st.st_mode)) n = ::read(fd, buf, kHeaderMax);
    ::close(fd);
    if (n <= 0) return refuse(RetStatus::InvalidArgument, "image " + path + " is not a readable file");
    std::istringstream line(std::string(buf, static_cast<size_t>(n)).substr(0, std::strcspn(buf, "\n")));
    std::string magic;
    line >> magic >> kind >> version;
    if (magic != "STORVEX-FW" || kind.empty() || version.empty() || version.size() > 32)
        return refuse(RetStatus::InvalidArgument, "image " + path + " is not a firmware image for this controller");
    return Ret::success();
}

}  // namespace

Ret upgradeFirmware(Model& m, uint32_t adapter, const std::string& image) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    std::string kind, version;
    if (Ret r = readHeader(image, kind, version); !r) return r;
    if (kind != "controller") return refuse(RetStatus::InvalidArgument, "image is for " + kind + ", not a controller");
    for (const TaskRec& t : c->tasks)
        if (t.p.taskState == TaskState::Running && t.p.taskType == TaskType::Migrate)
            return refuse(RetStatus::Busy, "a reconfiguration is running");
    c->ad.firmwareVersion = version;
    ++c->ad.firmwareBuild;
    emit(m, *c, EventType::Firmware, EventTarget::none(), "controller firmware updated to " + version, 1,
         c->ad.firmwareBuild);
    return Ret::success();
}

Ret flashDrives(Model& m, const AddrCollection& drives, const std::string& image, InterfaceType iface) {
    if (drives.empty()) return refuse(RetStatus::InvalidArgument, "no drive given");
    std::string kind, version;
    if (Ret r = readHeader(image, kind, version); !r) return r;
    std::string want = iface == InterfaceType::SATA ? "sata-drive" : "sas-drive";
    if (kind != want) return refuse(RetStatus::InvalidArgument, "image is for " + kind + ", not " + want);
    std::vector<std::pair<ControllerRec*, DriveRec*>> found;
    for (const Addr& a : drives) {
        ControllerRec* c = nullptr;
        DriveRec* d = nullptr;
        if (Ret r = resolveDrive(m, a, c, d); !r) return r;
        if (d->dev.interfaceType != iface)
            return refuse(RetStatus::InvalidArgument, driveName(*d) + " is a " + toString(d->dev.interfaceType) + " drive");
        if (d->hd.state == DriveState::Missing || d->hd.state == DriveState::Failed)
            return refuse(RetStatus::InvalidState, driveName(*d) + " is " + toString(d->hd.state));
        found.emplace_back(c, d);
    }
    for (auto& [c, d] : found) {
        d->dev.firmwareRevision = version;
        emit(m, *c, EventType::Firmware, EventTarget::drive(*d), driveName(*d) + " firmware updated to " + version, 2);
    }
    return Ret::success();
}

}  // namespace storlib::sim::ops

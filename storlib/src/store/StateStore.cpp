#include "store/StateStore.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace storlib::store {
namespace {

constexpr size_t kMaxStateBytes = 512u << 20;

Ret ioError(const std::string& what, const std::string& path) {
    return Ret(RetStatus::StateError, what + " " + path + ": " + std::strerror(errno));
}

bool writeAll(int fd, const std::string& text) {
    size_t done = 0;
    while (done < text.size()) {
        ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<size_t>(n);
    }
    return true;
}

}  // namespace

StateStore::~StateStore() { close(); }

Ret StateStore::open(const std::string& dir, const std::string& stem) {
    close();
    if (stem.empty() || stem.find('/') != std::string::npos || stem[0] == '.')
        return Ret(RetStatus::InvalidArgument, "bad state file name " + stem);
    dir_ = dir;
    path_ = dir + "/" + stem + ".state.json";
    lockPath_ = dir + "/" + stem + ".lock";
    return openLockFile();
}

Ret StateStore::openLockFile() {
    lockFd_ = ::open(lockPath_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (lockFd_ < 0) return ioError("cannot open lock file", lockPath_);
    pid_ = getpid();
    return Ret::success();
}

void StateStore::close() {
    if (lockFd_ >= 0) ::close(lockFd_);
    lockFd_ = -1;
}

Ret StateStore::lock(bool exclusive) {
    if (lockFd_ < 0) return Ret(RetStatus::NotOpen, "the state is not open");
    if (pid_ != getpid()) {  // a forked child needs a lock of its own
        ::close(lockFd_);
        if (Ret r = openLockFile(); !r) return r;
    }
    while (flock(lockFd_, exclusive ? LOCK_EX : LOCK_SH) != 0)
        if (errno != EINTR) return ioError("cannot lock", lockPath_);
    return Ret::success();
}

void StateStore::unlock() {
    if (lockFd_ >= 0) flock(lockFd_, LOCK_UN);
}

bool StateStore::stamp(FileStamp& out) const {
    struct stat st{};
    if (lstat(path_.c_str(), &st) != 0) return false;
    out = {static_cast<uint64_t>(st.st_dev), static_cast<uint64_t>(st.st_ino), static_cast<uint64_t>(st.st_size),
           static_cast<int64_t>(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec};
    return true;
}

Ret StateStore::read(std::string& text) const {
    int fd = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (fd < 0) return ioError("cannot open state file", path_);
    struct stat st{};
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || static_cast<size_t>(st.st_size) > kMaxStateBytes) {
        ::close(fd);
        return Ret(RetStatus::StateError, "state file " + path_ + " is not a regular file of sane size");
    }
    text.assign(static_cast<size_t>(st.st_size), '\0');
    size_t done = 0;
    while (done < text.size()) {
        ssize_t n = ::read(fd, &text[done], text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        done += static_cast<size_t>(n);
    }
    ::close(fd);
    text.resize(done);
    return Ret::success();
}

Ret StateStore::write(const std::string& text) {
    std::string tmp = path_ + ".tmp." + std::to_string(getpid());
    int fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0) return ioError("cannot create", tmp);
    bool ok = writeAll(fd, text) && fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (!ok || rename(tmp.c_str(), path_.c_str()) != 0) {
        Ret r = ioError("cannot write state file", path_);
        unlink(tmp.c_str());
        return r;
    }
    return Ret::success();
}

Ret StateStore::setAside() {
    std::string aside = path_ + ".broken-" + std::to_string(time(nullptr));
    if (rename(path_.c_str(), aside.c_str()) != 0 && errno != ENOENT) return ioError("cannot move", path_);
    return Ret::success();
}

}  // namespace storlib::store

// The persistent controller state: one JSON file per system, guarded by an
// advisory lock file, replaced atomically (write to a temporary, rename).
#pragma once
#include <storlib/Ret.h>

#include <sys/types.h>

#include <cstdint>
#include <string>

namespace storlib::store {

struct FileStamp {
    uint64_t dev = 0, ino = 0, size = 0;
    int64_t mtimeNs = 0;
    bool operator==(const FileStamp& o) const {
        return dev == o.dev && ino == o.ino && size == o.size && mtimeNs == o.mtimeNs;
    }
    bool operator!=(const FileStamp& o) const { return !(*this == o); }
};

// Checks (and creates, mode 0700) the state directory: an absolute path
// without "..", a real directory owned by this user or root, not writable by others.
Ret prepareStateDir(const std::string& dir);
std::string defaultStateDir();
// "<name>-<hash>": a file name for the state of the system described by
// `text`, read from `systemFile` ("" for the built-in system).
std::string stateFileStem(const std::string& systemFile, const std::string& text);

class StateStore {
public:
    ~StateStore();
    Ret open(const std::string& dir, const std::string& stem);
    void close();
    bool isOpen() const { return lockFd_ >= 0; }

    Ret lock(bool exclusive);
    void unlock();

    // False when there is no state file yet.
    bool stamp(FileStamp& out) const;
    Ret read(std::string& text) const;
    Ret write(const std::string& text);
    // Renames an unreadable state file out of the way, never deletes it.
    Ret setAside();
    const std::string& path() const { return path_; }

private:
    Ret openLockFile();
    std::string dir_, path_, lockPath_;
    int lockFd_ = -1;
    pid_t pid_ = 0;
};

}  // namespace storlib::store

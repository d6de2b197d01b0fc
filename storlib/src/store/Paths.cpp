// Where state files live and what they are called.
#include "store/StateStore.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace storlib::store {
namespace {

bool hasDotDot(const std::string& p) {
    size_t pos = 0;
    while (pos <= p.size()) {
        size_t next = p.find('/', pos);
        if (next == std::string::npos) next = p.size();
        if (p.compare(pos, next - pos, "..") == 0 && next - pos == 2) return true;
        pos = next + 1;
    }
    return false;
}

Ret makeDirs(const std::string& dir) {
    for (size_t pos = 1; pos <= dir.size(); ++pos) {
        if (pos != dir.size() && dir[pos] != '/') continue;
        std::string part = dir.substr(0, pos);
        if (mkdir(part.c_str(), 0700) != 0 && errno != EEXIST)
            return Ret(RetStatus::StateError, "cannot create " + part + ": " + std::strerror(errno));
    }
    return Ret::success();
}

}  // namespace

Ret prepareStateDir(const std::string& dir) {
    if (dir.empty() || dir[0] != '/') return Ret(RetStatus::InvalidArgument, "state directory must be absolute: " + dir);
    if (hasDotDot(dir)) return Ret(RetStatus::InvalidArgument, "state directory must not contain '..': " + dir);
    if (Ret r = makeDirs(dir); !r) return r;
    struct stat st{};
    if (lstat(dir.c_str(), &st) != 0 || !S_ISDIR(st.st_mode))
        return Ret(RetStatus::StateError, "state directory " + dir + " is not a directory");
    if (st.st_uid != geteuid() && st.st_uid != 0)
        return Ret(RetStatus::StateError, "state directory " + dir + " belongs to another user");
    if ((st.st_mode & S_IWOTH) && !(st.st_mode & S_ISVTX))
        return Ret(RetStatus::StateError, "state directory " + dir + " is writable by everyone");
    return Ret::success();
}

std::string defaultStateDir() { return "/tmp/storvex-" + std::to_string(geteuid()); }

std::string stateFileStem(const std::string& systemFile, const std::string& text) {
    std::string base = systemFile.empty() ? "demo" : systemFile.substr(systemFile.find_last_of('/') + 1);
    if (base.size() > 5 && base.compare(base.size() - 5, 5, ".json") == 0) base.resize(base.size() - 5);
    std::string name;
    for (char ch : base.substr(0, 40))
        name += (isalnum(static_cast<unsigned char>(ch)) || ch == '-' || ch == '_') ? ch : '_';
    if (name.empty() || name[0] == '_') name = "system" + name;
    uint64_t h = 1469598103934665603ull;
    for (char ch : text) h = (h ^ static_cast<uint8_t>(ch)) * 1099511628211ull;
    char hash[17];
    std::snprintf(hash, sizeof hash, "%016llx", static_cast<unsigned long long>(h));
    return name + "-" + std::string(hash, 12);
}

}  // namespace storlib::store

#include "platform/TkzPaths.h"

#include <mutex>

namespace vex::platform {
namespace {

constexpr const char *kDefaultLogDirectory = "/var/log";
constexpr const char *kDefaultRefreshIntervalFile = "/usr/Quillon/config/vexProvider.conf";
constexpr const char *kDefaultProductVersionFile = "/etc/TKZ-Lorvan/tidalDS.conf";

struct Paths {
    std::mutex mutex;
    std::string logDirectory = kDefaultLogDirectory;
    std::string refreshIntervalFile = kDefaultRefreshIntervalFile;
    std::string productVersionFile = kDefaultProductVersionFile;
};

// Never destroyed: static destructors of other parts of the provider may
// still log while the library is being unloaded.
Paths &paths() {
    static Paths *const instance = new Paths;
    return *instance;
}

std::string get(std::string Paths::*field) {
    Paths &p = paths();
    std::lock_guard<std::mutex> lock(p.mutex);
    return p.*field;
}

void set(std::string Paths::*field, const std::string &value) {
    Paths &p = paths();
    std::lock_guard<std::mutex> lock(p.mutex);
    p.*field = value;
}

}  // namespace

std::string logDirectory() { return get(&Paths::logDirectory); }
std::string refreshIntervalFile() { return get(&Paths::refreshIntervalFile); }
std::string productVersionFile() { return get(&Paths::productVersionFile); }

void setLogDirectory(const std::string &directory) { set(&Paths::logDirectory, directory); }
void setRefreshIntervalFile(const std::string &path) { set(&Paths::refreshIntervalFile, path); }
void setProductVersionFile(const std::string &path) { set(&Paths::productVersionFile, path); }

void restoreDefaultPaths() {
    setLogDirectory(kDefaultLogDirectory);
    setRefreshIntervalFile(kDefaultRefreshIntervalFile);
    setProductVersionFile(kDefaultProductVersionFile);
}

}  // namespace vex::platform

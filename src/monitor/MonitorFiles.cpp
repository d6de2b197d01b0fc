#include "monitor/MonitorFiles.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace vex::monitor {

std::atomic<unsigned int> NRMDebugFlag{0};

namespace {

std::mutex& logMutex() {
    static std::mutex* const mutex = new std::mutex;  // outlives static destructors
    return *mutex;
}

std::string& debugLogPath() {
    static std::string* const path = new std::string;
    return *path;
}

std::string withSlash(std::string directory) {
    if (directory.empty() || directory.back() != '/') {
        directory += '/';
    }
    return directory;
}

std::string loadedFromDirectory() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&loadedFromDirectory), &info) == 0 || info.dli_fname == nullptr) {
        return "./";
    }
    std::string file(info.dli_fname);
    const std::string::size_type slash = file.rfind('/');
    return slash == std::string::npos ? std::string("./") : file.substr(0, slash + 1);
}

}  // namespace

std::string monitorDirectory() {
    const char* configured = std::getenv("VEX_NRM_DIR");
    return withSlash(configured != nullptr && *configured != '\0' ? configured : "/var/log/");
}

std::string installationDirectory() {
    const char* installed = std::getenv("tidalDS");
    if (installed != nullptr && *installed != '\0') {
        return withSlash(std::string(installed) + "/conf");
    }
    return loadedFromDirectory();
}

// With tidalDS set its directory is the only place (a missing catalogue is
// created there, empty); otherwise next to the provider library, then where
// the package installs it; "" when neither has one.
std::string catalogueFile() {
    static constexpr const char* kName = "RaidNLS.properties";
    const char* installed = std::getenv("tidalDS");
    if (installed != nullptr && *installed != '\0') {
        return installationDirectory() + kName;
    }
    for (const std::string& directory : {loadedFromDirectory(), std::string(VEX_NLS_INSTALL_DIR)}) {
        const std::string path = withSlash(directory) + kName;
        if (access(path.c_str(), R_OK) == 0) {
            return path;
        }
    }
    return {};
}

void appendLogLine(const std::string& path, const std::string& line) {
    if (path.empty()) {
        return;
    }
    std::lock_guard<std::mutex> lock(logMutex());
    struct stat info {};
    if (stat(path.c_str(), &info) == 0 && static_cast<unsigned long long>(info.st_size) > kMaxMonitorLogBytes) {
        return;
    }
    std::FILE* file = std::fopen(path.c_str(), "a");
    if (file == nullptr) {
        return;
    }
    std::fputs(line.c_str(), file);
    if (line.empty() || line.back() != '\n') {
        std::fputc('\n', file);
    }
    std::fclose(file);
}

void setDebugLogPath(const std::string& path) {
    std::lock_guard<std::mutex> lock(logMutex());
    debugLogPath() = path;
}

void nrmDebug(unsigned int bits, const char* format, ...) {
    if ((NRMDebugFlag.load() & bits) == 0) {
        return;
    }
    char line[1024];
    va_list args;
    va_start(args, format);
    std::vsnprintf(line, sizeof line, format, args);
    va_end(args);
    std::string path;
    {
        std::lock_guard<std::mutex> lock(logMutex());
        path = debugLogPath();
    }
    appendLogLine(path, line);
}

void nrmTrace(const char* text) {
    if (NRMDebugFlag.load() > NRM_DEBUG_TRACE_ABOVE) {
        nrmDebug(~0U, "%s", text);
    }
}

bool replaceFile(const std::string& path, const std::string& text) {
    const std::string temporary = path + ".tmp." + std::to_string(getpid());
    std::FILE* file = std::fopen(temporary.c_str(), "w");
    if (file == nullptr) {
        return false;
    }
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    const bool closed = std::fclose(file) == 0;
    if (!written || !closed || std::rename(temporary.c_str(), path.c_str()) != 0) {
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

bool readSmallFile(const std::string& path, std::size_t maxBytes, std::string& text) {
    text.clear();
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return false;
    }
    char buffer[65536];
    std::size_t got = 0;
    bool fits = true;
    while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
        if (text.size() + got > maxBytes) {
            fits = false;
            break;
        }
        text.append(buffer, got);
    }
    std::fclose(file);
    return fits;
}

}  // namespace vex::monitor

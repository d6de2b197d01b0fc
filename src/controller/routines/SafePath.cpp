#include "controller/routines/SafePath.h"

#include <sys/stat.h>

namespace vex::cim::fwf::routine {

namespace {

constexpr std::size_t kMaxName = 255;
constexpr std::size_t kMaxPath = 4095;

bool hasControl(const std::string& text) {
    for (char c : text) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool isPlainFileName(const std::string& name) {
    return !name.empty() && name.size() <= kMaxName && name.find('/') == std::string::npos && !hasControl(name) &&
           name != "." && name != "..";
}

bool isReadableAbsoluteFile(const std::string& path) {
    if (path.empty() || path.size() > kMaxPath || path[0] != '/' || hasControl(path)) {
        return false;
    }
    std::size_t start = 1;
    while (start <= path.size()) {
        std::size_t end = path.find('/', start);
        if (end == std::string::npos) {
            end = path.size();
        }
        const std::string part = path.substr(start, end - start);
        if (part == "." || part == "..") {
            return false;
        }
        start = end + 1;
    }
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

}  // namespace vex::cim::fwf::routine

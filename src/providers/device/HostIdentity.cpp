#include "providers/device/HostIdentity.h"

#include <fstream>

#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

constexpr const char* kDmiDirectory = "/sys/class/dmi/id/";

std::string trimmed(std::string text) {
    const std::size_t end = text.find_last_not_of(" \t\r\n");
    text.erase(end == std::string::npos ? 0 : end + 1);
    return text;
}

}  // namespace

std::string hostName() {
    char buffer[256] = {};
    if (TkzGetHostName(buffer, sizeof buffer) != 0) {
        return std::string();
    }
    return buffer;
}

std::string operatingSystemDescription() {
    char buffer[512] = {};
    TkzGetOSInfo(buffer, sizeof buffer);  // a cut text is still a description
    return trimmed(buffer);
}

std::string platformField(const std::string& field) {
    std::ifstream file(kDmiDirectory + field);
    std::string line;
    if (!file || !std::getline(file, line)) {
        return std::string();
    }
    return trimmed(line);
}

}  // namespace vex::cim::fwf

#include "controller/CimNames.h"

#include <cstdarg>
#include <cstdio>

namespace vex::cim::fwf::fsamap {

std::string formatText(const char* format, ...) {
    char buffer[256];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    return buffer;
}

std::string controllerSystemName(int controller) {
    return formatText("vexController_%d", controller);
}

std::string driveDeviceId(int controller, int channel, int device) {
    return formatText("%d_%d_%d", controller, channel, device);
}

std::string logicalDriveId(int controller, int logicalDrive) {
    return formatText("%d_%d", controller, logicalDrive);
}

std::string enclosureSystemName(int controller, std::uint64_t enclosureId) {
    return formatText("%d_%llu", controller, static_cast<unsigned long long>(enclosureId));
}

bool parseDriveDeviceId(const std::string& text, int& controller, int& channel, int& device) {
    return std::sscanf(text.c_str(), "%d_%d_%d", &controller, &channel, &device) == 3;
}

bool parseLogicalDriveId(const std::string& text, int& controller, int& logicalDrive) {
    return std::sscanf(text.c_str(), "%d_%d", &controller, &logicalDrive) == 2;
}

bool parseControllerSystemName(const std::string& text, int& controller) {
    return std::sscanf(text.c_str(), "vexController_%d", &controller) == 1;
}

}  // namespace vex::cim::fwf::fsamap

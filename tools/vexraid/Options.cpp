#include "Options.h"

#include <unistd.h>

#include <climits>
#include <filesystem>

namespace vexraid {

namespace {

constexpr const char* kLibrary = "libvexRAIDProvider15.so";

std::string programDirectory() {
    char buffer[PATH_MAX] = {};
    const ssize_t n = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (n <= 0) return ".";
    return std::filesystem::path(std::string(buffer, static_cast<std::size_t>(n))).parent_path().string();
}

// The provider directory of the prefix vexraid is installed under
// (<prefix>/bin/vexraid): relative to the prefix unless configured absolute.
std::string installedProvider() {
    const std::filesystem::path dir(VEXRAID_PROVIDER_DIR);
    const std::filesystem::path prefix = std::filesystem::path(programDirectory()).parent_path();
    return ((dir.is_absolute() ? dir : prefix / dir) / kLibrary).lexically_normal().string();
}

}  // namespace

std::string defaultProviderPath() {
    const std::string candidates[] = {programDirectory() + "/" + kLibrary, installedProvider(), VEXRAID_BUILT_PROVIDER};
    for (const std::string& candidate : candidates) {
        std::error_code error;
        if (std::filesystem::exists(candidate, error)) return candidate;
    }
    return installedProvider();
}

}  // namespace vexraid

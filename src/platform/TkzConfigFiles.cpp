/* The two small configuration files: refresh interval and product version. */
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/Tkz.h"
#include "platform/TkzPaths.h"
#include "platform/TkzText.h"

namespace {

constexpr size_t kLineLength = 512;  // longest first line that is read

// Reads at most kLineLength characters of the file's first line into line
// (kLineLength + 1 bytes). False when the file cannot be opened; an empty
// file gives an empty line.
bool readFirstLine(const std::string &path, char *line) {
    std::FILE *file = std::fopen(path.c_str(), "r");
    if (file == nullptr) {
        return false;
    }
    if (std::fgets(line, static_cast<int>(kLineLength + 1), file) == nullptr) {
        line[0] = '\0';
    }
    std::fclose(file);
    return true;
}

bool readFirstLine(std::string (*where)(), char *line) {
    try {
        return readFirstLine(where(), line);
    } catch (...) {
        return false;
    }
}

}  // namespace

// The key before the "=" is not looked at: "anything=30" gives 30.
extern "C" int TkzGetRefreshInterval(int *interval) {
    if (interval == nullptr) {
        return 1;
    }
    *interval = 0;
    char line[kLineLength + 1];
    if (!readFirstLine(vex::platform::refreshIntervalFile, line)) {
        return 1;
    }
    const char *equals = std::strchr(line, '=');
    if (equals != nullptr) {
        *interval = std::atoi(equals + 1);
    }
    return 0;
}

// The first line without its line end; 1 when the file cannot be read.
extern "C" int TkzGetProductVersion(char *buffer, size_t size) {
    if (buffer == nullptr || size == 0) {
        return 1;
    }
    buffer[0] = '\0';
    char line[kLineLength + 1];
    if (!readFirstLine(vex::platform::productVersionFile, line)) {
        return 1;
    }
    line[std::strcspn(line, "\r\n")] = '\0';
    return vex::platform::copyText(buffer, size, line);
}

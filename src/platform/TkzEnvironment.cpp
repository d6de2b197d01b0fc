/*
 * The environment: plain variables, and the installation directories below
 * the product's directory named by "tidalDS".
 */
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/Tkz.h"
#include "platform/TkzText.h"

namespace {

constexpr int kStatusNotInstalled = 3;

// "<tidalDS without trailing slashes><sub>"
int installPath(char *buffer, size_t size, const char *sub) {
    if (buffer == nullptr || size == 0) {
        return 1;
    }
    buffer[0] = '\0';
    const char *root = std::getenv("tidalDS");
    if (root == nullptr || root[0] == '\0') {
        return kStatusNotInstalled;
    }
    size_t length = std::strlen(root);
    while (length > 0 && root[length - 1] == '/') {
        --length;
    }
    int n = std::snprintf(buffer, size, "%.*s%s", static_cast<int>(length), root, sub);
    return (n < 0 || static_cast<size_t>(n) >= size) ? vex::platform::kTkzTruncated : 0;
}

}  // namespace

extern "C" int TkzGetenv(const char *name, char *buffer, size_t size) {
    if (name == nullptr || buffer == nullptr || size == 0) {
        return 1;
    }
    buffer[0] = '\0';
    const char *value = std::getenv(name);
    if (value == nullptr) {
        return 1;
    }
    return vex::platform::copyText(buffer, size, value);
}

extern "C" int TkzGetLogPath(char *buffer, size_t size) { return installPath(buffer, size, "/log"); }
extern "C" int TkzGetConfPath(char *buffer, size_t size) { return installPath(buffer, size, "/conf"); }
extern "C" int TkzGetBinPath(char *buffer, size_t size) { return installPath(buffer, size, "/bin"); }
extern "C" int TkzGetLogInfoPath(char *buffer, size_t size) { return installPath(buffer, size, "/loginfo"); }
extern "C" int TkzGetGUIConfPath(char *buffer, size_t size) { return installPath(buffer, size, "/gui/conf"); }

/* File presence and size. */
#include <sys/stat.h>

#include "platform/Tkz.h"

extern "C" int TkzFileExists(const char *path, unsigned long long *size) {
    struct stat info {};
    if (path == nullptr || stat(path, &info) != 0) {
        return 0;
    }
    if (size != nullptr) {
        *size = static_cast<unsigned long long>(info.st_size);
    }
    return 1;
}

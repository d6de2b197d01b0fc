/* Host and process facts: host name, address, operating system, process id. */
#include <sys/utsname.h>
#include <unistd.h>

#include <cstdio>

#include "platform/Tkz.h"
#include "platform/TkzText.h"

extern "C" int TkzGetHostName(char *buffer, size_t size) {
    if (buffer == nullptr || size == 0) {
        return 1;
    }
    int rc = gethostname(buffer, size) == 0 ? 0 : 1;
    buffer[size - 1] = '\0';
    return rc;
}

// Not provided on this platform: the buffer is left as it is.
extern "C" int TkzGetHostIPAddress(char *buffer, size_t size) {
    (void)buffer;
    (void)size;
    return 0;
}

extern "C" int TkzGetOSInfo(char *buffer, size_t size) {
    if (buffer == nullptr || size == 0) {
        return 1;
    }
    buffer[0] = '\0';
    utsname names{};
    if (uname(&names) != 0) {
        return 1;
    }
    int n = std::snprintf(buffer, size, "%s %s %s ", names.sysname, names.release, names.version);
    return (n < 0 || static_cast<size_t>(n) >= size) ? vex::platform::kTkzTruncated : 0;
}

extern "C" int TkzGetProcessId(void) { return static_cast<int>(getpid()); }

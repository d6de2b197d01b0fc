#include "platform/TkzLocalTime.h"

#include <cstdio>
#include <cstring>
#include <ctime>

#include "platform/Tkz.h"

namespace vex::platform {

int monthNumber(const char *name) {
    static const char *const kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                          "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (int i = 0; i < 12; ++i) {
        if (std::strcmp(name, kMonths[i]) == 0) {
            return i + 1;
        }
    }
    return 0;
}

int formatCtimeText(const char *ctimeText, char *buffer, std::size_t size) {
    char weekday[4];
    char month[4];
    char clock[9];
    int day = 0;
    int year = 0;
    if (std::sscanf(ctimeText, "%3s %3s %d %8s %d", weekday, month, &day, clock, &year) != 5) {
        return 1;
    }
    int monthNo = monthNumber(month);
    if (monthNo == 0) {
        return 1;
    }
    int n = std::snprintf(buffer, size, "%d/%d/%d %s", monthNo, day, year, clock);
    return (n < 0 || static_cast<std::size_t>(n) >= size) ? 1 : 0;
}

}  // namespace vex::platform

extern "C" int TkzGetLocalTime(char *buffer, size_t size) {
    if (buffer == nullptr || size == 0) {
        return 1;
    }
    buffer[0] = '\0';
    std::time_t now = std::time(nullptr);
    char text[64];  // ctime_r needs at least 26 bytes
    if (ctime_r(&now, text) == nullptr) {
        return 1;
    }
    return vex::platform::formatCtimeText(text, buffer, size);
}

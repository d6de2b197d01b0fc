/* Local time in the forms the provider needs, and the offset from UTC. */
#include <cstdio>
#include <ctime>

#include "platform/Tkz.h"

namespace {

bool localNow(std::tm *out, long *nanoseconds) {
    timespec now{};
    if (clock_gettime(CLOCK_REALTIME, &now) != 0) {
        return false;
    }
    if (nanoseconds != nullptr) {
        *nanoseconds = now.tv_nsec;
    }
    return localtime_r(&now.tv_sec, out) != nullptr;
}

}  // namespace

extern "C" int TkzGetFormatedTime(char *buffer, size_t size) {
    if (buffer == nullptr || size == 0) {
        return 1;
    }
    buffer[0] = '\0';
    std::tm now{};
    if (!localNow(&now, nullptr)) {
        return 1;
    }
    if (std::strftime(buffer, size, "%m/%d/%Y %H:%M:%S", &now) == 0) {
        buffer[0] = '\0';
        return 1;
    }
    return 0;
}

extern "C" int TkzGetTimeInTM(struct tm *out) {
    if (out == nullptr || !localNow(out, nullptr)) {
        return 1;
    }
    return 0;
}

extern "C" int TkzGetSystemTime(TkzSystemTime *out) {
    std::tm now{};
    long nanoseconds = 0;
    if (out == nullptr || !localNow(&now, &nanoseconds)) {
        return 1;
    }
    out->microsecond = static_cast<unsigned int>(nanoseconds / 1000);
    out->second = static_cast<unsigned int>(now.tm_sec);
    out->minute = static_cast<unsigned int>(now.tm_min);
    out->hour = static_cast<unsigned int>(now.tm_hour);
    out->day = static_cast<unsigned int>(now.tm_mday);
    out->dayOfWeek = static_cast<unsigned int>(now.tm_wday);
    out->month = static_cast<unsigned int>(now.tm_mon + 1);
    out->year = static_cast<unsigned int>(now.tm_year + 1900);
    return 0;
}

// Minutes east of UTC, e.g. "+330", "-300", "+000".
extern "C" int TkzGetTimeZone(char *buffer, size_t size) {
    if (buffer == nullptr || size == 0) {
        return 1;
    }
    buffer[0] = '\0';
    std::time_t now = std::time(nullptr);
    std::tm local{};
    std::tm utc{};
    if (localtime_r(&now, &local) == nullptr || gmtime_r(&now, &utc) == nullptr) {
        return 1;
    }
    // Read the UTC fields as local time under the same daylight-saving rule:
    // the result lies behind "now" by exactly the offset.
    utc.tm_isdst = local.tm_isdst;
    std::time_t localSeconds = std::mktime(&local);
    std::time_t utcAsLocal = std::mktime(&utc);
    if (localSeconds == static_cast<std::time_t>(-1) || utcAsLocal == static_cast<std::time_t>(-1)) {
        return 1;
    }
    int minutes = static_cast<int>(std::difftime(localSeconds, utcAsLocal) / 60);
    int n = std::snprintf(buffer, size, "%+04d", minutes);
    return (n < 0 || static_cast<std::size_t>(n) >= size) ? 2 : 0;
}

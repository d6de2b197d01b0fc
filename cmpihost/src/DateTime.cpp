#include "cmpihost/DateTime.h"

#include <chrono>
#include <cstdio>

namespace cmpihost {

namespace {

constexpr std::uint64_t kMicrosPerSecond = 1000000ULL;
constexpr std::uint64_t kMicrosPerDay = 86400ULL * kMicrosPerSecond;

// Days since 1970-01-01 of a proleptic Gregorian date (Howard Hinnant's
// algorithm), and back.
long long daysFromCivil(long long y, unsigned m, unsigned d) {
    y -= m <= 2;
    const long long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<long long>(doe) - 719468;
}

void civilFromDays(long long z, long long& y, unsigned& m, unsigned& d) {
    z += 719468;
    const long long era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = static_cast<unsigned>(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    d = doy - (153 * mp + 2) / 5 + 1;
    m = mp < 10 ? mp + 3 : mp - 9;
    y = static_cast<long long>(yoe) + era * 400 + (m <= 2);
}

// Reads count decimal digits at text[pos]; false on anything else.
bool digits(const std::string& text, std::size_t pos, std::size_t count, std::uint64_t& out) {
    out = 0;
    for (std::size_t i = pos; i < pos + count; ++i) {
        if (text[i] < '0' || text[i] > '9') {
            return false;
        }
        out = out * 10 + static_cast<std::uint64_t>(text[i] - '0');
    }
    return true;
}

struct Fields {
    std::uint64_t head = 0;  // days of an interval, or year
    std::uint64_t month = 0, day = 0, hour = 0, minute = 0, second = 0, micro = 0, offset = 0;
};

bool readFields(const std::string& t, bool interval, Fields& f) {
    bool ok = t[14] == '.' && digits(t, 8, 2, f.hour) && digits(t, 10, 2, f.minute) &&
              digits(t, 12, 2, f.second) && digits(t, 15, 6, f.micro) && digits(t, 22, 3, f.offset);
    if (interval) {
        return ok && digits(t, 0, 8, f.head) && f.offset == 0;
    }
    return ok && digits(t, 0, 4, f.head) && digits(t, 4, 2, f.month) && digits(t, 6, 2, f.day) &&
           f.month >= 1 && f.month <= 12 && f.day >= 1 && f.day <= 31;
}

}  // namespace

std::optional<DateTime> DateTime::fromText(const std::string& text) {
    if (text.size() != 25) {
        return std::nullopt;
    }
    const char sign = text[21];
    const bool interval = sign == ':';
    Fields f;
    if ((!interval && sign != '+' && sign != '-') || !readFields(text, interval, f) ||
        f.hour > 23 || f.minute > 59 || f.second > 60) {
        return std::nullopt;
    }
    const std::uint64_t clock =
        ((f.hour * 60 + f.minute) * 60 + f.second) * kMicrosPerSecond + f.micro;
    if (interval) {
        return DateTime(text, f.head * kMicrosPerDay + clock, true);
    }
    long long micros = daysFromCivil(static_cast<long long>(f.head), static_cast<unsigned>(f.month),
                                     static_cast<unsigned>(f.day)) *
                           static_cast<long long>(kMicrosPerDay) +
                       static_cast<long long>(clock);
    const long long shift = static_cast<long long>(f.offset) * 60 * 1000000LL;
    micros += sign == '+' ? -shift : shift;
    return DateTime(text, micros < 0 ? 0 : static_cast<std::uint64_t>(micros), false);
}

DateTime DateTime::fromBinary(std::uint64_t micros, bool interval) {
    const std::uint64_t days = micros / kMicrosPerDay;
    const std::uint64_t rest = micros % kMicrosPerDay;
    const unsigned sec = static_cast<unsigned>(rest / kMicrosPerSecond);
    const unsigned micro = static_cast<unsigned>(rest % kMicrosPerSecond);
    char buf[64];
    if (interval) {
        std::snprintf(buf, sizeof buf, "%08llu%02u%02u%02u.%06u:000",
                      static_cast<unsigned long long>(days % 100000000ULL), sec / 3600,
                      sec / 60 % 60, sec % 60, micro);
    } else {
        long long y = 0;
        unsigned m = 0, d = 0;
        civilFromDays(static_cast<long long>(days), y, m, d);
        std::snprintf(buf, sizeof buf, "%04lld%02u%02u%02u%02u%02u.%06u+000", y % 10000, m, d,
                      sec / 3600, sec / 60 % 60, sec % 60, micro);
    }
    return DateTime(buf, micros, interval);
}

DateTime DateTime::now() {
    const auto since = std::chrono::system_clock::now().time_since_epoch();
    const auto micros = std::chrono::duration_cast<std::chrono::microseconds>(since).count();
    return fromBinary(static_cast<std::uint64_t>(micros), false);
}

}  // namespace cmpihost

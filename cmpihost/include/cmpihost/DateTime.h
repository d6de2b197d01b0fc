// DateTime: a CIM date-time value as the host keeps it - the 25-character
// CIM text ("yyyymmddhhmmss.mmmmmmsutc" for a point in time,
// "ddddddddhhmmss.mmmmmm:000" for an interval) and its binary form
// (microseconds since the epoch, or the length of the interval).
#ifndef CMPIHOST_DATETIME_H
#define CMPIHOST_DATETIME_H

#include <cstdint>
#include <optional>
#include <string>

namespace cmpihost {

class DateTime {
public:
    // The text must be exactly 25 characters of the CIM format; no wildcards.
    static std::optional<DateTime> fromText(const std::string& text);
    // Points in time are written in UTC (offset +000).
    static DateTime fromBinary(std::uint64_t micros, bool interval);
    static DateTime now();

    const std::string& text() const { return m_text; }
    std::uint64_t binary() const { return m_binary; }
    bool isInterval() const { return m_interval; }

    bool operator==(const DateTime& other) const { return m_text == other.m_text; }
    bool operator!=(const DateTime& other) const { return !(*this == other); }

private:
    DateTime(std::string text, std::uint64_t binary, bool interval)
        : m_text(std::move(text)), m_binary(binary), m_interval(interval) {}

    std::string m_text;
    std::uint64_t m_binary = 0;
    bool m_interval = false;
};

}  // namespace cmpihost

#endif

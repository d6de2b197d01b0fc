#include "controller/FsaTimes.h"

#include <ctime>

#include "controller/CimNames.h"

namespace vex::cim::fwf::fsamap {

namespace {

std::tm localTimeOf(std::int64_t epochSeconds) {
    const std::time_t when = static_cast<std::time_t>(epochSeconds);
    std::tm broken{};
    localtime_r(&when, &broken);
    return broken;
}

}  // namespace

DateAndTime momentOf(std::int64_t epochSeconds) {
    const std::tm broken = localTimeOf(epochSeconds);
    DateAndTime moment;
    moment.year = static_cast<unsigned>(broken.tm_year + 1900);
    moment.month = static_cast<unsigned>(broken.tm_mon + 1);
    moment.day = static_cast<unsigned>(broken.tm_mday);
    moment.hour = static_cast<unsigned>(broken.tm_hour);
    moment.minute = static_cast<unsigned>(broken.tm_min);
    moment.second = static_cast<unsigned>(broken.tm_sec);
    return moment;
}

DateAndTime intervalOf(std::uint64_t seconds) {
    DateAndTime span;
    span.isInterval = true;
    span.day = static_cast<unsigned>(seconds / 86400);
    span.hour = static_cast<unsigned>(seconds / 3600 % 24);
    span.minute = static_cast<unsigned>(seconds / 60 % 60);
    span.second = static_cast<unsigned>(seconds % 60);
    return span;
}

std::string dateText(std::int64_t epochSeconds) {
    const std::tm broken = localTimeOf(epochSeconds);
    return formatText("%d/%d/%d", broken.tm_mon + 1, broken.tm_mday, broken.tm_year + 1900);
}

}  // namespace vex::cim::fwf::fsamap

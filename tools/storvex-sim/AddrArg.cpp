#include "AddrArg.h"

#include <cstdlib>
#include <vector>

namespace storvexsim {
namespace {

std::optional<uint32_t> number(const std::string& s) {
    if (s.empty() || s.size() > 9 || s.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
    return static_cast<uint32_t>(std::strtoul(s.c_str(), nullptr, 10));
}

std::vector<std::string> split(const std::string& s) {
    std::vector<std::string> parts;
    size_t pos = 0;
    for (size_t colon; (colon = s.find(':', pos)) != std::string::npos; pos = colon + 1)
        parts.push_back(s.substr(pos, colon - pos));
    parts.push_back(s.substr(pos));
    return parts;
}

}  // namespace

std::optional<storlib::Addr> parseDeviceAddr(const std::string& text) {
    auto p = split(text);
    if (p.size() != 3) return std::nullopt;
    auto c = number(p[0]), ch = number(p[1]), dev = number(p[2]);
    if (!c || !ch || !dev) return std::nullopt;
    return storlib::Addr(*c, *ch, *dev);
}

std::optional<storlib::Addr> parseTaskAddr(const std::string& text) {
    auto p = split(text);
    if (p.size() != 2 || p[1].empty() || (p[1][0] != 'T' && p[1][0] != 't')) return std::nullopt;
    auto c = number(p[0]), id = number(p[1].substr(1));
    if (!c || !id) return std::nullopt;
    return storlib::Addr(*c, storlib::Addr::ANY, storlib::Addr::ANY, storlib::Addr::ANY, *id);
}

}  // namespace storvexsim

#include "framework/CommonFunctions.h"

#include <cstdarg>
#include <cstdio>

namespace vex::cim::fwf::CommonFunctions {

namespace {

char lowerAscii(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isBlank(char c) { return c == ' ' || c == '\t'; }

std::string trimmed(const std::string& text, std::size_t begin, std::size_t end) {
    while (begin < end && isBlank(text[begin])) {
        ++begin;
    }
    while (end > begin && isBlank(text[end - 1])) {
        --end;
    }
    return text.substr(begin, end - begin);
}

}  // namespace

std::string toLower(const std::string& text) {
    std::string out(text);
    for (char& c : out) {
        c = lowerAscii(c);
    }
    return out;
}

bool equalsIgnoreCase(const std::string& a, const std::string& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lowerAscii(a[i]) != lowerAscii(b[i])) {
            return false;
        }
    }
    return true;
}

bool containsIgnoreCase(const std::string& text, const std::string& part) {
    return toLower(text).find(toLower(part)) != std::string::npos;
}

std::string getStringAt(const std::string& list, unsigned int index, char delimiter) {
    std::size_t begin = 0;
    for (unsigned int item = 0; item < index; ++item) {
        const std::size_t next = list.find(delimiter, begin);
        if (next == std::string::npos) {
            return std::string();
        }
        begin = next + 1;
    }
    std::size_t end = list.find(delimiter, begin);
    if (end == std::string::npos) {
        end = list.size();
    }
    return trimmed(list, begin, end);
}

unsigned int getStringCount(const std::string& list, char delimiter) {
    if (list.empty()) {
        return 0;
    }
    unsigned int count = 1;
    for (char c : list) {
        count += (c == delimiter) ? 1 : 0;
    }
    return count;
}

std::vector<std::string> propertyListToNames(const char* const* properties) {
    std::vector<std::string> names;
    for (const char* const* name = properties; name != nullptr && *name != nullptr; ++name) {
        names.emplace_back(*name);
    }
    return names;
}

std::string formatString(const char* format, ...) {
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, args);
    va_end(args);
    std::string out;
    if (length > 0) {
        out.resize(static_cast<std::size_t>(length) + 1);
        std::vsnprintf(&out[0], out.size(), format, again);
        out.resize(static_cast<std::size_t>(length));
    }
    va_end(again);
    return out;
}

}  // namespace vex::cim::fwf::CommonFunctions

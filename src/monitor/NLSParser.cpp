#include "monitor/NLSParser.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace vex::monitor {

namespace {

constexpr const char* kBlanks = " \t\r\n\f\v";
// Substitutions made for one text at most: an argument that itself holds a
// placeholder is filled again, and must not make the filling endless.
constexpr std::size_t kMaxSubstitutions = 256;
// Phrase references inside phrases are followed this deep, no deeper.
constexpr int kMaxPhraseDepth = 4;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Decimal index at text[at...]; digits only after an optional sign, like
// atoi; out-of-range values become -1 (no such argument).
long placeholderIndex(const std::string& text, std::string::size_type at) {
    const char* start = text.c_str() + at;
    errno = 0;
    char* end = nullptr;
    const long value = std::strtol(start, &end, 10);
    if (errno == ERANGE) {
        return -1;
    }
    return value;
}

}  // namespace

NLSParser::NLSParser(const std::string& path) { resetParser(path); }

NLSParser::~NLSParser() {
    if (m_file != nullptr) {
        std::fclose(m_file);
    }
}

void NLSParser::resetParser(const std::string& path) {
    if (m_file != nullptr) {
        std::fclose(m_file);
        m_file = nullptr;
    }
    m_path = path;
    open();
}

void NLSParser::open() {
    m_file = std::fopen(m_path.c_str(), "r");
    if (m_file == nullptr && errno == ENOENT) {
        if (std::FILE* created = std::fopen(m_path.c_str(), "a")) {
            std::fclose(created);
        }
        m_file = std::fopen(m_path.c_str(), "r");
    }
}

bool NLSParser::nextLine(std::string& line) {
    line.clear();
    bool tooLong = false;
    int c = 0;
    while ((c = std::fgetc(m_file)) != EOF) {
        if (c == '\n') {
            if (!tooLong) {
                return true;
            }
            tooLong = false;  // the over-long line ends here; skip it
            line.clear();
            continue;
        }
        if (tooLong) {
            continue;
        }
        if (line.size() >= kMaxLine) {
            tooLong = true;
            line.clear();
            continue;
        }
        line.push_back(static_cast<char>(c));
    }
    return !tooLong && !line.empty();
}

bool NLSParser::lookUp(const std::string& key, std::string& value) {
    if (m_file == nullptr) {
        open();
    }
    if (m_file == nullptr || key.empty()) {
        return false;
    }
    std::rewind(m_file);
    std::string line;
    while (nextLine(line)) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        if (line.compare(0, key.size(), key) != 0) {
            continue;
        }
        // Blanks may stand between the key and its "=".
        std::string::size_type at = key.size();
        while (at < line.size() && isBlank(line[at])) {
            ++at;
        }
        if (at < line.size() && line[at] == '=') {
            value = trim(line.substr(at + 1));
            return true;
        }
    }
    return false;
}

std::string NLSParser::replacePhraseStrings(const std::string& text, int depth) {
    std::string out;
    std::string::size_type from = 0;
    while (from < text.size()) {
        const std::string::size_type open = text.find('%', from);
        if (open == std::string::npos) {
            break;
        }
        const std::string::size_type close = text.find('%', open + 1);
        if (open + 1 >= text.size() || isBlank(text[open + 1]) || close == std::string::npos ||
            close == open + 1) {
            out.append(text, from, open + 1 - from);  // a lone "%" stays as it is
            from = open + 1;
            continue;
        }
        out.append(text, from, open - from);
        std::string phrase;
        lookUp(text.substr(open + 1, close - open - 1), phrase);
        out += depth < kMaxPhraseDepth ? replacePhraseStrings(phrase, depth + 1) : phrase;
        from = close + 1;
    }
    if (from < text.size()) {
        out.append(text, from, std::string::npos);
    }
    return out;
}

std::string NLSParser::get(const std::string& key) {
    std::string value;
    if (!lookUp(key, value)) {
        return {};
    }
    return replacePhraseStrings(value, 0);
}

std::string NLSParser::get(const std::string& key, const std::vector<std::string>& strings) {
    return parse(get(key), strings);
}

std::string NLSParser::get(const std::string& key, const std::vector<long>& numbers) {
    std::vector<std::string> strings;
    strings.reserve(numbers.size());
    for (long number : numbers) {
        strings.push_back(ltoa(number, 10));
    }
    return parse(get(key), strings);
}

std::string NLSParser::parse(std::string text, const std::vector<std::string>& strings) {
    std::string::size_type from = 0;
    for (std::size_t done = 0; done < kMaxSubstitutions; ++done) {
        const std::string::size_type brace = text.find('{', from);
        if (brace == std::string::npos) {
            break;
        }
        const long index = placeholderIndex(text, brace + 1);
        text.erase(brace, 3);  // always three characters: "{", one digit, "}"
        if (index >= 0 && static_cast<unsigned long>(index) < strings.size()) {
            text.insert(brace, strings[static_cast<std::size_t>(index)]);
        }
        from = brace;
    }
    return text;
}

std::string NLSParser::reverse(std::string text) {
    std::reverse(text.begin(), text.end());
    return text;
}

std::string NLSParser::trim(const std::string& text) {
    const std::string::size_type first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos) {
        return {};
    }
    const std::string::size_type last = text.find_last_not_of(kBlanks);
    return text.substr(first, last - first + 1);
}

std::string NLSParser::ltoa(long value, int base) {
    static constexpr const char* kDigits = "0123456789abcdef";
    if (base < 2 || base > 16) {
        return {};
    }
    const bool negative = value < 0 && base == 10;
    unsigned long rest = negative ? 0UL - static_cast<unsigned long>(value) : static_cast<unsigned long>(value);
    std::string text;
    do {
        text.push_back(kDigits[rest % static_cast<unsigned long>(base)]);
        rest /= static_cast<unsigned long>(base);
    } while (rest != 0);
    if (negative) {
        text.push_back('-');
    }
    return reverse(text);
}

std::string NLSParser::itoa(int value, int base) {
    if (value < 0 && base != 10) {
        return ltoa(static_cast<long>(static_cast<unsigned int>(value)), base);
    }
    return ltoa(value, base);
}

}  // namespace vex::monitor

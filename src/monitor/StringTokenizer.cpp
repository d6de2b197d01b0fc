#include "monitor/StringTokenizer.h"

#include <utility>

namespace vex::monitor {

StringTokenizer::StringTokenizer(std::string text, std::string delimiters)
    : m_text(std::move(text)), m_delimiters(std::move(delimiters)) {}

std::string::size_type StringTokenizer::skipDelimiters(std::string::size_type from) const {
    const std::string::size_type start = m_text.find_first_not_of(m_delimiters, from);
    return start == std::string::npos ? m_text.size() : start;
}

int StringTokenizer::countTokens() const {
    int count = 0;
    std::string::size_type at = skipDelimiters(m_position);
    while (at < m_text.size()) {
        ++count;
        const std::string::size_type end = m_text.find_first_of(m_delimiters, at);
        if (end == std::string::npos) {
            break;
        }
        at = skipDelimiters(end);
    }
    return count;
}

bool StringTokenizer::hasMoreTokens() const { return skipDelimiters(m_position) < m_text.size(); }

std::string StringTokenizer::nextToken() {
    const std::string::size_type start = skipDelimiters(m_position);
    if (start >= m_text.size()) {
        m_position = m_text.size();
        return {};
    }
    std::string::size_type end = m_text.find_first_of(m_delimiters, start);
    if (end == std::string::npos) {
        end = m_text.size();
    }
    m_position = end;
    return m_text.substr(start, end - start);
}

}  // namespace vex::monitor

#include "ProgressBar.h"

#include <algorithm>
#include <cstdio>

namespace vexraid {

std::string progressLine(unsigned percent, const std::string& label, unsigned width) {
    percent = std::min(percent, 100u);
    const unsigned filled = percent * width / 100;
    char number[8];
    std::snprintf(number, sizeof number, "%3u%%", percent);
    return "[" + std::string(filled, '#') + std::string(width - filled, '.') + "] " + number + "  " + label;
}

void ProgressBar::show(unsigned percent, const std::string& label) {
    const std::string line = progressLine(percent, label);
    if (line == m_last) return;
    if (m_terminal) {
        const std::size_t pad = m_last.size() > line.size() ? m_last.size() - line.size() : 0;
        m_out << "\r" << line << std::string(pad, ' ') << std::flush;
        m_open = true;
    } else {
        m_out << line << "\n" << std::flush;
    }
    m_last = line;
}

void ProgressBar::finish() {
    if (m_open) m_out << "\n" << std::flush;
    m_open = false;
}

}  // namespace vexraid

#include "TextTable.h"

#include <algorithm>

namespace vexraid {

void TextTable::add(std::vector<std::string> row) {
    row.resize(m_header.size());
    m_rows.push_back(std::move(row));
}

std::string TextTable::cell(const std::string& text) const {
    std::string out;
    for (char c : text) out += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
    if (out.size() > m_maxCell && m_maxCell > 1) out = out.substr(0, m_maxCell - 1) + "~";
    return out;
}

std::string TextTable::render(std::size_t indent) const {
    std::vector<std::size_t> widths(m_header.size(), 0);
    auto measure = [&](const std::vector<std::string>& row) {
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], cell(row[i]).size());
    };
    measure(m_header);
    for (const auto& row : m_rows) measure(row);
    auto line = [&](const std::vector<std::string>& row) {
        std::string out(indent, ' ');
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string text = cell(row[i]);
            out += text;
            if (i + 1 < row.size()) out += std::string(widths[i] - text.size() + 2, ' ');
        }
        while (!out.empty() && out.back() == ' ') out.pop_back();
        return out + "\n";
    };
    std::string out = line(m_header);
    for (const auto& row : m_rows) out += line(row);
    return out;
}

}  // namespace vexraid

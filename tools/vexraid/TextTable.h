// A plain text table: a title, a header row and rows, columns padded to
// their widest cell; cells longer than the limit are cut with "~".
#ifndef VEXRAID_TEXTTABLE_H
#define VEXRAID_TEXTTABLE_H

#include <cstddef>
#include <string>
#include <vector>

namespace vexraid {

class TextTable {
public:
    explicit TextTable(std::vector<std::string> header, std::size_t maxCell = 32)
        : m_header(std::move(header)), m_maxCell(maxCell) {}

    // Missing cells are empty, extra cells dropped.
    void add(std::vector<std::string> row);
    std::size_t rows() const { return m_rows.size(); }
    // Every line indented by indent blanks, ending in '\n'.
    std::string render(std::size_t indent = 2) const;

private:
    std::string cell(const std::string& text) const;

    std::vector<std::string> m_header;
    std::vector<std::vector<std::string>> m_rows;
    std::size_t m_maxCell;
};

}  // namespace vexraid

#endif

// A progress bar on a terminal ("\r" redraws one line) or, when the stream
// is no terminal, one line per change of the text.
#ifndef VEXRAID_PROGRESSBAR_H
#define VEXRAID_PROGRESSBAR_H

#include <ostream>
#include <string>

namespace vexraid {

// "[##########..........]  50%  label"; percent above 100 counts as 100.
std::string progressLine(unsigned percent, const std::string& label, unsigned width = 30);

class ProgressBar {
public:
    ProgressBar(std::ostream& out, bool terminal) : m_out(out), m_terminal(terminal) {}
    ~ProgressBar() { finish(); }
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void show(unsigned percent, const std::string& label);
    // Ends the bar's line (on a terminal); later output starts on a new line.
    void finish();

private:
    std::ostream& m_out;
    bool m_terminal;
    std::string m_last;
    bool m_open = false;
};

}  // namespace vexraid

#endif

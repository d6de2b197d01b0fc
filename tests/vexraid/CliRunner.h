// Runs the built vexraid as a user does, with its own simulator state
// directory, and captures what it prints.
#ifndef VEX_TESTS_VEXRAID_CLIRUNNER_H
#define VEX_TESTS_VEXRAID_CLIRUNNER_H

#include <string>
#include <vector>

namespace vex::clitest {

struct Outcome {
    int exitCode = -1;
    std::string out;
    std::string err;
};

class CliRunner {
public:
    // A fresh state directory (removed by the destructor) on the demo
    // system; the simulator clock stands still.
    CliRunner();
    ~CliRunner();
    CliRunner(const CliRunner&) = delete;
    CliRunner& operator=(const CliRunner&) = delete;

    // vexraid --system <demo> --state-dir <dir> --time-scale 0 <args...>
    Outcome operator()(const std::vector<std::string>& args) const;
    // Without the simulator options (for options of its own).
    Outcome bare(const std::vector<std::string>& args) const;
    // Any program, `input` on its standard input.
    Outcome run(const std::string& program, const std::vector<std::string>& args,
                const std::string& input = "") const;
    // The simulator options above followed by `args` (storvex-sim takes them too).
    std::vector<std::string> onSimulator(const std::vector<std::string>& args) const;
    const std::string& dir() const { return m_dir; }

private:
    std::string m_dir;
};

}  // namespace vex::clitest

#endif

#include "CliRunner.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

extern char** environ;

namespace vex::clitest {

namespace {

std::string slurp(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

}  // namespace

CliRunner::CliRunner() {
    char pattern[] = "/tmp/vexraid-cli-XXXXXX";
    m_dir = mkdtemp(pattern);
}

CliRunner::~CliRunner() {
    std::error_code ignored;
    std::filesystem::remove_all(m_dir, ignored);
}

std::vector<std::string> CliRunner::onSimulator(const std::vector<std::string>& args) const {
    std::vector<std::string> all = {"--system", VEX_DEMO_SYSTEM, "--state-dir", m_dir + "/state", "--time-scale", "0"};
    all.insert(all.end(), args.begin(), args.end());
    return all;
}

Outcome CliRunner::operator()(const std::vector<std::string>& args) const {
    return run(VEXRAID_PROGRAM, onSimulator(args));
}

Outcome CliRunner::bare(const std::vector<std::string>& args) const { return run(VEXRAID_PROGRAM, args); }

Outcome CliRunner::run(const std::string& program, const std::vector<std::string>& args,
                       const std::string& input) const {
    const std::string in = m_dir + "/stdin", out = m_dir + "/stdout", err = m_dir + "/stderr";
    std::ofstream(in, std::ios::binary) << input;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    std::vector<std::string> copies(args);
    std::string path = program;
    std::vector<char*> argv = {path.data()};
    for (std::string& a : copies) argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    Outcome outcome;
    if (posix_spawn(&pid, path.c_str(), &actions, nullptr, argv.data(), environ) == 0) {
        int status = 0;
        waitpid(pid, &status, 0);
        outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    posix_spawn_file_actions_destroy(&actions);
    outcome.out = slurp(out);
    outcome.err = slurp(err);
    return outcome;
}

}  // namespace vex::clitest

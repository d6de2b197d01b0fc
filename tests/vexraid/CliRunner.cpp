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

Outcome spawn(const std::vector<std::string>& args, const std::string& dir) {
    const std::string out = dir + "/stdout", err = dir + "/stderr";
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    std::vector<char*> argv;
    std::string program = VEXRAID_PROGRAM;
    argv.push_back(program.data());
    std::vector<std::string> copies(args);
    for (std::string& a : copies) argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    Outcome run;
    if (posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), environ) == 0) {
        int status = 0;
        waitpid(pid, &status, 0);
        run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    posix_spawn_file_actions_destroy(&actions);
    run.out = slurp(out);
    run.err = slurp(err);
    return run;
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

Outcome CliRunner::operator()(const std::vector<std::string>& args) const {
    std::vector<std::string> all = {"--system", VEX_DEMO_SYSTEM, "--state-dir", m_dir + "/state", "--time-scale", "0"};
    all.insert(all.end(), args.begin(), args.end());
    return spawn(all, m_dir);
}

Outcome CliRunner::bare(const std::vector<std::string>& args) const { return spawn(args, m_dir); }

}  // namespace vex::clitest

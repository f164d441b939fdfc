// Runs the command-line tool as a process of its own, as an engineer's shell or script would.
#pragma once

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/TemporaryFile.hpp"

namespace zebtest {

struct ToolRun {
  int exitCode = -1;  ///< minus the signal where one ended the tool
  std::string out;
  std::string err;
};

inline const std::string kRoot = std::filesystem::path(ZEB_EXAMPLES_DIR).parent_path().string();
inline const std::string kMaterials = std::string(ZEB_EXAMPLES_DIR) + "/materials";

inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

namespace tool_detail {

// A tool that waits for ever (a pipe nobody writes to) is a failure, not a hang.
constexpr unsigned kSecondsToEnd = 120;

inline void redirect(int descriptor, const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (file < 0 || dup2(file, descriptor) < 0) _exit(126);
}

}  // namespace tool_detail

/// Runs the program with these arguments in `folder` (empty: the current one). Both outputs are files, never a
/// terminal.
inline ToolRun runProgram(std::string tool, const std::vector<std::string>& arguments, const std::string& folder = {}) {
  const TemporaryFile out("", ".out");
  const TemporaryFile err("", ".err");
  std::vector<std::string> texts = arguments;
  std::vector<char*> argv{tool.data()};
  for (std::string& text : texts) argv.push_back(text.data());
  argv.push_back(nullptr);

  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot start a process");
  if (child == 0) {
    tool_detail::redirect(STDOUT_FILENO, out.path());
    tool_detail::redirect(STDERR_FILENO, err.path());
    // With two identities the program would not look for its libraries beside itself.
    if (setreuid(geteuid(), geteuid()) != 0) _exit(126);
    if (!folder.empty() && chdir(folder.c_str()) != 0) _exit(126);
    alarm(tool_detail::kSecondsToEnd);
    execv(tool.c_str(), argv.data());
    _exit(127);
  }
  int status = 0;
  if (waitpid(child, &status, 0) != child) throw std::runtime_error("lost the tool's process");
  ToolRun run;
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  run.out = contentOf(out.path());
  run.err = contentOf(err.path());
  return run;
}

inline ToolRun runTool(const std::vector<std::string>& arguments, const std::string& folder = {}) {
  return runProgram(ZEB_COMPPARM, arguments, folder);
}

/// What the tool writes when both outputs are a terminal. `setting`, like "NO_COLOR=1", joins its environment.
inline std::string runToolOnTerminal(const std::vector<std::string>& arguments, const char* setting) {
  std::string tool = ZEB_COMPPARM, variable = setting;
  std::vector<std::string> texts = arguments;
  std::vector<char*> argv{tool.data()};
  for (std::string& text : texts) argv.push_back(text.data());
  argv.push_back(nullptr);

  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child < 0) throw std::runtime_error("cannot open a terminal");
  if (child == 0) {
    unsetenv("NO_COLOR");
    if (!variable.empty()) putenv(variable.data());
    alarm(tool_detail::kSecondsToEnd);
    execv(tool.c_str(), argv.data());
    _exit(127);
  }
  std::string text;
  char buffer[4096];
  // The read fails when the other side is closed.
  for (ssize_t count = 0; (count = read(terminal, buffer, sizeof buffer)) > 0;) {
    text.append(buffer, static_cast<std::size_t>(count));
  }
  close(terminal);
  waitpid(child, nullptr, 0);
  return text;
}

}  // namespace zebtest

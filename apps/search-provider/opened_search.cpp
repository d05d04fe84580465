// SPDX-License-Identifier: MIT
#include "opened_search.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <vector>

#include "bus.h"

namespace provider {
namespace {

using Command = std::vector<std::string>;

// The output goes through the pager less, which keeps the terminal open and lets the user scroll.
constexpr const char* script =
    "if [ -n \"$1\" ]; then glyphorium --color always search --limit 500 -- \"$1\" 2>&1; "
    "else glyphorium --color always list --all; fi | LESS= less -R";

// Returns the path of the executable file. A name without a slash is looked up in PATH. Empty if there is no
// such file.
std::string programFile(const std::string& name) {
  const auto isProgram = [](const std::string& file) {
    std::error_code ignored;
    return access(file.c_str(), X_OK) == 0 && std::filesystem::is_regular_file(file, ignored);
  };
  if (name.empty()) return {};
  if (name.find('/') != std::string::npos) return isProgram(name) ? name : "";
  const char* const path = std::getenv("PATH");
  std::string_view rest = path ? path : "/usr/local/bin:/usr/bin:/bin";
  for (;;) {
    const std::size_t colon = rest.find(':');
    std::string file = std::string(rest.substr(0, colon)) + "/" + name;
    if (file.front() == '/' && isProgram(file)) return file;
    if (colon == std::string_view::npos) return {};
    rest.remove_prefix(colon + 1);
  }
}

// Returns the terminal program and the option that precedes the command to run. Tries the terminals in this
// order: the user's choice, the desktop's choice, the system's choice, and a common one. Debian's policy
// requires that every terminal accepts -e.
Command terminal() {
  const char* const chosen = std::getenv("TERMINAL");
  const Command terminals[] = {
      {chosen ? chosen : "", "-e"}, {"xdg-terminal-exec"}, {"x-terminal-emulator", "-e"}, {"xterm", "-e"}};
  for (Command command : terminals) {
    command.front() = programFile(command.front());
    if (!command.front().empty()) return command;
  }
  throw CallError{SD_BUS_ERROR_FAILED, "No terminal program is installed that could show the search"};
}

// Starts the command in a new session. The second fork makes init the parent of the command, so the command
// can outlive this program, and this program need not wait for the command.
void startDetached(const Command& command) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  const pid_t child = fork();
  if (child < 0) throw CallError{SD_BUS_ERROR_FAILED, "The program of the window could not be started"};
  if (child == 0) {
    if (setsid() < 0 || fork() != 0) _exit(0);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    signal(SIGPIPE, SIG_DFL);
    const int null = open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(null, standard);
    execv(arguments.front(), arguments.data());
    _exit(127);
  }
  waitpid(child, nullptr, 0);
}

}  // namespace

void openSearch(const std::string& query) {
  const std::string browser = programFile("glyphorium-browser");
  if (!browser.empty()) return startDetached({browser, "--search", query});
  if (programFile("glyphorium").empty())
    throw CallError{SD_BUS_ERROR_FAILED, "The program 'glyphorium' is not installed"};
  Command command = terminal();
  for (const char* const argument : {"sh", "-c", script, "glyphorium"}) command.emplace_back(argument);
  command.push_back(query);
  startDetached(command);
}

}  // namespace provider

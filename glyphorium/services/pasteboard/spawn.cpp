// SPDX-License-Identifier: MIT
#include "glyphorium/services/pasteboard/spawn.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <thread>

#include "glyphorium/services/application/file_descriptor.h"

namespace glyph {
namespace {

using Clock = std::chrono::steady_clock;

SpawnResult failure(const char* what, int error) {
  return {SpawnEnd::failed, std::string(what) + ": " + std::generic_category().message(error)};
}

// Creates a file in memory for the input or the output of the child. Only this process and the child can open
// the file. Unlike a pipe, such a file never blocks and never raises SIGPIPE. The descriptor is never 0, 1 or
// 2, even if the host has closed a standard stream. With such a number, it would be overwritten when the
// standard streams of the child are set up. Returns -1 on failure.
int memoryFile() {
  const FileDescriptor file(memfd_create("clipboard", MFD_CLOEXEC));
  return file.isOpen() ? fcntl(file.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1) : -1;
}

bool fill(int file, std::string_view input) {
  while (!input.empty()) {
    const ssize_t written = write(file, input.data(), input.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    input.remove_prefix(static_cast<std::size_t>(written));
  }
  return lseek(file, 0, SEEK_SET) == 0;
}

class SpawnSettings {
 public:
  // A negative `output` means /dev/null.
  SpawnSettings(int input, int output) {
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    error = posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    // The program may stay in the background. If it kept our output open, every program that reads our output
    // until the end would have to wait for the background program.
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
      if (!error) error = posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
    }
    if (!error && output >= 0) error = posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    if (!error) error = posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    if (!error) error = posix_spawn_file_actions_addchdir_np(&actions, "/");
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    if (!error) error = posix_spawnattr_setsigmask(&attributes, &none);
    if (!error) error = posix_spawnattr_setsigdefault(&attributes, &all);
    constexpr short flags = POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
    if (!error) error = posix_spawnattr_setflags(&attributes, flags);
  }
  ~SpawnSettings() {
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  posix_spawn_file_actions_t actions{};
  posix_spawnattr_t attributes{};
  int error = 0;
};

// Waits until the child has ended. Does not collect the exit code. Returns false if the child has not ended
// at the deadline.
bool awaitEnd(pid_t child, Clock::time_point deadline) {
  // In glibc 2.36 the declaration of pidfd_open() cannot be linked from C++.
  const FileDescriptor handle(static_cast<int>(syscall(SYS_pidfd_open, child, 0)));
  if (!handle.isOpen() && errno == ESRCH) return true;  // the host has already collected the exit code
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    const int wait = static_cast<int>(std::clamp<decltype(left)>(left, 0, 3'600'000));
    if (handle.isOpen()) {
      pollfd ended{handle.get(), POLLIN, 0};
      if (poll(&ended, 1, wait) > 0) return true;
    } else {  // old kernels and some sandboxes do not support pidfd_open
      siginfo_t information{};
      if (waitid(P_PID, static_cast<id_t>(child), &information, WEXITED | WNOHANG | WNOWAIT) != 0) {
        if (errno == ECHILD) return true;
      } else if (information.si_pid == child) {
        return true;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(std::min(wait, 2)));
    }
    if (wait == 0) return false;
  }
}

// Collects the exit code of a child that has ended. Returns an empty string on success, otherwise a
// description of the problem.
std::string exitProblem(pid_t child) {
  int status = 0;
  pid_t collected;
  do {
    collected = waitpid(child, &status, 0);
  } while (collected < 0 && errno == EINTR);
  if (collected < 0) return {};  // the host has already collected the exit code
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return {};
  if (WIFEXITED(status)) return "exit code " + std::to_string(WEXITSTATUS(status));
  return "ended by signal " + std::to_string(WTERMSIG(status));
}

// Returns the first line of a file, but at most 256 bytes.
std::string firstLine(int file) {
  char buffer[256];
  const ssize_t size = pread(file, buffer, sizeof buffer, 0);
  const std::string_view content(buffer, static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
  return std::string(content.substr(0, content.find('\n')));
}

}  // namespace

SpawnResult runProgram(const Program& program, std::string_view input, Clock::time_point deadline) {
  const FileDescriptor file(memoryFile());
  if (!file.isOpen() || !fill(file.get(), input)) return failure("no memory for the text", errno);
  const FileDescriptor output(program.successWord.empty() ? -1 : memoryFile());
  if (!program.successWord.empty() && !output.isOpen()) return failure("no memory for the answer", errno);
  const SpawnSettings settings(file.get(), output.get());
  if (settings.error) return failure("not started", settings.error);

  std::vector<char*> arguments;
  for (const std::string& argument : program.command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  pid_t child = 0;
  const int error =
      posix_spawnp(&child, arguments[0], &settings.actions, &settings.attributes, arguments.data(), environ);
  if (error == ENOENT) return {SpawnEnd::notInstalled, "not installed"};
  if (error) return failure("not started", error);

  if (!awaitEnd(child, deadline)) {
    kill(-child, SIGKILL);  // the whole process group, because the program may have started other programs
    // Do not call waitpid() without a time limit: a process that hangs in the kernel does not end even after
    // SIGKILL.
    if (awaitEnd(child, Clock::now() + std::chrono::milliseconds(500))) exitProblem(child);
    return {SpawnEnd::timedOut, "no answer in time"};
  }
  std::string problem = exitProblem(child);
  if (!program.successWord.empty()) {
    const std::string answer = firstLine(output.get());
    if (answer == program.successWord) return {SpawnEnd::succeeded, {}};
    if (!answer.empty()) problem = answer;
    if (problem.empty()) problem = "no answer";
  }
  return {problem.empty() ? SpawnEnd::succeeded : SpawnEnd::failed, problem};
}

}  // namespace glyph

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

namespace glyph {
namespace {

using Clock = std::chrono::steady_clock;

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }
  bool open() const { return number_ >= 0; }

 private:
  int number_;
};

SpawnResult failure(const char* what, int error) {
  return {SpawnEnd::failed, std::string(what) + ": " + std::generic_category().message(error)};
}

// The input as a file in memory: unlike a pipe it needs no feeding, cannot block and raises no SIGPIPE.
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
  explicit SpawnSettings(int input) {
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    error = posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    // Whoever captures this process's output waits until every holder of it has ended, and the clipboard's
    // program stays: it must not inherit ours.
    for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
      if (!error) error = posix_spawn_file_actions_addopen(&actions, output, "/dev/null", O_WRONLY, 0);
    }
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

// Waits until the child has ended, without reaping it; false at the deadline.
bool awaitEnd(pid_t child, Clock::time_point deadline) {
  // The C library's own pidfd_open cannot be linked from C++ in glibc 2.36.
  const Descriptor handle(static_cast<int>(syscall(SYS_pidfd_open, child, 0)));
  if (!handle.open() && errno == ESRCH) return true;  // ended and reaped by the host
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    const int wait = static_cast<int>(std::clamp<decltype(left)>(left, 0, 3'600'000));
    if (handle.open()) {
      pollfd ended{handle.number(), POLLIN, 0};
      if (poll(&ended, 1, wait) > 0) return true;
    } else {  // an old kernel, or a sandbox without this call
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

SpawnResult reap(pid_t child) {
  int status = 0;
  pid_t reaped;
  do {
    reaped = waitpid(child, &status, 0);
  } while (reaped < 0 && errno == EINTR);
  if (reaped < 0) return {SpawnEnd::succeeded, {}};  // the host took the exit code
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return {SpawnEnd::succeeded, {}};
  if (WIFEXITED(status)) return {SpawnEnd::failed, "exit code " + std::to_string(WEXITSTATUS(status))};
  return {SpawnEnd::failed, "ended by signal " + std::to_string(WTERMSIG(status))};
}

}  // namespace

SpawnResult runProgram(const std::vector<std::string>& command, std::string_view input,
                       Clock::time_point deadline) {
  const Descriptor file(memfd_create("input", MFD_CLOEXEC));
  if (!file.open() || !fill(file.number(), input)) return failure("no memory for the text", errno);
  const SpawnSettings settings(file.number());
  if (settings.error) return failure("not started", settings.error);

  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  pid_t child = 0;
  const int error =
      posix_spawnp(&child, arguments[0], &settings.actions, &settings.attributes, arguments.data(), environ);
  if (error == ENOENT) return {SpawnEnd::notInstalled, "not installed"};
  if (error) return failure("not started", error);

  if (awaitEnd(child, deadline)) return reap(child);
  kill(-child, SIGKILL);  // the group: the program may have started others
  // Not a plain waitpid: a process that hangs in the kernel does not even end by this signal.
  if (awaitEnd(child, Clock::now() + std::chrono::milliseconds(500))) reap(child);
  return {SpawnEnd::timedOut, "no answer in time"};
}

}  // namespace glyph

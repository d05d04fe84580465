// SPDX-License-Identifier: MIT
// Copies the text on standard input to the X11 clipboard. A child process in the background keeps the text
// available until another program copies something, the X server ends, or a signal ends the child process.
//   glyphorium-clipboard-owner REQUESTED-AT
// REQUESTED-AT is the time at which the copy was requested, in microseconds of std::chrono::steady_clock.
// After the copy this program prints "copied" and exits with 0. If the copy fails, this program prints the
// reason on standard output and exits with 1.
#include <fcntl.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <exception>

#include "selection_owner.h"

namespace {

using clipboard::SelectionOwner;

int failure(const char* reason) {
  std::puts(reason);
  return 1;
}

std::optional<SelectionOwner::Clock::time_point> timePoint(const char* microseconds) {
  long long count = 0;
  const char* const end = microseconds + std::strlen(microseconds);
  const auto [rest, error] = std::from_chars(microseconds, end, count);
  if (error != std::errc() || rest != end) return std::nullopt;
  return SelectionOwner::Clock::time_point(std::chrono::microseconds(count));
}

std::optional<std::string> standardInput() {
  std::string text;
  char buffer[1 << 16];
  for (;;) {
    const ssize_t size = read(STDIN_FILENO, buffer, sizeof buffer);
    if (size > 0) {
      text.append(buffer, static_cast<std::size_t>(size));
    } else if (size == 0) {
      return text;
    } else if (errno != EINTR) {
      return std::nullopt;
    }
  }
}

// Replaces the standard streams of the background process with /dev/null. Otherwise a program that waits for
// the end of our output would wait as long as the background process runs.
void releaseStandardStreams() {
  const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nothing, stream);
  if (nothing > STDERR_FILENO) close(nothing);
}

// Blocks the signals that ask this process to end, and returns a descriptor from which they can be read. The
// process can then give the text to the clipboard manager before it ends.
int endingSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&signals, signal);
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  signal(SIGPIPE, SIG_IGN);  // if the X server has ended, writing to it must not kill this process
  return signalfd(-1, &signals, SFD_CLOEXEC);
}

int copy(SelectionOwner::Clock::time_point requestedAt) {
  auto text = standardInput();
  if (!text) return failure("the text cannot be read");
  clipboard::Display display;
  if (!display.connected()) return failure("no connection to the X server");
  SelectionOwner owner(display, std::move(*text));
  const int signals = endingSignals();
  if (signals < 0) return failure("the signals could not be blocked");

  switch (owner.acquire(requestedAt)) {
    case SelectionOwner::Acquired::failed:
      return failure("the connection to the X server broke");
    case SelectionOwner::Acquired::overtaken:
      std::puts("copied");
      return 0;
    case SelectionOwner::Acquired::owned:
      break;
  }
  // Fork only now, because the caller may use the clipboard as soon as this process has ended. The child
  // continues to use the connection. From here on, the parent must not use the connection.
  const pid_t child = fork();
  if (child < 0) return failure("the background process could not be started");
  if (child > 0) {
    std::puts("copied");
    std::fflush(stdout);
    _exit(0);
  }
  releaseStandardStreams();
  owner.serve(signals);
  return 0;
}

}  // namespace

int main(int argc, char** argv) try {
  const auto requestedAt = argc == 2 ? timePoint(argv[1]) : std::nullopt;
  if (!requestedAt) return failure("Usage: glyphorium-clipboard-owner REQUESTED-AT <TEXT");
  return copy(*requestedAt);
} catch (const std::exception& error) {
  return failure(error.what());
}

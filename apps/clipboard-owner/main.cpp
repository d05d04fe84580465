// SPDX-License-Identifier: MIT
// Puts standard input on the X11 clipboard and stays in the background for as long as the text is there.
//   glyphorium-clipboard-owner ASKED-AT
// ASKED-AT is when the copy was asked for, in microseconds of std::chrono::steady_clock. When the clipboard
// is ours, "copied" goes to standard output and the process ends; its child keeps the clipboard. On failure
// the reason goes there, and the process ends with 1.
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

// Whoever waits for the end of our output, or has lent us a file, must not wait for the background process.
void releaseStandardStreams() {
  const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nothing, stream);
  if (nothing > STDERR_FILENO) close(nothing);
}

// Signals that ask for the end are read, so that the clipboard manager gets the text first.
int endingSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&signals, signal);
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  signal(SIGPIPE, SIG_IGN);  // the server may go at any time
  return signalfd(-1, &signals, SFD_CLOEXEC);
}

int copy(SelectionOwner::Clock::time_point askedAt) {
  auto text = standardInput();
  if (!text) return failure("the text cannot be read");
  clipboard::Display display;
  if (!display.connected()) return failure("no connection to the X server");
  SelectionOwner owner(display, std::move(*text));
  const int signals = endingSignals();
  if (signals < 0) return failure("no signals");

  switch (owner.acquire(askedAt)) {
    case SelectionOwner::Acquired::failed:
      return failure("the connection to the X server broke");
    case SelectionOwner::Acquired::overtaken:
      std::puts("copied");
      return 0;
    case SelectionOwner::Acquired::owned:
      break;
  }
  // Only now: whoever waits for this process may rely on the clipboard when it ends. The child goes on with
  // the connection, of which the parent makes no further use.
  const pid_t child = fork();
  if (child < 0) return failure("no process for the background");
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
  const auto askedAt = argc == 2 ? timePoint(argv[1]) : std::nullopt;
  if (!askedAt) return failure("Usage: glyphorium-clipboard-owner ASKED-AT <TEXT");
  return copy(*askedAt);
} catch (const std::exception& error) {
  return failure(error.what());
}

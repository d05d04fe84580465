// SPDX-License-Identifier: MIT
#include "glyphorium/services/pasteboard/terminal_pasteboard.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <exception>
#include <utility>

#include "glyphorium/services/diagnostics/diagnostics.h"

namespace glyph {
namespace {

using Clock = std::chrono::steady_clock;

std::string base64(std::string_view text) {
  constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string result;
  result.reserve((text.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < text.size(); at += 3) {
    const auto group = text.substr(at, 3);
    unsigned bits = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      bits = bits << 8 | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0u);
    }
    for (std::size_t i = 0; i < 4; ++i) {
      result += i <= group.size() ? digits[bits >> (18 - 6 * i) & 63] : '=';
    }
  }
  return result;
}

// Returns false if the terminal has been closed or does not accept all bytes before the deadline, for example
// because the user has pressed Ctrl-S.
bool writeAll(int terminal, std::string_view bytes, Clock::time_point deadline) {
  while (!bytes.empty()) {
    const ssize_t written = write(terminal, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
      continue;
    }
    if (written < 0 && errno != EAGAIN && errno != EINTR) return false;
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    if (left <= 0) return false;
    pollfd writable{terminal, POLLOUT, 0};
    poll(&writable, 1, static_cast<int>(left));
  }
  return true;
}

}  // namespace

TerminalPasteboard::TerminalPasteboard(std::string device) : device_(std::move(device)) {}

bool TerminalPasteboard::setPlainText(std::string_view text) try {
  const char* problem = nullptr;
  if (text.empty()) {
    problem = "a terminal does not accept an empty text";
  } else if (text.size() > maximumLength) {
    problem = "the text is too long for a terminal";
  } else if (const int terminal = open(device_.c_str(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
             terminal < 0) {
    problem = "no terminal";
  } else {
    const auto deadline = Clock::now() + std::chrono::seconds(2);
    if (!writeAll(terminal, "\033]52;c;" + base64(text) + "\a", deadline)) {
      problem = "the terminal does not accept output";
    }
    close(terminal);
  }
  if (problem) printProblem(std::string("Clipboard unchanged (") + problem + ")");
  return !problem;
} catch (const std::exception&) {  // out of memory
  printProblem("Clipboard unchanged (out of memory)");
  return false;
}

}  // namespace glyph

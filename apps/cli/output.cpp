// SPDX-License-Identifier: MIT
#include "output.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <mutex>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/text/unicode_text.h"

namespace cli {
namespace {

bool noColor() {
  const char* const value = std::getenv("NO_COLOR");
  return value && *value;
}

// The columns that a text with colours takes: escape sequences take none.
int visibleWidth(std::string_view text) {
  int width = 0;
  while (!text.empty()) {
    const std::size_t escape = text.find("\x1b[");
    width += glyph::displayWidth(text.substr(0, escape));
    if (escape == std::string_view::npos) break;
    const std::size_t end = text.find('m', escape);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return width;
}

}  // namespace

Output::Output(Style style)
    : onTerminal_(style == Style::terminal || (style == Style::automatic && isatty(STDOUT_FILENO))),
      coloured_(onTerminal_ && !noColor()) {}

std::string Output::coloured(const char* code, std::string_view text) const {
  if (!coloured_ || text.empty()) return std::string(text);
  return std::string("\x1b[") + code + "m" + std::string(text) + "\x1b[0m";
}

void Output::printTable(const std::vector<std::vector<std::string>>& rows) {
  std::vector<int> widths;
  if (onTerminal_) {
    for (const auto& row : rows) {
      widths.resize(std::max(widths.size(), row.size()));
      for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], visibleWidth(row[i]));
    }
  }
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      text_ += row[i];
      if (i + 1 == row.size()) break;
      text_ += onTerminal_ ? std::string(static_cast<std::size_t>(widths[i] - visibleWidth(row[i]) + 2), ' ')
                           : "\t";
    }
    text_ += '\n';
  }
}

bool Output::flush() {
  std::string_view rest = text_;
  while (!rest.empty()) {
    const ssize_t count = write(STDOUT_FILENO, rest.data(), rest.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno == EPIPE;
    rest.remove_prefix(static_cast<std::size_t>(count));
  }
  text_.clear();
  return true;
}

void complain(std::string_view message) {
  const std::string line = "glyphorium: " + std::string(message) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

namespace {

std::mutex keptMutex;  // lines come from the index's thread too
std::vector<std::string> keptLines;

// The lines that only say that something has changed.
bool isChangeLine(std::string_view line) {
  return line.starts_with("didSet ") || line.starts_with("selectedGroupsHadChanged ");
}

// The lines that a person wants to read at once, whether the command succeeds or not.
bool isUrgentLine(std::string_view line) {
  return line.starts_with("Waiting for ") || line.starts_with("Search index put aside ");
}

}  // namespace

void keepDiagnostics(bool verbose) {
  glyph::setDiagnosticsSink([verbose](std::string_view line) {
    if (verbose || isUrgentLine(line)) return complain(line);
    const std::lock_guard lock(keptMutex);
    if (!isChangeLine(line)) keptLines.emplace_back(line);
  });
}

void complainOfFailure(std::string_view otherwise) {
  const std::lock_guard lock(keptMutex);
  if (keptLines.empty()) complain(otherwise);
  for (const std::string& line : keptLines) complain(line);
  keptLines.clear();
}

int terminalWidth() {
  winsize size{};
  return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

std::vector<std::string> wrapped(std::string_view text, int width) {
  std::vector<std::string> lines(1);
  for (std::size_t i = 0; i <= text.size();) {
    const std::size_t end = std::min(text.find_first_of(" \n", i), text.size());
    const std::string_view word = text.substr(i, end - i);
    const bool fits = glyph::displayWidth(lines.back()) + 1 + glyph::displayWidth(word) <= width;
    if (lines.back().empty()) {
      lines.back() = word;
    } else if (fits) {
      lines.back().append(" ").append(word);
    } else {
      lines.emplace_back(word);
    }
    if (end < text.size() && text[end] == '\n') lines.emplace_back();
    i = end + 1;
  }
  return lines;
}

}  // namespace cli

// SPDX-License-Identifier: MIT
#include "output.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <random>
#include <utility>

#include "glyphorium/characters/display.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/text/unicode_text.h"

namespace cli {
namespace {

bool noColor() {
  const char* const value = std::getenv("NO_COLOR");
  return value && *value;
}

// Returns a random text, which no printed text can contain except by an extreme coincidence.
std::string newMark() {
  std::random_device random;
  return "\x1b" + std::to_string(random()) + "," + std::to_string(random()) + ",";
}

// Returns the text with each control character and direction control replaced by `replaced(control)`. A
// terminal would execute control characters as commands, and direction controls would reorder the text that
// follows. Line breaks and tabs are kept. If `mark` is not empty, each occurrence of it is replaced with the
// two characters that begin an escape sequence.
template <class Replaced>
std::string withoutControls(std::string_view text, std::string_view mark, Replaced replaced) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const auto at = [&](std::size_t i) {
      return i < text.size() ? static_cast<unsigned char>(text[i]) : static_cast<unsigned char>(0);
    };
    if (!mark.empty() && text.starts_with(mark)) {
      result += "\x1b[";
      text.remove_prefix(mark.size());
      continue;
    }
    std::size_t length = 1;
    bool control = (at(0) < 0x20 || at(0) == 0x7F) && at(0) != '\n' && at(0) != '\t';
    if (at(0) == 0xC2 && at(1) >= 0x80 && at(1) <= 0x9F) control = (length = 2) > 0;  // U+0080 to U+009F
    const bool embedding = at(1) == 0x80 && at(2) >= 0xAA && at(2) <= 0xAE;           // U+202A to U+202E
    const bool isolate = at(1) == 0x81 && at(2) >= 0xA6 && at(2) <= 0xA9;             // U+2066 to U+2069
    if (at(0) == 0xE2 && (embedding || isolate)) control = (length = 3) > 0;
    result += control ? replaced(text.substr(0, length)) : std::string(text.substr(0, length));
    text.remove_prefix(length);
  }
  return result;
}

std::string visibleControl(std::string_view control) {
  return glyph::visibleSymbol(control);
}

// Returns the display width of a text in columns. Escape sequences for colours, which begin with the mark and
// end with "m", have no width.
int visibleWidth(std::string_view text, std::string_view mark) {
  int width = 0;
  while (!text.empty()) {
    const std::size_t escape = mark.empty() ? std::string_view::npos : text.find(mark);
    width += glyph::displayWidth(text.substr(0, escape));
    if (escape == std::string_view::npos) break;
    text.remove_prefix(text.find('m', escape) + 1);
  }
  return width;
}

}  // namespace

Output::Output(Style style)
    : onTerminal_(style == Style::terminal || (style == Style::automatic && isatty(STDOUT_FILENO))),
      mark_(onTerminal_ && !noColor() ? newMark() : "") {}

std::string Output::coloured(const char* code, std::string_view text) const {
  if (mark_.empty() || text.empty()) return std::string(text);
  return mark_ + code + "m" + withoutControls(text, {}, visibleControl) + mark_ + "0m";
}

void Output::printTable(const std::vector<std::vector<std::string>>& rows) {
  std::vector<int> widths;
  if (onTerminal_) {
    for (const auto& row : rows) {
      widths.resize(std::max(widths.size(), row.size()));
      for (std::size_t i = 0; i < row.size(); ++i)
        widths[i] = std::max(widths[i], visibleWidth(row[i], mark_));
    }
  }
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      text_ += row[i];
      if (i + 1 == row.size()) break;
      text_ += onTerminal_
                   ? std::string(static_cast<std::size_t>(widths[i] - visibleWidth(row[i], mark_) + 2), ' ')
                   : "\t";
    }
    text_ += '\n';
  }
}

std::string Output::take() {
  std::string text = std::exchange(text_, {});
  return onTerminal_ ? withoutControls(text, mark_, visibleControl) : text;
}

bool Output::flush() {
  ready_ += take();
  std::string_view rest = ready_;
  while (!rest.empty()) {
    const ssize_t count = write(STDOUT_FILENO, rest.data(), rest.size());
    if (count >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(count));
      continue;
    }
    if (errno == EINTR) continue;
    if (errno == EAGAIN) {  // a full, non-blocking pipe
      pollfd ready{STDOUT_FILENO, POLLOUT, 0};
      poll(&ready, 1, -1);
      continue;
    }
    closed_ = errno == EPIPE;
    if (closed_) break;
    ready_ = rest;
    return false;
  }
  ready_.clear();
  return true;
}

void complain(std::string_view message) {
  const std::string line = "glyphorium: " + withoutControls(message, {}, visibleControl) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

std::string escapedJson(std::string_view json) {
  return withoutControls(json, {}, [](std::string_view control) {
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x",
                  static_cast<unsigned>(glyph::codePoints(control).front()));
    return std::string(escape);
  });
}

namespace {

std::mutex keptMutex;  // the thread of the search index also adds lines
std::vector<std::string> keptLines;

// Returns true if the line only reports that a value has changed.
bool isChangeLine(std::string_view line) {
  return line.starts_with("didSet ") || line.starts_with("selectedGroupsHadChanged ");
}

// Returns true if the user should read the line at once, even if the command succeeds.
bool isUrgentLine(std::string_view line) {
  return line.starts_with("Search index put aside ");
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
  if (keptLines.empty() && !otherwise.empty()) complain(otherwise);
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

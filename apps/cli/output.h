// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/text/text_pieces.h"

/// What the commands print: collected, then written once, so that a failing command leaves no half output.
namespace cli {

/// The exit codes of the program.
enum ExitCode : int { found = 0, nothingFound = 1, wrongUse = 2, notWritten = 3 };

/// When to colour and align: on a terminal, never or always.
enum class Style { automatic, plain, terminal };

class Output {
 public:
  explicit Output(Style style);

  /// Whether text goes to a person's terminal: aligned, and coloured unless NO_COLOR is set.
  bool onTerminal() const { return onTerminal_; }

  void print(std::string_view text) { text_ += text; }
  void printLine(std::string_view text = {}) { (text_ += text) += '\n'; }

  /// Rows of columns: aligned by display width on a terminal, else separated by tabs.
  void printTable(const std::vector<std::vector<std::string>>& rows);

  /// The text in a terminal's colour; as it is where nothing is coloured.
  std::string strong(std::string_view text) const { return coloured("1", text); }
  std::string faint(std::string_view text) const { return coloured("2", text); }
  std::string accent(std::string_view text) const { return coloured("36", text); }

  /// Writes all to standard output. False where that failed; a reader that went away is no failure.
  bool flush();

 private:
  std::string coloured(const char* code, std::string_view text) const;

  bool onTerminal_;
  bool coloured_;
  std::string text_;
};

/// Tells the user what is wrong, on standard error.
void complain(std::string_view message);

/// The library's own lines go here from now on: to standard error with `verbose`, else they are kept.
void keepDiagnostics(bool verbose);

/// Complains with the kept lines that speak of a failure, or with `otherwise` where there are none.
void complainOfFailure(std::string_view otherwise);

using glyph::joined;

/// The columns of the terminal behind standard output, 80 where it does not say.
int terminalWidth();

/// The text broken into lines of at most `width` columns at blanks; its own line breaks stay.
std::vector<std::string> wrapped(std::string_view text, int width);

}  // namespace cli

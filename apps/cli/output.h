// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/text/text_pieces.h"

/// What the commands print: collected, then written once, so that a failing command leaves no half output.
namespace cli {

/// The exit codes of the program.
enum ExitCode : int { found = 0, nothingFound = 1, wrongUse = 2, notWritten = 3, notRead = 3 };

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

  /// Writes all that was printed so far to standard output, and waits where that takes no more at the moment.
  /// False where it failed; a reader that went away is no failure. On a terminal control characters that are
  /// none of this class's own are written in their visible form.
  bool flush();

  /// Whether the reader went away: what is printed from now on is lost.
  bool closed() const { return closed_; }

  std::size_t size() const { return text_.size(); }  ///< bytes that wait to be written

 private:
  std::string coloured(const char* code, std::string_view text) const;

  bool onTerminal_;
  bool coloured_;
  bool closed_ = false;
  std::string text_;
};

/// Tells the user what is wrong, on standard error, with control characters in their visible form.
void complain(std::string_view message);

/// The library's own lines go here from now on: to standard error with `verbose`, else they are kept.
void keepDiagnostics(bool verbose);

/// Complains with the kept lines that speak of a failure, or with `otherwise` (unless it is empty) if there are
/// none.
void complainOfFailure(std::string_view otherwise);

/// JSON in which control characters and direction controls are escaped, so that a terminal shows them.
std::string escapedJson(std::string_view json);

using glyph::joined;

/// The columns of the terminal behind standard output, 80 where it does not say.
int terminalWidth();

/// The text broken into lines of at most `width` columns at blanks; its own line breaks stay.
std::vector<std::string> wrapped(std::string_view text, int width);

}  // namespace cli

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/text/text_pieces.h"

/// The output of the commands. The text is collected and written at the end, so that a command that fails
/// does not leave incomplete output.
namespace cli {

/// The exit codes of the program.
enum ExitCode : int { found = 0, nothingFound = 1, wrongUse = 2, notWritten = 3, notRead = 3 };

/// Returns the number of columns of the terminal on standard output, or 80 if it is unknown.
int terminalWidth();

/// When to colour and align the output: only on a terminal, never, or always.
enum class Style { automatic, plain, terminal };

class Output {
 public:
  explicit Output(Style style);

  /// Whether the output is formatted for a terminal: aligned, and coloured unless NO_COLOR is set.
  bool onTerminal() const { return onTerminal_; }

  void print(std::string_view text) { text_ += text; }
  void printLine(std::string_view text = {}) { (text_ += text) += '\n'; }

  /// Prints rows of columns. On a terminal the columns are aligned by display width. Otherwise they are
  /// separated by tabs.
  void printTable(const std::vector<std::vector<std::string>>& rows);

  /// These functions return the text with escape sequences for its colour, or unchanged if the output is not
  /// coloured.
  std::string strong(std::string_view text) const { return coloured("1", text); }
  std::string faint(std::string_view text) const { return coloured("2", text); }
  std::string accent(std::string_view text) const { return coloured("36", text); }

  /// Writes everything printed so far to standard output, and waits if standard output is not ready. Returns
  /// false if writing failed; errno has the reason. A pipe that its reader has closed is not a failure. On a
  /// terminal, control characters are written in their visible form, except the colours of this class.
  bool flush();

  /// Whether the reader has closed the pipe. Everything printed afterwards is lost.
  bool closed() const { return closed_; }

  /// The number of columns for wrapped text: the value of setWidth() if it was called, otherwise
  /// terminalWidth().
  int width() const { return width_ > 0 ? width_ : terminalWidth(); }
  void setWidth(int columns) { width_ = columns; }

  /// Returns the bytes that flush() would write now, and discards them.
  std::string take();

  std::size_t size() const { return text_.size(); }  ///< number of bytes printed since the last flush()

 private:
  std::string coloured(const char* code, std::string_view text) const;

  bool onTerminal_;
  int width_ = 0;
  /// Stands for the beginning of an escape sequence in text_. Because it is different in each run, no stored
  /// text can contain it, so flush() can tell the colours of this class from other escape sequences. Empty if
  /// the output is not coloured.
  std::string mark_;
  bool closed_ = false;
  std::string text_;   // printed since the last flush
  std::string ready_;  // bytes that a failed flush() could not write
};

/// Prints an error message on standard error, with control characters in their visible form.
void complain(std::string_view message);

/// Replaces the library's diagnostics sink. If `verbose` is true, prints all diagnostic lines on standard
/// error. Otherwise prints only lines that the user should read at once, and keeps the lines that report
/// failures for complainOfFailure().
void keepDiagnostics(bool verbose);

/// Prints the lines that keepDiagnostics() has kept on standard error. If there are no such lines, prints
/// `otherwise`, unless `otherwise` is empty.
void complainOfFailure(std::string_view otherwise);

/// Returns the JSON text with control characters and direction controls escaped, so that a terminal shows the
/// escapes and does not execute the controls.
std::string escapedJson(std::string_view json);

using glyph::joined;

/// Breaks the text at spaces into lines of at most `width` columns. A longer word is not broken. Line breaks
/// in the text are kept.
std::vector<std::string> wrapped(std::string_view text, int width);

}  // namespace cli

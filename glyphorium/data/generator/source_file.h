// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Functions that read source files. Error messages contain the file and the line in the form that compilers
/// use. In this folder, "fails" means that a function throws SourceError with such a message.
namespace glyph::generator {

struct SourceError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A line of a file, for error messages.
struct Place {
  std::filesystem::path file;
  std::size_t line = 0;  ///< line number, starting at 1; 0 means the whole file

  [[noreturn]] void fail(const std::string& message) const;
};

/// A line of a table, split into columns.
struct SourceLine {
  Place place;
  std::vector<std::string> columns;

  [[noreturn]] void fail(const std::string& message) const { place.fail(message); }
  /// Returns the code point in a column. Fails unless the column consists of hexadecimal digits of the given
  /// letter case, at least four, with leading zeros only where they are needed for four digits.
  char32_t codePoint(std::size_t column, bool upperCase) const;
  /// Returns the decimal number in a column. Fails if the column is not an unsigned number of at most 32
  /// bits.
  std::size_t number(std::size_t column) const;
};

/// Returns the lines of a file without the comments, which are lines that begin with "# ". One tab separates
/// two columns. Fails if readLines() fails, if a line is empty, if a column begins or ends with a space, or
/// if a line has fewer than `minColumns` or more than `maxColumns` columns.
std::vector<SourceLine> readTable(const std::filesystem::path& file, std::size_t minColumns,
                                  std::size_t maxColumns);

/// Returns all lines without their line feeds. Fails if the file cannot be read, contains ill-formed UTF-8 or
/// a carriage return, or does not end with a line feed.
std::vector<std::string> readLines(const std::filesystem::path& file);

/// Returns the code point in lower-case hexadecimal digits, padded to four digits: "0041" or "1f600".
std::string hexText(char32_t codePoint);

/// Returns the code point in upper-case hexadecimal digits, padded to four digits: "0041" or "1F600".
std::string upperHexText(char32_t codePoint);

}  // namespace glyph::generator

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Reading of source files. Errors name the file and the line in the form that compilers use.
namespace glyph::generator {

struct SourceError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A line of a file, for error messages.
struct Place {
  std::filesystem::path file;
  std::size_t line = 0;  ///< from 1; 0: the file as a whole

  [[noreturn]] void fail(const std::string& message) const;
};

/// The columns of a line.
struct SourceLine {
  Place place;
  std::vector<std::string> columns;

  [[noreturn]] void fail(const std::string& message) const { place.fail(message); }
  /// The code point in a column. Fails unless it is written in hexadecimal digits of the given case, padded
  /// with zeros to four digits and no further.
  char32_t codePoint(std::size_t column, bool upperCase) const;
  /// The decimal number in a column; fails unless it is one of at most 32 bits.
  std::size_t number(std::size_t column) const;
};

/// The lines of a file, without the comments, which begin with "# ". Columns are separated by one tab. Fails
/// on an empty line, on a space at the begin or end of a column, on a line with fewer or more columns than
/// allowed, and where readLines() fails.
std::vector<SourceLine> readTable(const std::filesystem::path& file, std::size_t minColumns,
                                  std::size_t maxColumns);

/// All lines without their line feeds. Fails on ill-formed UTF-8, a carriage return, and a missing line feed
/// at the end of the file.
std::vector<std::string> readLines(const std::filesystem::path& file);

/// "0041" or "1f600": lower-case hexadecimal, padded to four digits.
std::string hexText(char32_t codePoint);

/// The same in upper case: "1F600".
std::string upperHexText(char32_t codePoint);

}  // namespace glyph::generator

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Reading of source files, with errors that name the file and the line as compilers do.
namespace glyph::generator {

struct SourceError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Where a fact stands, for error messages.
struct Place {
  std::filesystem::path file;
  std::size_t line = 0;  // from 1; 0: the file as a whole

  [[noreturn]] void fail(const std::string& message) const;
};

/// One fact: the columns of a line that is no comment.
struct SourceLine {
  Place place;
  std::vector<std::string> columns;

  [[noreturn]] void fail(const std::string& message) const { place.fail(message); }
  /// The column as a code point in hexadecimal digits of the given case, at least four, not padded beyond
  /// that.
  char32_t codePoint(std::size_t column, bool upperCase) const;
  /// The column as a decimal number.
  std::size_t number(std::size_t column) const;
};

/// The lines of a UTF-8 file without those that begin with "# ". Fails on an empty line, a carriage return,
/// blanks at either end of a column, ill-formed UTF-8, a missing final line feed, or a line with fewer or
/// more columns than allowed.
std::vector<SourceLine> readTable(const std::filesystem::path& file, std::size_t minColumns,
                                  std::size_t maxColumns);

/// All lines as they stand, without their line feeds.
std::vector<std::string> readLines(const std::filesystem::path& file);

/// "0041" or "1f600": lower-case hexadecimal, padded to four digits.
std::string hexText(char32_t codePoint);

/// The same in upper case: "1F600".
std::string upperHexText(char32_t codePoint);

/// The code point in UTF-8; surrogates and others that are no scalar values are a programming error here.
std::string utf8Text(char32_t codePoint);

}  // namespace glyph::generator

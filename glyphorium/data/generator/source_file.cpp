// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/source_file.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <optional>

#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::generator {
namespace {

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

}  // namespace

void Place::fail(const std::string& message) const {
  throw SourceError(file.string() + (line ? ":" + std::to_string(line) : "") + ": error: " + message);
}

char32_t SourceLine::codePoint(std::size_t column, bool upperCase) const {
  const std::string& text = columns.at(column);
  const std::optional<std::uint32_t> value = ascii::number(text, 16);
  if (!value || *value > 0x10FFFF) fail("'" + text + "' is not a code point in hexadecimal digits");
  const std::string canonical = upperCase ? upperHexText(*value) : hexText(*value);
  if (text != canonical) fail("'" + text + "' must be written '" + canonical + "'");
  return *value;
}

std::size_t SourceLine::number(std::size_t column) const {
  const std::string& text = columns.at(column);
  const std::optional<std::uint32_t> value = ascii::number(text, 10);
  if (!value) fail("'" + text + "' is not a number");
  return *value;
}

std::vector<std::string> readLines(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Place{file, 0}.fail("cannot be read");
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  if (text.empty() || text.back() != '\n') Place{file, 0}.fail("must end with a line feed");
  std::vector<std::string> lines = split(std::string_view(text).substr(0, text.size() - 1), '\n');
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!isWellFormedUtf8(lines[i])) Place{file, i + 1}.fail("is not well-formed UTF-8");
    if (lines[i].find('\r') != std::string::npos) Place{file, i + 1}.fail("contains a carriage return");
  }
  return lines;
}

std::vector<SourceLine> readTable(const std::filesystem::path& file, std::size_t minColumns,
                                  std::size_t maxColumns) {
  std::vector<SourceLine> table;
  std::size_t number = 0;
  for (const std::string& text : readLines(file)) {
    ++number;
    if (text.starts_with("# ")) continue;
    SourceLine line{{file, number}, split(text, '\t')};
    if (text.empty()) line.fail("is empty");
    if (line.columns.size() < minColumns || line.columns.size() > maxColumns) {
      line.fail("has " + std::to_string(line.columns.size()) + " columns, expected " +
                std::to_string(minColumns) +
                (minColumns == maxColumns ? "" : " to " + std::to_string(maxColumns)));
    }
    for (const std::string& column : line.columns) {
      if (!column.empty() && (column.front() == ' ' || column.back() == ' '))
        line.fail("has a space at the beginning or end of a column");
    }
    table.push_back(std::move(line));
  }
  return table;
}

std::string hexText(char32_t codePoint) {
  char digits[8];
  char* const end =
      std::to_chars(digits, digits + sizeof digits, static_cast<std::uint32_t>(codePoint), 16).ptr;
  std::string text(digits, end);
  if (text.size() < 4) text.insert(0, 4 - text.size(), '0');
  return text;
}

std::string upperHexText(char32_t codePoint) {
  return ascii::uppercased(hexText(codePoint));
}

}  // namespace glyph::generator

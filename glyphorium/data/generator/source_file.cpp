// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/source_file.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace glyph::generator {
namespace {

bool isWellFormed(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i]);
    const std::size_t size = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
    if (size == 0 || i + size > text.size()) return false;
    char32_t value = size == 1 ? lead : lead & (0x7Fu >> size);
    for (std::size_t k = 1; k < size; ++k) {
      const auto byte = static_cast<unsigned char>(text[i + k]);
      if ((byte & 0xC0) != 0x80) return false;
      value = value << 6 | (byte & 0x3F);
    }
    const char32_t smallest = size == 2 ? 0x80 : size == 3 ? 0x800 : size == 4 ? 0x10000 : 0;
    if (value < smallest || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) return false;
    i += size;
  }
  return true;
}

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
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  if (error != std::errc() || end != text.data() + text.size() || value > 0x10FFFF) {
    fail("'" + text + "' is no code point in hexadecimal digits");
  }
  const std::string canonical = upperCase ? upperHexText(value) : hexText(value);
  if (text != canonical) fail("'" + text + "' must be written '" + canonical + "'");
  return value;
}

std::size_t SourceLine::number(std::size_t column) const {
  const std::string& text = columns.at(column);
  std::size_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) fail("'" + text + "' is no number");
  return value;
}

std::vector<std::string> readLines(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Place{file, 0}.fail("cannot be read");
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  if (text.empty() || text.back() != '\n') Place{file, 0}.fail("must end with a line feed");
  std::vector<std::string> lines = split(std::string_view(text).substr(0, text.size() - 1), '\n');
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!isWellFormed(lines[i])) Place{file, i + 1}.fail("is not well-formed UTF-8");
    if (lines[i].find('\r') != std::string::npos) Place{file, i + 1}.fail("holds a carriage return");
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
      line.fail("has " + std::to_string(line.columns.size()) + " columns, wanted " +
                std::to_string(minColumns) +
                (minColumns == maxColumns ? "" : " to " + std::to_string(maxColumns)));
    }
    for (const std::string& column : line.columns) {
      if (!column.empty() && (column.front() == ' ' || column.back() == ' '))
        line.fail("has a blank at a column's end");
    }
    table.push_back(std::move(line));
  }
  return table;
}

std::string hexText(char32_t codePoint) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "%04x", static_cast<unsigned>(codePoint));
  return buffer;
}

std::string upperHexText(char32_t codePoint) {
  std::string text = hexText(codePoint);
  for (char& c : text) c = c >= 'a' && c <= 'f' ? static_cast<char>(c - ('a' - 'A')) : c;
  return text;
}

std::string utf8Text(char32_t c) {
  const auto tail = [c](int shift) { return static_cast<char>(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) return {static_cast<char>(c)};
  if (c < 0x800) return {static_cast<char>(0xC0 | c >> 6), tail(0)};
  if (c < 0x10000) return {static_cast<char>(0xE0 | c >> 12), tail(6), tail(0)};
  return {static_cast<char>(0xF0 | c >> 18), tail(12), tail(6), tail(0)};
}

}  // namespace glyph::generator

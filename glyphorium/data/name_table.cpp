// SPDX-License-Identifier: MIT
#include "glyphorium/data/name_table.h"

#include <cstdint>

#include "glyphorium/data/embedded_image.h"
#include "glyphorium/data/name_table_lines.h"
#include "glyphorium/text/ascii.h"

namespace glyph {
namespace {

// Returns the code point of a hex code. Returns nullopt if the code has fewer than four digits or a needless
// leading zero, because no code in the table has such a form.
std::optional<std::uint32_t> canonicalCodePoint(std::string_view hex) noexcept {
  if (hex.size() < 4 || (hex.size() > 4 && hex.front() == '0')) return std::nullopt;
  return ascii::number(hex, 16);
}

}  // namespace

std::string_view structuredUnicodeJSON() noexcept {
  return structuredUnicodeJsonText;
}

std::optional<NameTableLine> nameTableLine(std::size_t offset) noexcept {
  // A line of the table: {"hex":"0041","name":"LATIN CAPITAL LETTER A","isSFSymbol":false},
  constexpr std::string_view beforeHex = "{\"hex\":\"";
  constexpr std::string_view beforeName = "\",\"name\":\"";
  if (offset >= structuredUnicodeJsonText.size()) return std::nullopt;
  std::string_view rest = structuredUnicodeJsonText.substr(offset);
  if (!rest.starts_with(beforeHex)) return std::nullopt;
  const std::size_t end = rest.find('\n');
  const std::size_t next =
      end == std::string_view::npos ? structuredUnicodeJsonText.size() : offset + end + 1;
  rest.remove_prefix(beforeHex.size());
  const std::size_t hexSize = rest.find('"');
  const auto codePoint = ascii::number(rest.substr(0, hexSize), 16);
  rest.remove_prefix(hexSize + beforeName.size());
  const std::size_t nameSize = rest.find('"');
  // `","isSFSymbol":true` or `","isSFSymbol":false` follows the name.
  const bool isSymbol = rest.substr(nameSize).starts_with("\",\"isSFSymbol\":t");
  return NameTableLine{codePoint.value_or(0), {rest.substr(0, nameSize), isSymbol}, next};
}

std::optional<NameTableEntry> findName(std::string_view hex) noexcept {
  const auto codePoint = canonicalCodePoint(hex);
  const auto start = codePoint ? nameIndex.findUpTo(*codePoint) : std::nullopt;
  if (!start) return std::nullopt;
  for (auto line = nameTableLine(nameIndex[*start].offset); line && line->codePoint <= *codePoint;
       line = nameTableLine(line->next)) {
    if (line->codePoint == *codePoint) return line->entry;
  }
  return std::nullopt;
}

std::optional<char32_t> findCodePoint(std::string_view name) noexcept {
  for (auto line = nameTableLine(firstNameTableLine); line; line = nameTableLine(line->next)) {
    if (ascii::equalIgnoringCase(line->entry.name, name)) return line->codePoint;
  }
  return std::nullopt;
}

}  // namespace glyph

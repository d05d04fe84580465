// SPDX-License-Identifier: MIT
#include "glyphorium/data/name_table.h"

#include <algorithm>
#include <cstdint>

#include "glyphorium/data/embedded_image.h"
#include "glyphorium/text/ascii.h"

namespace glyph {
namespace {

// Returns the number of a hex code. Returns nullopt if the code has another form than the codes of the table.
std::optional<std::uint32_t> canonicalCodePoint(std::string_view hex) noexcept {
  if (hex.size() < 4 || (hex.size() > 4 && hex.front() == '0')) return std::nullopt;
  return ascii::number(hex, 16);
}

}  // namespace

std::string_view structuredUnicodeJSON() noexcept {
  return structuredUnicodeJsonText;
}

std::optional<NameTableEntry> findName(std::string_view hex) noexcept {
  const auto codePoint = canonicalCodePoint(hex);
  if (!codePoint) return std::nullopt;
  const auto position = nameIndex.find(*codePoint);
  if (!position) return std::nullopt;
  const std::string_view rest = structuredUnicodeJSON().substr(nameIndex[*position].offset);
  const std::size_t end = rest.find('"');
  // `","isSFSymbol":true` or `","isSFSymbol":false` follows the name.
  return NameTableEntry{rest.substr(0, end), rest.substr(end).starts_with("\",\"isSFSymbol\":t")};
}

std::optional<char32_t> findCodePoint(std::string_view name) noexcept {
  for (std::size_t position = 0; position < nameIndex.size(); ++position) {
    const CodePointIndex::Entry entry = nameIndex[position];
    const std::string_view stored = structuredUnicodeJSON().substr(entry.offset, name.size() + 1);
    const bool isName = stored.size() > name.size() && stored.back() == '"' &&
                        std::equal(name.begin(), name.end(), stored.begin(),
                                   [&](char a, char b) { return ascii::lowered(a) == ascii::lowered(b); });
    if (isName) return entry.codePoint;
  }
  return std::nullopt;
}

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// Returns the Unicode name table: a JSON array of 35,469 RawUnicodeEntity objects. First come the 33,797
/// entries of the Unicode 13.0 character data file, in the order of that file. Then come the 1,672 SF
/// Symbols. U+100000 has an entry in both parts.
GLYPHORIUM_EXPORT std::string_view structuredUnicodeJSON() noexcept;

/// An entry of the name table.
struct NameTableEntry {
  std::string_view name;  ///< in the spelling of the table: "LATIN SMALL LETTER D", "square.and.arrow.up"
  bool isSFSymbol;
};

/// Returns the first entry of the table for a hex code. Returns nullopt if there is no such entry. The code
/// must have at least four digits, and leading zeros only to reach four digits ("0041", not "41" or "00041").
/// Letter case is ignored. The function does a binary search, without decoding or memory allocation. Any
/// thread may call it.
GLYPHORIUM_EXPORT std::optional<NameTableEntry> findName(std::string_view hex) noexcept;

/// Returns the lowest code point with this name. Returns nullopt if no code point has this name. The case of
/// ASCII letters is ignored. The function compares `name` with the names of the table one by one, without
/// decoding or memory allocation. Any thread may call it.
GLYPHORIUM_EXPORT std::optional<char32_t> findCodePoint(std::string_view name) noexcept;

}  // namespace glyph

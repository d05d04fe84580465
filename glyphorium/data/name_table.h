// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The Unicode name table: a JSON array of 35,469 RawUnicodeEntity objects, first the 33,797 entries of the
/// Unicode 13.0 character data file in its order, then the 1,672 SF Symbols. U+100000 stands in both.
GLYPHORIUM_EXPORT std::string_view structuredUnicodeJSON() noexcept;

/// An entry of the name table as stored.
struct NameTableEntry {
  std::string_view name;  ///< "LATIN SMALL LETTER D", "square.and.arrow.up"
  bool isSFSymbol;
};

/// The first entry of the table for the hex code in any letter case. The code must be spelled as in the
/// table: four digits or more, padded only to four ("0041"; neither "41" nor "00041"). A binary search,
/// without decoding or allocation; any thread may call it.
GLYPHORIUM_EXPORT std::optional<NameTableEntry> findName(std::string_view hex) noexcept;

/// The lowest code point of that name, ASCII letter case aside. Compares with every name, without decoding or
/// allocation; any thread may call it.
GLYPHORIUM_EXPORT std::optional<char32_t> findCodePoint(std::string_view name) noexcept;

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The Unicode name table: a JSON array of 35,469 RawUnicodeEntity objects. First come the 33,797 entries of
/// the Unicode 13.0 character data file in its order, then the 1,672 SF Symbols. Both have U+100000.
GLYPHORIUM_EXPORT std::string_view structuredUnicodeJSON() noexcept;

/// An entry of the name table as stored.
struct NameTableEntry {
  std::string_view name;  ///< "LATIN SMALL LETTER D", "square.and.arrow.up"
  bool isSFSymbol;
};

/// The first entry of the table for a hex code, in either letter case; nullopt if there is none. The code
/// must be written as in the table: with at least four digits and no zeros beyond that ("0041", not "41" or
/// "00041"). A binary search without decoding or allocation. Any thread may call it.
GLYPHORIUM_EXPORT std::optional<NameTableEntry> findName(std::string_view hex) noexcept;

/// The lowest code point with this name; nullopt if there is none. ASCII letter case does not count. Compares
/// with every name, without decoding or allocation. Any thread may call it.
GLYPHORIUM_EXPORT std::optional<char32_t> findCodePoint(std::string_view name) noexcept;

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "glyphorium/data/name_table.h"

namespace glyph {

/// A line of structuredUnicodeJSON(). Each line has one entry.
struct NameTableLine {
  std::uint32_t codePoint;
  NameTableEntry entry;
  std::size_t next;  ///< the offset of the next line
};

/// The offset of the first line. It directly follows the opening bracket of the array.
inline constexpr std::size_t firstNameTableLine = 1;

/// Reads the line that begins at this offset. Returns nullopt at the end of the table.
std::optional<NameTableLine> nameTableLine(std::size_t offset) noexcept;

}  // namespace glyph

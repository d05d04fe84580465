// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace glyph {

/// The decoded rows of the configured group tables and of the enrichment table. The build decodes them, so
/// that a program need not decode the JSON texts. All texts are constants in the library's read-only image,
/// and a zero byte follows each of them. Any thread may call these functions.

/// How the image stores a row of a group table. The texts of the row are in `preparedTexts`, one after the
/// other, in the order of the sizes below. A zero byte ends each text.
struct PreparedRow {
  std::uint32_t codePoint : 31;
  std::uint32_t isSFSymbol : 1;
  std::uint32_t texts;  ///< the offset in `preparedTexts` of the first text
  std::uint8_t hexSize;
  std::uint8_t htmlHexSize;
  std::uint8_t htmlDecimalSize;
  std::uint8_t symbolSize;
  std::uint8_t nameSize;
  std::uint8_t table;        ///< the number of the group table in embeddedTexts()
  std::uint16_t enrichment;  ///< 1 + the number of the joined enrichment row; 0 if there is none
};
static_assert(sizeof(PreparedRow) == 16);

extern const std::string_view preparedRowBytes;
extern const std::string_view preparedTexts;
extern const std::string_view preparedOrderBytes;

inline std::size_t preparedRowCount() noexcept {
  return preparedRowBytes.size() / sizeof(PreparedRow);
}

/// Returns the row with this index in the sequence of all configured tables. The index must be smaller than
/// preparedRowCount().
inline PreparedRow preparedRow(std::size_t place) noexcept {
  PreparedRow row;
  std::memcpy(&row, preparedRowBytes.data() + place * sizeof row, sizeof row);
  return row;
}

/// Returns the index, for preparedRow(), of the row at this position in a list that is sorted by code point.
/// Rows with the same code point are sorted by their indexes.
inline std::size_t placeInCodePointOrder(std::size_t position) noexcept {
  std::uint16_t place;
  std::memcpy(&place, preparedOrderBytes.data() + position * sizeof place, sizeof place);
  return place;
}

/// The number of code points with an enrichment row. If a code point has several rows, only the first one is
/// prepared, because an entity gets the enrichment of the first row only.
std::size_t preparedEnrichmentCount() noexcept;

/// Returns the number of the enrichment row of the code point. Returns nullopt if there is no such row.
std::optional<std::size_t> findPreparedEnrichment(std::uint32_t codePoint) noexcept;

/// Reads the fields of an enrichment row one after the other, in the order in which they are stored. A number
/// is one byte. A zero byte ends a text.
class PreparedEnrichmentReader {
 public:
  /// `number` must be smaller than preparedEnrichmentCount().
  explicit PreparedEnrichmentReader(std::size_t number) noexcept;

  std::uint8_t number() noexcept { return static_cast<std::uint8_t>(*at_++); }
  std::string_view text() noexcept {
    const std::string_view text(at_);
    at_ += text.size() + 1;
    return text;
  }

 private:
  const char* at_;
};

}  // namespace glyph

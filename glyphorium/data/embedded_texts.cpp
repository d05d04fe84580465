// SPDX-License-Identifier: MIT
#include "glyphorium/data/embedded_texts.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "glyphorium/data/embedded_image.h"
#include "glyphorium/text/ascii.h"

namespace glyph {

std::span<const EmbeddedText> embeddedTexts() noexcept {
  return {embeddedTextList, embeddedTextCount};
}

const EmbeddedText* embeddedText(std::string_view constant) noexcept {
  const auto all = embeddedTexts();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](auto& text) { return text.constant == constant; });
  return found == all.end() ? nullptr : &*found;
}

std::string_view configuredRow(std::size_t place) noexcept {
  std::array<std::uint32_t, 2> offsets{};  // the start of this row, and the start of the next row or the end
  if (place >= configuredRowOffsets.size() / sizeof offsets[0] - 1) return {};
  std::memcpy(offsets.data(), configuredRowOffsets.data() + place * sizeof offsets[0], sizeof offsets);
  const std::string_view row = embeddedImage.substr(offsets[0], offsets[1] - offsets[0]);
  return row.substr(0, row.rfind('}') + 1);  // a comma, a bracket or padding may follow
}

std::string_view enrichmentRow(std::string_view hex) noexcept {
  const auto codePoint = ascii::number(hex, 16);
  const auto position = codePoint ? enrichmentIndex.find(*codePoint) : std::nullopt;
  if (!position) return {};
  constexpr std::string_view rowEnd = "\n  }";  // lines inside a row have more indentation
  const std::string_view row = additionalJson.substr(enrichmentIndex[*position].offset);
  return row.substr(0, row.find(rowEnd) + rowEnd.size());
}

}  // namespace glyph

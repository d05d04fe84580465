// SPDX-License-Identifier: MIT
#include "glyphorium/data/supplementary_notes.h"

#include <algorithm>

#include "glyphorium/text/ascii.h"

namespace glyph {

std::string_view supplementaryNote(std::string_view hex, std::string_view language) noexcept {
  const auto codePoint = ascii::number(hex, 16);
  const auto notes = std::find_if(supplementaryNotes.begin(), supplementaryNotes.end(),
                                  [&](auto& one) { return one.language == language; });
  if (!codePoint || notes == supplementaryNotes.end()) return {};
  const auto position = notes->index.find(*codePoint);
  return position ? notes->index.slice(notes->texts, *position) : std::string_view();
}

}  // namespace glyph

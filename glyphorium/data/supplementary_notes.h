// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

namespace glyph {

/// The usage notes of one language for characters that have no note in the enrichment table in this language.
/// The notes are in the library's read-only image. The generator makes them from the source files in notes/.
struct SupplementaryNotes {
  std::string_view language;  ///< BCP 47
  CodePointIndex index;       ///< the offset in `texts` at which the note of each code point begins
  std::string_view texts;
};

/// One element for each language that has supplementary notes.
extern const std::span<const SupplementaryNotes> supplementaryNotes;

/// Returns the supplementary note for the hex code. `language` must be exactly the tag of a language in
/// supplementaryNotes. Returns an empty text if there is no such note. Any thread may call this function.
std::string_view supplementaryNote(std::string_view hex, std::string_view language) noexcept;

}  // namespace glyph

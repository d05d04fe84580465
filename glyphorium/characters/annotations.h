// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// How people of a language call a character.
struct CharacterAnnotation {
  /// The text-to-speech name: "melting face", "Flagge: Deutschland". Empty if there is none.
  std::string name;
  std::vector<std::string> keywords;
};

/// Returns what CLDR says about a character or an emoji, with U+FE0F or without. Emoji with skin tones have
/// the keywords of the emoji without. `language` is "en", "de", "fr", "it" or "es". The name and the list are
/// empty for another language and for a character that CLDR does not describe. Any thread may call it.
GLYPHORIUM_EXPORT CharacterAnnotation annotationOf(std::string_view text, std::string_view language);

}  // namespace glyph

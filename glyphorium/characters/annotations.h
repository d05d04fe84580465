// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// What people call a character in one language.
struct CharacterAnnotation {
  /// The text-to-speech name: "melting face", "Flagge: Deutschland". Empty if there is none.
  std::string name;
  std::vector<std::string> keywords;
};

/// Returns the name and the keywords that CLDR has for a character or an emoji. U+FE0F may be missing in the
/// text. An emoji with skin tones has the keywords of the same emoji without tones. `language` is "en", "de",
/// "fr", "it" or "es". The name and the keywords are empty for other languages and for characters that CLDR
/// does not describe. Any thread may call this function.
GLYPHORIUM_EXPORT CharacterAnnotation annotationOf(std::string_view text, std::string_view language);

}  // namespace glyph

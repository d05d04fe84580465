// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glyph {

/// Returns the key of a character or an emoji in the tables of character_tables.h. The key of a single code
/// point is the code point. The key of an emoji of several code points is its number in emojiTable. U+FE0F
/// after another code point is ignored. Returns nullopt for any other text.
std::optional<char32_t> characterKey(std::string_view text);

/// Returns the UTF-8 text of a key, which is a code point or the number of an emoji. Empty if there is no
/// such text.
std::string textOfCharacterKey(char32_t key);

}  // namespace glyph

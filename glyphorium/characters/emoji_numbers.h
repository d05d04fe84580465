// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glyph {

/// Returns the key of the text in the tables of character_tables.h: the code point of a text of one code
/// point, the number of an emoji of several. U+FE0F does not count beside other code points. Returns nullopt
/// for another text.
std::optional<char32_t> characterKey(std::string_view text);

/// Returns the UTF-8 text of a code point, or the emoji of a number. Empty if there is none.
std::string textOfCharacterKey(char32_t key);

}  // namespace glyph

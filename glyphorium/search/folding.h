// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace glyph::search {

/// Appends the letter or digit as words are compared: in lower case, a Latin letter without diacritics and in
/// letters from a to z if it has such ("É" is "e", "ß" is "ss", "ø" is "o"). False, without appending, for
/// what is neither a letter nor a digit.
bool appendFolded(char32_t codePoint, std::string& word);

/// Whether the code point is a diacritic that stands behind its letter, of no particular script.
bool isDiacritic(char32_t codePoint);

}  // namespace glyph::search

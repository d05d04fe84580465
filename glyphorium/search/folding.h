// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace glyph::search {

/// Folds a letter or digit for the comparison of words, and appends the result to `word` in UTF-8. Folding
/// changes letters to lower case. It also removes the diacritics of Latin letters and, if possible, spells
/// these letters with a to z: "É" becomes "e", "ß" becomes "ss", "ø" becomes "o". Returns false and appends
/// nothing if the code point is neither a letter nor a digit.
bool appendFolded(char32_t codePoint, std::string& word);

/// Returns true if the code point is a combining diacritic that does not belong to a particular script, such
/// as U+0301. In a text, combining diacritics follow their letter.
bool isDiacritic(char32_t codePoint);

}  // namespace glyph::search

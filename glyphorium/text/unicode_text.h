// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

/// Unicode functions for UTF-8 text. They use ICU, except for a fast path for ASCII text. Ill-formed UTF-8
/// is not an error: the comment of each function says what it gives. Any thread may call these functions.
namespace glyph {

/// Returns the text in lower case, by the full Unicode mapping, which does not depend on the language ("İ"
/// gives two code points, a "Σ" at the end of a word becomes "ς"). Ill-formed bytes are not changed.
GLYPHORIUM_EXPORT std::string lowercased(std::string_view text);

/// Returns the user-perceived characters of the text (extended grapheme clusters, UAX #29) in order, as views
/// of `text`. CR LF is one cluster. An ill-formed byte sequence is a cluster by itself.
GLYPHORIUM_EXPORT std::vector<std::string_view> graphemeClusters(std::string_view text);

/// Returns whether the code point is a mark (general category M), which combines with the character before
/// it.
GLYPHORIUM_EXPORT bool isCombining(char32_t codePoint);

/// Returns whether the code point is a letter or a decimal digit.
GLYPHORIUM_EXPORT bool isAlphanumeric(char32_t codePoint);

/// Returns the text in Normalization Form C: "e" and U+0301 become "é". Ill-formed text is returned
/// unchanged.
GLYPHORIUM_EXPORT std::string composed(std::string_view text);

/// Returns whether the text is well-formed UTF-8 (no surrogates, no code points above U+10FFFF, no overlong
/// forms).
GLYPHORIUM_EXPORT bool isWellFormedUtf8(std::string_view text);

/// Returns the code points of the text. An ill-formed byte sequence counts as one U+FFFD.
GLYPHORIUM_EXPORT std::u32string codePoints(std::string_view text);

/// Returns the code point as UTF-8. Empty if the number is not a Unicode scalar value, that is, if it is a
/// surrogate, negative or above U+10FFFF.
GLYPHORIUM_EXPORT std::string utf8(std::int64_t codePoint);

}  // namespace glyph

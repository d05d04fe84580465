// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

/// Unicode operations on UTF-8 text, by ICU. ASCII text takes a fast path without ICU. Ill-formed UTF-8 is no
/// error: each operation says what it does with it. Any thread may call these functions.
namespace glyph {

/// The text in lower case: the full Unicode mapping, independent of language ("İ" gives two code points, a
/// "Σ" at the end of a word becomes "ς"). Ill-formed bytes stay as they are.
GLYPHORIUM_EXPORT std::string lowercased(std::string_view text);

/// The text's user-perceived characters (extended grapheme clusters, UAX #29), in order, as views of `text`;
/// CR LF is one cluster. An ill-formed byte sequence is a cluster of its own.
GLYPHORIUM_EXPORT std::vector<std::string_view> graphemeClusters(std::string_view text);

/// How many columns the text takes on a terminal. A grapheme cluster takes 0 if it holds only marks and
/// invisible characters, 2 if it is East Asian wide or fullwidth or an emoji, else 1.
GLYPHORIUM_EXPORT int displayWidth(std::string_view text);

/// Whether a terminal shows nothing for the code point by itself: control and format characters, white
/// space, surrogates, unassigned and private-use code points, variation selectors and other default-ignorable
/// code points.
GLYPHORIUM_EXPORT bool isInvisible(char32_t codePoint);

/// Whether the code point is a mark (general category M), which combines with the character before it.
GLYPHORIUM_EXPORT bool isCombining(char32_t codePoint);

/// Whether the code point is a letter or a decimal digit.
GLYPHORIUM_EXPORT bool isAlphanumeric(char32_t codePoint);

/// The text in Normalization Form C: "e" and U+0301 become "é". Ill-formed text stays as it is.
GLYPHORIUM_EXPORT std::string composed(std::string_view text);

/// Whether the text is well-formed UTF-8 (no surrogates, nothing above U+10FFFF, no overlong forms).
GLYPHORIUM_EXPORT bool isWellFormedUtf8(std::string_view text);

/// The text's code points; an ill-formed byte sequence counts as one U+FFFD.
GLYPHORIUM_EXPORT std::u32string codePoints(std::string_view text);

/// The code point as UTF-8. Empty for a number that is no Unicode scalar value: a surrogate, a negative
/// number or one above U+10FFFF.
GLYPHORIUM_EXPORT std::string utf8(std::int64_t codePoint);

}  // namespace glyph

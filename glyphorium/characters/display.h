// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

/// Functions for showing characters in a list, in a window or on a terminal. They know all characters of
/// Unicode 17.0, also if the installed ICU is older. Any thread may call these functions.
namespace glyph {

/// Returns the symbol (ComputedEntity::symbol, UTF-8) in a form that is visible and does not affect the text
/// around it:
/// - an ASCII control becomes its picture ("␀" to "␡", from the block Control Pictures),
/// - a space (general category Zs) becomes "␣",
/// - a mark (general category M) at the beginning gets the base character "◌",
/// - a private-use code point becomes "▯", because only special fonts have a glyph for it,
/// - any other invisible code point (line separators, C1 controls, format characters, unassigned code points)
///   becomes "⬚".
/// If at least one code point of the symbol is visible, only control characters and bidirectional controls
/// are replaced, and a mark at the beginning gets its base character. Joiners and variation selectors are
/// then kept, because they affect the appearance. Ill-formed bytes become U+FFFD. The empty text gives the
/// empty text.
GLYPHORIUM_EXPORT std::string visibleSymbol(std::string_view symbol);

/// Returns whether a terminal shows nothing for the code point when it is alone. This is true for control and
/// format characters, white space, surrogates, unassigned and private-use code points, variation selectors
/// and other default-ignorable code points.
GLYPHORIUM_EXPORT bool isInvisible(char32_t codePoint);

/// Returns whether a line that begins with the symbol runs from right to left (Bidi_Class R or AL of
/// Unicode). A host that shows a name after such a symbol puts U+200E before the name.
GLYPHORIUM_EXPORT bool runsRightToLeft(std::string_view symbol);

/// Returns the number of columns that the text occupies on a terminal. A grapheme cluster occupies 0 columns
/// if it consists of marks and invisible characters only, 2 columns if it is East Asian wide or fullwidth or
/// an emoji, otherwise 1 column.
GLYPHORIUM_EXPORT int displayWidth(std::string_view text);

}  // namespace glyph

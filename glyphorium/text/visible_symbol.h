// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

/// Functions for showing a symbol in a list, in a window or on a terminal. Any thread may call these
/// functions.
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

/// Returns whether a line that begins with the symbol runs from right to left (Bidi_Class R or AL of
/// Unicode). A host that shows a name after such a symbol puts U+200E before the name.
GLYPHORIUM_EXPORT bool runsRightToLeft(std::string_view symbol);

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

/// How a symbol is shown in a list, in a window or on a terminal. Any thread may call these functions.
namespace glyph {

/// The symbol (ComputedEntity::symbol, UTF-8) in a form that shows something and that changes nothing of the
/// text around it:
/// - a control of ASCII is its picture ("␀" to "␡", the block Control Pictures),
/// - a space (general category Zs) is "␣",
/// - a mark (general category M) at the beginning stands on "◌",
/// - a code point for private use is "▯", because only the fonts of its vendor have it,
/// - any other code point that shows nothing (line separators, C1 controls, format characters, unassigned
///   code points) is "⬚".
/// In a symbol of several code points only controls, direction controls and a mark at the beginning are
/// replaced: joiners and variation selectors shape what is shown. Ill-formed bytes become U+FFFD; the empty
/// text stays empty.
GLYPHORIUM_EXPORT std::string visibleSymbol(std::string_view symbol);

/// Whether a line that begins with the symbol runs from right to left (Unicode's Bidi_Class R or AL). A host
/// that shows a name behind such a symbol puts U+200E in front of it.
GLYPHORIUM_EXPORT bool runsRightToLeft(std::string_view symbol);

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// One way to type a character.
struct WayToType {
  /// The method. It decides what `text` contains:
  /// - "compose": the keys to press after the Compose key of X11 and Wayland, separated by blanks; ␣ is the
  /// space bar;
  /// - "latex": a LaTeX command; "digraph": the two characters after Ctrl+K in an editor that follows RFC
  /// 1345;
  /// - "shortcode": a word between colons, as chat programs and source code hosts accept it;
  /// - "alt-code": the digits to type on the key pad of Windows while Alt is held;
  /// - "ctrl-shift-u": the digits to type after Ctrl+Shift+U in GTK and IBus;
  /// - "keysym": the name in xmodmap, xdotool and keyboard layouts.
  std::string_view method;
  std::string text;
  std::string_view
      where;  ///< the code page of an Alt code: "cp437", "cp850" or "cp1252"; empty for other methods
};

/// Returns the ways to type a character or an emoji. If there are several ways with the same method, the most
/// usual one comes first. Every code point except surrogates has at least one way. The list is empty for any
/// other text. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<WayToType> waysToType(std::string_view text);

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace glyph::search {

/// The characters that a text stands for in other programs. A character is given as its key, which is its
/// code point or the number of an emoji: see characterKey().
struct NotationsFound {
  std::vector<std::uint32_t> certain;  ///< the text is a whole notation in an unmistakable form
  std::vector<std::uint32_t> begun;    ///< one of their notations begins with the text
  std::vector<std::uint32_t> drawn;    ///< the text is a drawing of them
  std::vector<std::uint32_t> guessed;  ///< the text may also mean something else
};

/// Reads a UTF-8 text without blanks at its ends as a notation. Letter case counts. These are notations:
/// - a LaTeX command: "\alpha", "$\to$", "\'e", "\'{e}", "\c c", "\not\in", "\mathbb{R}";
/// - a shortcode between colons: ":tada:"; the last colon may be missing; ":+1::skin-tone-3:";
/// - a Windows Alt code: "alt 0176", "alt+3", "[Alt] 0176", or a code before Alt+X: "2640 Alt+X";
/// - a sequence of keys after the Compose key: "Compose < 3", "compose o c", "<Multi_key> <o> <c>";
/// - an HTML reference to a C1 control, which means a character of Windows-1252: "&#150;";
/// - characters whose UTF-8 was read as Windows-1252: "â€™" for "’";
/// - a drawing with the signs of a keyboard: "|->", "[x]", ":-)";
/// - a digraph of editors: "^K a:", "Ctrl-K a:", "digraph a:". If only "a:" is typed, it is a guess.
NotationsFound readNotation(std::string_view text);

}  // namespace glyph::search

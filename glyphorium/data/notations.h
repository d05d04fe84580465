// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The ways to write characters in other programs, such as LaTeX commands. The data is in the library's
/// read-only image; the generator creates it from the source files in input/. Each line has a notation, then
/// the characters that it may stand for, the most likely first, as code points in hexadecimal digits. Commas
/// separate the code points of one emoji.
/// Tabs separate these columns. The lines are in ascending byte order, and a line feed ends each line.
namespace glyph::notations {

extern const std::string_view latexCommands;     ///< with the backslash: "\alpha", "\'{e}", "\mathbb{R}"
extern const std::string_view shortcodes;        ///< without colons: "tada"
extern const std::string_view composeSequences;  ///< the keys after the Compose key, without blanks: "<3"
extern const std::string_view digraphs;          ///< two characters, as in RFC 1345 and in editors: "a:"
extern const std::string_view drawings;          ///< signs of a keyboard, without blanks: "|->", ":-)"
extern const std::string_view altCodes;          ///< decimal numbers; a leading zero means code page 1252

}  // namespace glyph::notations

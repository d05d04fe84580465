// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "glyphorium/data/code_point_texts.h"
#include "glyphorium/data/packed_texts.h"

/// Facts about all characters of Unicode 17.0 and about emoji, in the library's read-only image. The
/// generator creates them from the source files in characters/ and input/. In the columns, several code
/// points are written as UTF-8, if nothing else is said. The entries of a table of ranges begin at the first
/// code point of a range; their first column is the last one, in hexadecimal digits.
namespace glyph {

/// Names that the table of Unicode 13.0 does not have.
extern const CodePointTexts laterNames;
/// Ranges whose names end in the code point: last code point, prefix of the name.
extern const CodePointTexts nameRanges;
/// Ranges of assigned code points: last code point, version of Unicode, general category, script,
/// bidirectional class, East Asian width, combining class.
extern const CodePointTexts propertyRanges;
/// Ranges: last code point, name of the block.
extern const CodePointTexts blockRanges;
/// Upper case, lower case, title case; empty if the character maps to itself.
extern const CodePointTexts caseMappings;
/// Kind, mapping.
extern const CodePointTexts decompositions;
/// The characters whose canonical decomposition begins with this one, the characters that a compatibility
/// decomposition maps to exactly this one.
extern const CodePointTexts composites;
extern const CodePointTexts numericValues;
extern const CodePointTexts mirrorImages;
/// Type of an alias, alias, and so on.
extern const CodePointTexts nameAliases;
/// Kind of a remark ("alias", "comment", or "see" with a code point), text, and so on.
extern const PackedTexts remarks;
/// Definition, readings: Mandarin, Japanese on, Japanese kun, Korean.
extern const PackedTexts hanReadings;
/// The text to which all characters of a class look alike, the characters of the class.
extern const CodePointTexts lookAlikeClasses;

/// All emoji of general interchange, one character or several, in ascending order of the emoji without
/// U+FE0F. An emoji is known by its number: firstEmojiNumber plus its position, in place of a code point.
/// Columns: the emoji, kind, version of emoji, group and subgroup (empty for a variant, which has those of
/// its base), position in the order of Unicode's lists, position here of the emoji that it is a variant of
/// (itself if it is none).
inline constexpr char32_t firstEmojiNumber = 0x110000;
extern const CodePointTexts emojiTable;
/// Positions in emojiTable, as decimal numbers, by firstEmojiNumber plus the position in the order of
/// Unicode's lists.
extern const CodePointTexts emojiOrder;

/// The emoji that shows how a language names skin tones: the waving hand, whose name with a tone begins with
/// its name.
inline constexpr char32_t toneSample = 0x1F44B;

/// Names and keywords of CLDR in a language.
struct CharacterAnnotations {
  std::string_view language;  ///< BCP 47
  /// By code point or number of an emoji: the text-to-speech name, which may be empty, and the keywords,
  /// separated by line feeds. An emoji of one skin tone is left out if its name is that of the emoji without,
  /// and then what the name of toneSample in this tone adds to that of toneSample.
  PackedTexts texts;
};
extern const std::span<const CharacterAnnotations> characterAnnotations;

/// How characters are typed. By code point, or by number of an emoji if there are several code points.
/// Keys after the Compose key, separated by spaces; each column is one sequence.
extern const PackedTexts composeKeys;
/// Each column is one command; those on which more sources agree come first.
extern const PackedTexts latexCommands;
/// Each column is one digraph.
extern const PackedTexts digraphs;
/// Each column is one name of a keysym of X11.
extern const PackedTexts keysyms;
/// Each column is one shortcode, without colons.
extern const PackedTexts shortcodes;
/// Code page, number, and so on.
extern const CodePointTexts altCodes;

}  // namespace glyph

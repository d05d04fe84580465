// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "glyphorium/data/code_point_texts.h"
#include "glyphorium/data/packed_texts.h"

/// Facts about all characters of Unicode 17.0 and about emoji, in the library's read-only image. The
/// generator creates them from the source files in characters/ and input/. Columns with code points contain
/// them as UTF-8 text, unless the comment of the table says otherwise. In a table of ranges, the key of an
/// entry is the first code point of the range, and the first column is the last code point of the range, in
/// hexadecimal digits.
namespace glyph {

/// Names of characters that are newer than the Unicode 13.0 name table.
extern const CodePointTexts laterNames;
/// Ranges of characters whose names are a prefix followed by the code point. Columns: last code point,
/// prefix.
extern const CodePointTexts nameRanges;
/// Ranges of assigned code points. Columns: last code point, version of Unicode, general category, script,
/// bidirectional class, East Asian width, combining class.
extern const CodePointTexts propertyRanges;
/// Ranges of blocks. Columns: last code point, name of the block.
extern const CodePointTexts blockRanges;
/// Columns: upper case, lower case, title case. A column is empty if the character maps to itself.
extern const CodePointTexts caseMappings;
/// Columns: kind of decomposition ("compat"), characters of the decomposition.
extern const CodePointTexts decompositions;
/// Columns: the characters whose canonical decomposition begins with the key, the characters whose
/// compatibility decomposition is exactly the key.
extern const CodePointTexts composites;
extern const CodePointTexts numericValues;
extern const CodePointTexts mirrorImages;
/// Pairs of columns: type of the alias, alias.
extern const CodePointTexts nameAliases;
/// Pairs of columns: kind of the remark ("alias", "comment", or "see" with a code point), text.
extern const PackedTexts remarks;
/// Columns: definition, then the readings: Mandarin, Japanese on, Japanese kun, Korean.
extern const PackedTexts hanReadings;
/// Classes of characters that look alike. Columns: the text that all of them look like, the characters.
extern const CodePointTexts lookAlikeClasses;

/// All emoji that are recommended for general interchange. They are in ascending order of their code points,
/// without U+FE0F. The key of an emoji is not a code point but its number: firstEmojiNumber plus its position
/// in this table. Columns: the emoji, kind, version of emoji, group and subgroup (empty for a variant, which
/// has those of its base), position in the order of Unicode's lists, position of its base in this table (its
/// own position if it is not a variant).
inline constexpr char32_t firstEmojiNumber = 0x110000;
extern const CodePointTexts emojiTable;
/// Positions in emojiTable, as decimal numbers. The keys are firstEmojiNumber plus the position in the order
/// of Unicode's lists.
extern const CodePointTexts emojiOrder;

/// The names of this emoji, the waving hand, show what a language calls the skin tones. Its name with a skin
/// tone begins with its name without one.
inline constexpr char32_t toneSample = 0x1F44B;

/// The first and the last of the code points that give the emoji before them a skin tone.
inline constexpr char32_t lightestModifier = 0x1F3FB;
inline constexpr char32_t darkestModifier = 0x1F3FF;
constexpr bool isSkinToneModifier(char32_t codePoint) {
  return codePoint >= lightestModifier && codePoint <= darkestModifier;
}

/// Names and keywords of CLDR in a language.
struct CharacterAnnotations {
  std::string_view language;  ///< BCP 47
  /// The keys are code points and numbers of emoji. Columns: the text-to-speech name, which may be empty, and
  /// the keywords. The keywords are separated by line feeds. An emoji with one skin tone is left out if its
  /// name can be built: from the name without the tone and from what this tone appends to the name of
  /// toneSample.
  PackedTexts texts;
};
extern const std::span<const CharacterAnnotations> characterAnnotations;

/// How characters are typed. The keys of these tables are code points, or numbers of emoji that have several
/// code points. Each column of this table is one sequence of keys after the Compose key, separated by spaces.
extern const PackedTexts composeKeys;
/// Each column is one command. The commands that most sources have come first.
extern const PackedTexts latexCommands;
/// Each column is one digraph.
extern const PackedTexts digraphs;
/// Each column is the name of one X11 keysym.
extern const PackedTexts keysyms;
/// Each column is one shortcode, without colons.
extern const PackedTexts shortcodes;
/// Pairs of columns: code page, number.
extern const CodePointTexts altCodes;

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "glyphorium/data/code_point_texts.h"
#include "glyphorium/data/packed_texts.h"

/// Facts about all characters of Unicode 17.0 and about emoji, in the library's read-only image. The
/// generator creates them from the source files in characters/ and input/. A column of code points contains
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
/// Case mappings. Columns: upper case, lower case, title case. A column is empty if the character maps to
/// itself.
extern const CodePointTexts caseMappings;
/// Decomposition mappings. Columns: kind of decomposition ("compat"), characters of the decomposition.
extern const CodePointTexts decompositions;
/// The decompositions in reverse. First column: the characters whose canonical decomposition begins with the
/// key. Second column: the characters whose compatibility decomposition is exactly the key.
extern const CodePointTexts composites;
extern const CodePointTexts numericValues;
extern const CodePointTexts mirrorImages;
/// Formal aliases. Pairs of columns: type of the alias, alias.
extern const CodePointTexts nameAliases;
/// Remarks of Unicode's code charts. Pairs of columns: kind of the remark ("alias", "comment" or "see"), its
/// text. The text of a "see" is a code point.
extern const PackedTexts remarks;
/// Facts about ideographs. Columns: English definition, then the readings: Mandarin, Japanese on, Japanese
/// kun, Korean.
extern const PackedTexts hanReadings;
/// Classes of characters that look alike. Columns: a text that each character of the class looks like, the
/// characters of the class.
extern const CodePointTexts lookAlikeClasses;

/// All emoji that are recommended for general interchange, in ascending order of their code points. The order
/// ignores U+FE0F. The key of an emoji is not a code point but its number: firstEmojiNumber plus its position
/// in this table. Columns: the emoji, kind, version of Unicode Emoji, group, subgroup, position in the order
/// of Unicode's lists, position in this table of the same emoji without skin tones. The group and the
/// subgroup are empty for an emoji with a skin tone, which belongs to the groups of the emoji without it.
inline constexpr char32_t firstEmojiNumber = 0x110000;
extern const CodePointTexts emojiTable;
/// The emoji in the order of Unicode's lists. Each key is firstEmojiNumber plus the position in that order.
/// The column is the position in emojiTable, as a decimal number.
extern const CodePointTexts emojiOrder;

/// An emoji (the waving hand) whose names show what a language calls the skin tones: its name with a skin
/// tone is its name without a tone, followed by the name of the tone.
inline constexpr char32_t toneSample = 0x1F44B;

/// The first and the last of the skin tone modifiers. A modifier follows an emoji and gives it a skin tone.
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
  /// name is the name without the tone, followed by the name of the tone. See toneSample.
  PackedTexts texts;
};
extern const std::span<const CharacterAnnotations> characterAnnotations;

/// The following tables say how characters are typed. Their keys are code points, or numbers of emoji that
/// have several code points. In this first table, each column is one sequence of keys to press after the
/// Compose key, separated by spaces.
extern const PackedTexts composeKeys;
/// LaTeX commands, one in each column. Commands that more sources contain come first.
extern const PackedTexts latexCommands;
/// Digraphs of RFC 1345, one in each column.
extern const PackedTexts digraphs;
/// Names of X11 keysyms, one in each column.
extern const PackedTexts keysyms;
/// Shortcodes without colons, one in each column.
extern const PackedTexts shortcodes;
/// Alt codes of Windows. Pairs of columns: code page, number.
extern const CodePointTexts altCodes;

}  // namespace glyph

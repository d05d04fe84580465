// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/search/resolving.h"
#include "glyphorium/text/nearest_texts.h"

/// Functions that convert command-line arguments to characters and groups, and error messages for arguments
/// that are neither.
namespace cli {

using glyph::Character;
using glyph::codePointOf;
using glyph::groupNamed;
using glyph::nearestTexts;
using glyph::ResolvedText;

/// Returns the characters of all of Unicode that an argument means. The argument may be anything that
/// glyph::resolve() reads, or
/// - emoji of several code points, also given as codes;
/// - Unicode names and formal aliases, names of emoji, shortcodes with their colons (":+1:");
/// - surrogates, given as codes;
/// - octal and binary numbers: "0o20622", "0b10000110010010";
/// - several characters in a row, if none of them is ASCII.
/// An emoji of several code points counts as one character. The catalog must be configured.
ResolvedText resolve(std::string_view argument);

/// Returns the characters of a set, in the order of code points or of Unicode's lists of emoji. An argument
/// may be:
/// - a range of codes: "U+2190..2193", "2190..21ff", "U+2190-U+2193";
/// - "block:arrows", "script:Greek", "category:Sc", "age:15": see glyph::charactersWith();
/// - "property:White_Space": one of binaryProperties(), as the installed ICU knows it;
/// - "emoji": all emoji, without their variants with skin tones;
/// - "emoji:food": the same emoji, but only of groups and subgroups with this word in their names.
/// Letter case does not matter. Returns nullopt if the argument has none of these forms. The list is empty if
/// the set contains no characters. The catalog need not be configured.
std::optional<std::vector<glyph::Entity>> charactersOfSet(std::string_view argument);

/// Returns the names of the properties that are either true or false: "White_Space", "Dash".
std::vector<std::string> binaryProperties();

/// Returns an error message for a set that is unknown or empty. The message suggests the most similar values.
std::string unknownSet(const std::string& argument);

/// Returns an error message that the argument is not a character. If a search for the argument finds
/// characters, the message suggests the first of them.
std::string unknownCharacter(const std::string& argument);

/// Returns an error message that there is no group with this name. The message suggests the most similar
/// names.
std::string unknownGroup(std::string_view name);

/// Returns the characters that the user added, oldest first. Those that the catalog's list leaves out,
/// because the name table does not have them, get the names of the supplement.
std::vector<glyph::Entity> addedEntities();

/// Returns the entity of a code point from the catalog. If the catalog does not contain the code point,
/// returns the entity from the supplement.
glyph::Entity entityOfCodePoint(char32_t codePoint);

}  // namespace cli

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/catalog/glyphorium.h"

/// From what a user types to entities and groups.
namespace cli {

/// The code point of a text that is 2192 or one form that glyph::parseCodes() reads; nullopt for other texts
/// and for what is no Unicode scalar value.
std::optional<char32_t> codePointOf(std::string_view text);

/// All entities of one character: those of the catalog, which differ in their groups only, or one made for it
/// and named by the name table where the catalog holds none (its name is empty where that has none either).
using Character = std::vector<glyph::Entity>;

/// What an argument means.
struct Resolved {
  std::vector<Character> characters;  // none where nothing matches
  bool alternatives = false;          // one of them is meant: they share the name that the argument is
};

/// The argument is a pasted character or several that form one, codes, HTML references or a name.
Resolved resolve(std::string_view argument);

/// A sentence that offers what a search finds for an argument that is no character's exact name.
std::string unknownCharacter(const std::string& argument);

/// The group's name as the catalog spells it, letter case aside.
std::optional<std::string> groupNamed(std::string_view name);

/// The candidates closest to the text, at most three, for "did you mean".
std::vector<std::string> nearest(std::string_view text, const std::vector<std::string>& candidates);

/// A sentence that offers the nearest group names.
std::string unknownGroup(std::string_view name);

}  // namespace cli

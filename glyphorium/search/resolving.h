// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

/// From what a user types to characters and groups. Unlike Search, this finds only what the text says
/// exactly.
namespace glyph {

/// All entities of one character. Those of the catalog differ in their groups only. For a character that the
/// catalog does not hold there is one, with an empty group; its name is that of the name table, or empty.
using Character = std::vector<Entity>;

/// What a text means.
struct ResolvedText {
  std::vector<Character> characters;  ///< in the order of the text; empty where the text means none
  /// The text is a name that all of the characters share: one of them is meant, not all.
  bool alternatives = false;
};

/// The characters that a text means. The text is one user-perceived character (its code points are resolved
/// one by one), or codes and HTML references in the forms of parseCodes(), or a bare hexadecimal number of
/// four digits or more, or an exact name of the catalog or of the name table, letter case aside. All of the
/// text must be understood, or there are no characters. The catalog must be configured; it is only read.
GLYPHORIUM_EXPORT ResolvedText resolve(std::string_view text, const Glyphorium& catalog = glyphorium());

/// The code point of a text that is one code in a form of parseCodes() or a bare hexadecimal number of four
/// digits or more; nullopt for other texts and for what is no Unicode scalar value. Any thread may call it.
GLYPHORIUM_EXPORT std::optional<char32_t> codePointOf(std::string_view text);

/// The first entity of the code point in the catalog; for others one with an empty group, whose name is that
/// of the name table, or empty. Needs no configured catalog; any thread may call it.
GLYPHORIUM_EXPORT Entity entityOf(char32_t codePoint);

/// The names of all groups, "custom" first, then in the order of the tables. Needs no configured catalog; any
/// thread may call it.
GLYPHORIUM_EXPORT std::vector<std::string> groupNames();

/// The group's name as the catalog spells it, letter case aside; nullopt where there is none.
GLYPHORIUM_EXPORT std::optional<std::string> groupNamed(std::string_view name);

}  // namespace glyph

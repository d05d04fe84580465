// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

/// Functions that convert text that a user types to characters and groups. Unlike Search, they find only
/// exact matches.
namespace glyph {

/// All entities of one character, at least one. Entities of the catalog differ only in their groups. If the
/// catalog does not contain the character, there is one entity with an empty group. Its name comes from the
/// name table. The name is empty if the name table does not contain the character.
using Character = std::vector<Entity>;

/// The characters that a text means.
struct ResolvedText {
  std::vector<Character> characters;  ///< in the order of the text; empty if no character was found
  /// Whether the text is a name that all these characters share. Then the text means one of the characters,
  /// not all of them. Also true for a name that no character has or that only one character has.
  bool alternatives = false;
};

/// Returns the characters that a UTF-8 text means. The text may be:
/// - one user-perceived character. Each of its code points is resolved separately;
/// - codes and HTML references in the forms that parseCodes() reads;
/// - a hexadecimal number without a prefix, of four digits or more;
/// - an exact name in the catalog or in the name table. Letter case does not count.
/// If a part of the text has no meaning, the result has no characters. The catalog must be configured. The
/// function only reads it.
GLYPHORIUM_EXPORT ResolvedText resolve(std::string_view text, const Glyphorium& catalog = glyphorium());

/// Returns the code point of a text that is one code. The code has a form that parseCodes() reads, or it is a
/// hexadecimal number without a prefix, of four digits or more. Returns nullopt for any other text, for an
/// HTML name, and if the code is not a Unicode scalar value. Any thread may call it.
GLYPHORIUM_EXPORT std::optional<char32_t> codePointOf(std::string_view text);

/// Returns the first entity of the code point in the catalog. If the catalog does not contain the code point,
/// returns an entity with an empty group. Its name comes from the name table. The name is empty if the name
/// table does not contain the code point. The catalog need not be configured. Any thread may call it.
GLYPHORIUM_EXPORT Entity entityOf(char32_t codePoint);

/// Returns the names of all groups: "custom", then the others in the order of the group tables. The catalog
/// need not be configured. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<std::string> groupNames();

/// Returns the name of the group in the spelling of the catalog. Letter case does not count in `name`.
/// Returns nullopt if there is no such group.
GLYPHORIUM_EXPORT std::optional<std::string> groupNamed(std::string_view name);

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

/// The supplement: characters and emoji that the catalog does not contain, as entities. They belong to no
/// group, have no enrichment, and are never part of the catalog's own lists.
namespace glyph {

/// Returns the name under which hosts show a character or an emoji, in the spelling of the catalog: "Melting
/// Face", "Flag: Germany", "Cjk Unified Ideograph-6F22". A control has its first alias ("Character
/// Tabulation"), another code point without a name its label ("<private-use-E000>"). Empty if the text is no
/// single character and no emoji. Any thread may call it.
GLYPHORIUM_EXPORT std::string shownCharacterName(std::string_view text);

/// Returns an entity of a character or an emoji with all code forms. Its hex code is a hex list if there are
/// several code points; its name is shownCharacterName(). For another text the name is empty. Any thread may
/// call it.
GLYPHORIUM_EXPORT Entity supplementEntity(std::string_view text);

/// Does the same for a code point. It may also be a surrogate, whose entity has no symbol.
GLYPHORIUM_EXPORT Entity supplementEntity(char32_t codePoint);

/// Gives an entity without a name the name of the supplement, and returns it. For entities of characters that
/// the user added and the catalog does not name.
GLYPHORIUM_EXPORT Entity withSupplementName(Entity entity);

/// Returns the UTF-8 texts of all characters and emoji of the supplement: the emoji in the order of Unicode's
/// lists, then the characters that have a name of their own, then the ideographs that have a meaning, each in
/// the order of code points. annotationOf() has names and keywords for them, characterFacts() their aliases
/// and meanings. The list has some 50,000 elements; building it takes milliseconds. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<std::string> supplementTexts();

}  // namespace glyph

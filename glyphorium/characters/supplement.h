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
/// Face", "Flag: Germany", "Cjk Unified Ideograph-6F22". A control character is shown under its first alias
/// ("Character Tabulation"). Any other code point without a name is shown under its label
/// ("<private-use-E000>"). Empty if the text is neither a single character nor an emoji. Any thread may call
/// it.
GLYPHORIUM_EXPORT std::string shownCharacterName(std::string_view text);

/// Returns an entity for a character or an emoji, with all code forms. An emoji of several code points has a
/// hex list as its hex code. The name is the result of shownCharacterName(), so it is empty for any other
/// text. Any thread may call it.
GLYPHORIUM_EXPORT Entity supplementEntity(std::string_view text);

/// Returns such an entity for a single code point. The entity of a surrogate has an empty symbol.
GLYPHORIUM_EXPORT Entity supplementEntity(char32_t codePoint);

/// If the entity has no name, returns it with the name from shownCharacterName(). Otherwise returns it
/// unchanged. Use this function for characters that the user added, because the catalog may have no name for
/// them.
GLYPHORIUM_EXPORT Entity withSupplementName(Entity entity);

/// Returns the UTF-8 texts of all characters and emoji of the supplement: first the emoji in the order of
/// Unicode's lists, then the characters with a name that is not computed, then the ideographs with a meaning.
/// Characters and ideographs are in the order of code points. annotationOf() returns the names and keywords
/// of an element, characterFacts() its aliases and its meaning. The list has some 50,000 elements; building
/// it takes milliseconds. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<std::string> supplementTexts();

}  // namespace glyph

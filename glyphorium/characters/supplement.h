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
/// Face", "Flag: Germany", "Cjk Unified Ideograph-6F22". For a control character it is the first alias
/// ("Character Tabulation"), for any other code point without a name the label ("<private-use-E000>"). Empty
/// if the text is neither a single character nor an emoji. Any thread may call it.
GLYPHORIUM_EXPORT std::string shownCharacterName(std::string_view text);

/// Returns an entity of a character or an emoji with all code forms. Its hex code is a hex list if there are
/// several code points. Its name is shownCharacterName(), which is empty for any other text. Any thread may
/// call it.
GLYPHORIUM_EXPORT Entity supplementEntity(std::string_view text);

/// Returns the same for a code point. It may be a surrogate, whose entity has no symbol.
GLYPHORIUM_EXPORT Entity supplementEntity(char32_t codePoint);

/// Returns the entity. If it has no name, it gets the name of the supplement. This is for characters that the
/// user added and that have no name in the catalog.
GLYPHORIUM_EXPORT Entity withSupplementName(Entity entity);

/// Returns the UTF-8 texts of all characters and emoji of the supplement: first the emoji in the order of
/// Unicode's lists, then the characters with a name that is not computed, then the ideographs with a meaning.
/// Characters and ideographs are in the order of code points. annotationOf() has names and keywords for them,
/// characterFacts() their aliases and meanings. The list has some 50,000 elements; building it takes
/// milliseconds. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<std::string> supplementTexts();

}  // namespace glyph

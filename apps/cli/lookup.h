// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/catalog/glyphorium.h"

/// From what a user types to entities and groups.
namespace cli {

/// The code point of U+2192, u2192, 0x2192, 2192, \u2192, \u{2192}, &#x2192; or &#8594;; nullopt for other
/// texts and for what is no Unicode scalar value.
std::optional<char32_t> codePointOf(std::string_view text);

/// All entities of the code point: those of the catalog, or one made for it and named by the name table where
/// the catalog holds none (its name is empty where that has none either).
std::vector<glyph::Entity> entitiesOf(char32_t codePoint);

/// What the argument means: a pasted character or several that form one, a code, an HTML reference or a name.
/// Empty where nothing matches.
std::vector<glyph::Entity> resolve(std::string_view argument);

/// A sentence that offers what a search finds for an argument that is no character's exact name.
std::string unknownCharacter(const std::string& argument);

/// The group's name as the catalog spells it, letter case aside.
std::optional<std::string> groupNamed(std::string_view name);

/// The candidates closest to the text, at most three, for "did you mean".
std::vector<std::string> nearest(std::string_view text, const std::vector<std::string>& candidates);

/// A sentence that offers the nearest group names.
std::string unknownGroup(std::string_view name);

}  // namespace cli

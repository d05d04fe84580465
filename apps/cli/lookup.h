// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/search/resolving.h"
#include "glyphorium/text/nearest_texts.h"

/// Error messages for arguments that are not a character or not a group.
namespace cli {

using glyph::Character;
using glyph::codePointOf;
using glyph::groupNamed;
using glyph::nearestTexts;
using glyph::resolve;
using glyph::ResolvedText;

/// Returns a message that the argument is not a character. If a search for the argument finds characters, the
/// message suggests the first of them.
std::string unknownCharacter(const std::string& argument);

/// Returns a message that there is no such group. The message suggests the group names that are most similar.
std::string unknownGroup(std::string_view name);

}  // namespace cli

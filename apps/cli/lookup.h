// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/search/resolving.h"
#include "glyphorium/text/nearest_texts.h"

/// What the commands say where a text means no character and no group.
namespace cli {

using glyph::Character;
using glyph::codePointOf;
using glyph::groupNamed;
using glyph::nearestTexts;
using glyph::resolve;
using glyph::ResolvedText;

/// A sentence that offers what a search finds for an argument that is no character's exact name.
std::string unknownCharacter(const std::string& argument);

/// A sentence that offers the nearest group names.
std::string unknownGroup(std::string_view name);

}  // namespace cli

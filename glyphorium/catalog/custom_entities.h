// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// The entities of characters that a user added, by their hex codes or hex lists, in that order: in the group
/// "custom", named from the name table and enriched. A code without a name gives none.
std::vector<Entity> customEntities(const std::vector<std::string>& codes);

}  // namespace glyph

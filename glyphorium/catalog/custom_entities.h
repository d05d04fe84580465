// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Returns the entities of the characters with these hex codes or hex lists, in the same order. Each entity
/// has the group "custom", the name in the Unicode name table, and its enrichment. A code without a name in
/// that table is left out.
std::vector<Entity> customEntities(const std::vector<std::string>& codes);

}  // namespace glyph

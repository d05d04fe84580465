// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

/// Functions that return entities of the catalog. The entities are made from rows that the build has already
/// decoded, and their texts are constants of the library. Any thread may call these functions.
namespace glyph {

/// Returns the entities of all configured tables, in the order of the tables, each joined with its
/// enrichment. The first call creates the list; it lives until the process ends. Copies of the entities share
/// their enrichment.
const std::vector<Entity>& preparedEntities();

/// Returns a copy of the entity at the index `place` of preparedEntities(), without creating that list.
/// Returns nullopt if the index is too large.
std::optional<Entity> preparedEntity(std::size_t place);

/// Returns Entity::name() of this entity. Empty if the index is too large.
std::string preparedName(std::size_t place);

/// Returns the enrichment of the entities with this hex code. Hex codes are compared byte for byte. Returns
/// nullopt if there is no enrichment for the hex code.
std::optional<AdditionalData> preparedEnrichmentOf(std::string_view hex);

}  // namespace glyph

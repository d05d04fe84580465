// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "glyphorium/entity/records.h"
#include "glyphorium/search/index_image.h"

namespace glyph::search {

class IndexBuilder;

/// Whether an index has the names that hosts show. An index of the catalog need not: see Index::nameOf.
enum class ShownNames { stored, elsewhere };

/// Builds the index of a list of entities. Entities with the same hex code become one doc.
IndexImage buildIndex(std::span<const Entity> entities, ShownNames shownNames = ShownNames::stored);

/// Adds a name in the spelling of the catalog, and for letters how they look.
void addName(IndexBuilder& builder, std::string_view name);

/// Adds the informal aliases and the comments of the code charts.
void addRemarks(IndexBuilder& builder, std::uint32_t codePoint);

/// Adds addRemarks() and the texts that the sources of the search have for a code point: aliases,
/// annotations, everyday names.
void addSearchFacts(IndexBuilder& builder, std::uint32_t codePoint);

}  // namespace glyph::search

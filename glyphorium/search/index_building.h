// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "glyphorium/entity/records.h"
#include "glyphorium/search/index_image.h"

namespace glyph::search {

class IndexBuilder;

/// Whether an index contains the names that hosts show. The index of the catalog need not contain them: see
/// Index::nameOf.
enum class ShownNames { stored, elsewhere };

/// Builds the index of a list of entities. Entities with the same hex code become one doc.
IndexImage buildIndex(std::span<const Entity> entities, ShownNames shownNames = ShownNames::stored);

// The following functions add texts to the doc that was added to the builder last.

/// Adds a name in the spelling of the catalog ("Rightwards Arrow"). If it is the name of a letter, also adds
/// words that describe how the letter looks.
void addName(IndexBuilder& builder, std::string_view name);

/// Adds the informal aliases and the comments that the code charts have for the code point.
void addRemarks(IndexBuilder& builder, std::uint32_t codePoint);

/// Adds the formal aliases, HTML names and everyday names of the code point.
void addOtherNames(IndexBuilder& builder, std::uint32_t codePoint);

/// Adds the text-to-speech names and the keywords of a character or an emoji in all languages.
void addAnnotations(IndexBuilder& builder, std::string_view text);

}  // namespace glyph::search

// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "glyphorium/entity/records.h"
#include "glyphorium/search/index_image.h"

namespace glyph::search {

/// Builds the index of a list of entities. Entities with the same hex code become one doc.
IndexImage buildIndex(std::span<const Entity> entities);

}  // namespace glyph::search

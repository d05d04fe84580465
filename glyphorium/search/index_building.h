// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "glyphorium/entity/records.h"
#include "glyphorium/search/index_image.h"

namespace glyph::search {

/// The index of a list of entities. Several entities of one hex code are one doc.
IndexImage buildIndex(std::span<const Entity> entities);

}  // namespace glyph::search

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Gives each entity that has no enrichment the first record of `with` that has the same hex code. Hex codes
/// are compared byte for byte.
void enrich(std::vector<Entity>& entities, const std::vector<AdditionalData>& with);

}  // namespace glyph

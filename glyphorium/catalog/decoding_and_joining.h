// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Gives each entity the first enrichment record of its hex code.
void enrich(std::vector<Entity>& entities, const std::vector<AdditionalData>& with);

/// The table with the bare symbols of U+0022 and U+005C escaped: every `"\"` becomes `"\\"`, then every `"""`
/// becomes `"\""`. nullopt for a table that needs none of it, so that it can be parsed where it lies.
std::optional<std::string> repairedTable(std::string_view json);

}  // namespace glyph

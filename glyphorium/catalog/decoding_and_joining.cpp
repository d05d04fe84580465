// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/entity/enrichment.h"
#include "glyphorium/entity/table_repair.h"

namespace glyph {

std::optional<std::vector<ComputedEntity>> Glyphorium::getComputedEntitiesFrom(std::string_view json) const {
  const std::optional<std::string> repaired = repairedTable(json);
  return decodeOrReport<ComputedEntity>(repaired ? *repaired : json);
}

std::optional<std::vector<AdditionalData>> Glyphorium::getAdditionalDataFrom(std::string_view json) const {
  return decodeOrReport<AdditionalData>(json);
}

std::vector<Entity> Glyphorium::getEntitiesByEnriching(
    std::vector<ComputedEntity> records, const std::optional<std::vector<AdditionalData>>& with) const {
  std::vector<Entity> entities;
  entities.reserve(records.size());
  for (ComputedEntity& record : records) entities.push_back({std::move(record), std::nullopt});
  if (with) enrich(entities, *with);
  return entities;
}

}  // namespace glyph

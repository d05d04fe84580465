// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/custom_entities.h"

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/entity/prepared_entities.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {

std::vector<Entity> customEntities(const std::vector<std::string>& codes) {
  std::vector<ComputedEntity> records;
  records.reserve(codes.size());
  for (const std::string& code : codes) {
    records.push_back(Unicode(code).computedEntity());
    records.back().group = RecordText::ofConstant(customGroup);
  }
  std::vector<Entity> entities;
  for (ComputedEntity& record : toolKit().addNames(std::move(records))) {
    std::optional<AdditionalData> enrichment = preparedEnrichmentOf(record.hex);
    entities.push_back({std::move(record), std::move(enrichment)});
  }
  return entities;
}

std::vector<Entity> Glyphorium::getCustomEntities() const {
  return customEntities(customAddedEntityUnicodes());
}

}  // namespace glyph

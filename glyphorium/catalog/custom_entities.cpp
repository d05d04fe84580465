// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/custom_entities.h"

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_image.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/entity/enrichment.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {

std::vector<Entity> customEntities(const std::vector<std::string>& codes) {
  std::vector<ComputedEntity> records;
  records.reserve(codes.size());
  for (const std::string& code : codes) {
    records.push_back(Unicode(code).computedEntity());
    records.back().group = RecordText::ofConstant(customGroup);
  }
  // Only the enrichment rows of these codes are decoded, because the codes are few and the table is large.
  std::string rows = "[";
  std::vector<Entity> entities;
  for (ComputedEntity& record : toolKit().addNames(std::move(records))) {
    const std::string_view row = enrichmentRow(record.hex);
    if (!row.empty()) (rows += rows.size() > 1 ? "," : "") += row;
    entities.push_back({std::move(record), std::nullopt});
  }
  std::vector<AdditionalData> enrichment;
  if (rows.size() > 1) TableDecoder().append(rows += "]", enrichment);
  enrich(entities, enrichment);
  return entities;
}

std::vector<Entity> Glyphorium::getCustomEntities() const {
  return customEntities(customAddedEntityUnicodes());
}

}  // namespace glyph

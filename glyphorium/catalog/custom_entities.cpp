// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {

std::vector<Entity> Glyphorium::getCustomEntities() const {
  std::vector<ComputedEntity> records;
  for (std::string& code : customAddedEntityUnicodes()) {
    records.push_back(Unicode(std::move(code)).computedEntity());
    records.back().group = customGroup;
  }
  records = toolKit().addNames(std::move(records));
  if (records.empty()) return {};  // usual: spares decoding the enrichment table
  return getEntitiesByEnriching(std::move(records), getAdditionalDataFrom(additionalJson));
}

}  // namespace glyph

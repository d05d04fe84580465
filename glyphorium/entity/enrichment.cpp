// SPDX-License-Identifier: MIT
#include "glyphorium/entity/enrichment.h"

#include <string_view>
#include <unordered_map>

namespace glyph {

void enrich(std::vector<Entity>& entities, const std::vector<AdditionalData>& with) {
  std::unordered_map<std::string_view, const AdditionalData*> firstOfHex;
  firstOfHex.reserve(with.size());
  for (const AdditionalData& enrichment : with) firstOfHex.try_emplace(enrichment.hex, &enrichment);
  for (Entity& entity : entities) {
    if (entity.additional) continue;
    const auto enrichment = firstOfHex.find(entity.computed.hex);
    if (enrichment != firstOfHex.end()) entity.additional = *enrichment->second;
  }
}

}  // namespace glyph

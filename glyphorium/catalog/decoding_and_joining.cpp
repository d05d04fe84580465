// SPDX-License-Identifier: MIT
#include <unordered_map>

#include "glyphorium/catalog/entity/codec.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/catalog/table_repair_internal.h"

namespace glyph {
namespace {

// text with every non-overlapping occurrence of `what` replaced, left to right.
std::string replaced(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  result.reserve(text.size() + 16);
  for (;;) {
    const std::size_t at = text.find(what);
    result += text.substr(0, at);
    if (at == std::string_view::npos) return result;
    result += with;
    text.remove_prefix(at + what.size());
  }
}

}  // namespace

std::optional<std::string> repairedTable(std::string_view json) {
  constexpr std::string_view bareReverseSolidus = "\"\\\"";
  constexpr std::string_view bareQuotationMark = "\"\"\"";
  if (json.find(bareReverseSolidus) == std::string_view::npos &&
      json.find(bareQuotationMark) == std::string_view::npos) {
    return std::nullopt;
  }
  // In this order: the other one would take the escape of the quotation mark for a bare reverse solidus.
  return replaced(replaced(json, bareReverseSolidus, R"("\\")"), bareQuotationMark, R"("\"")");
}

std::optional<std::vector<ComputedEntity>> Glyphorium::getComputedEntitiesFrom(std::string_view json) const {
  const std::optional<std::string> repaired = repairedTable(json);
  return decodeOrReport<ComputedEntity>(repaired ? *repaired : json);
}

std::optional<std::vector<AdditionalData>> Glyphorium::getAdditionalDataFrom(std::string_view json) const {
  return decodeOrReport<AdditionalData>(json);
}

std::vector<Entity> Glyphorium::getEntitiesByEnriching(
    std::vector<ComputedEntity> records, const std::optional<std::vector<AdditionalData>>& with) const {
  std::unordered_map<std::string_view, const AdditionalData*> firstOfHex;
  if (with) {
    firstOfHex.reserve(with->size());
    for (const AdditionalData& enrichment : *with) firstOfHex.try_emplace(enrichment.hex, &enrichment);
  }
  std::vector<Entity> entities;
  entities.reserve(records.size());
  for (ComputedEntity& record : records) {
    const auto enrichment = firstOfHex.find(record.hex);
    Entity& entity = entities.emplace_back(Entity{std::move(record), std::nullopt});
    if (enrichment != firstOfHex.end()) entity.additional = *enrichment->second;
  }
  return entities;
}

}  // namespace glyph

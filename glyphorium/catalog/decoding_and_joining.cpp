// SPDX-License-Identifier: MIT
#include <algorithm>
#include <bitset>
#include <cstdint>
#include <cstring>
#include <unordered_map>

#include "glyphorium/catalog/decoding_and_joining.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/entity/decoding.h"

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

// Whether the table holds one of the two sequences that the repair replaces. Looks at every byte, at memory
// speed: quotation marks are too frequent in JSON for a search that stops at each of them.
bool needsRepair(std::string_view json) {
  // No branch in the loop, so that the compiler makes vector code of it.
  constexpr std::size_t block = 4096;
  for (std::size_t begin = 0; begin + 2 < json.size(); begin += block) {
    const std::size_t end = std::min(begin + block, json.size() - 2);
    unsigned char found = 0;
    for (std::size_t i = begin; i < end; ++i) {
      const int before = json[i] == '"';
      const int after = json[i + 2] == '"';
      const int quotationMark = json[i + 1] == '"';
      const int reverseSolidus = json[i + 1] == '\\';
      found |= static_cast<unsigned char>(before & after & (quotationMark | reverseSolidus));
    }
    if (found) return true;
  }
  return false;
}

}  // namespace

void enrich(std::vector<Entity>& entities, const std::vector<AdditionalData>& with) {
  std::unordered_map<std::string_view, const AdditionalData*> firstOfHex;
  firstOfHex.reserve(with.size());
  // Most entities have no enrichment. A bit for each hex that has any spares them the look-up.
  std::bitset<8192> enriched;
  const auto bitOf = [&](std::string_view hex) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, hex.data(), std::min(hex.size(), sizeof bytes));
    return static_cast<std::size_t>((bytes * 0x9E3779B97F4A7C15u) >> 51);
  };
  for (const AdditionalData& enrichment : with) {
    firstOfHex.try_emplace(enrichment.hex, &enrichment);
    enriched.set(bitOf(enrichment.hex));
  }
  for (Entity& entity : entities) {
    if (!enriched.test(bitOf(entity.computed.hex))) continue;
    const auto enrichment = firstOfHex.find(entity.computed.hex);
    if (enrichment != firstOfHex.end()) entity.additional = *enrichment->second;
  }
}

std::optional<std::string> repairedTable(std::string_view json) {
  constexpr std::string_view bareReverseSolidus = "\"\\\"";
  constexpr std::string_view bareQuotationMark = "\"\"\"";
  if (!needsRepair(json)) return std::nullopt;
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
  std::vector<Entity> entities;
  entities.reserve(records.size());
  for (ComputedEntity& record : records) entities.push_back({std::move(record), std::nullopt});
  if (with) enrich(entities, *with);
  return entities;
}

}  // namespace glyph

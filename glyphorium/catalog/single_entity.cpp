// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_image.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/entity/enrichment.h"
#include "glyphorium/entity/table_repair.h"

namespace glyph {
namespace {

std::string arrayOf(std::string_view object) {
  return "[" + std::string(object) + "]";
}

}  // namespace

std::optional<Entity> buildInEntity(std::size_t place) {
  const std::string_view row = configuredRow(place);
  if (row.empty()) return std::nullopt;
  const std::string table = arrayOf(row);
  const std::optional<std::string> repaired = repairedTable(table);
  TableDecoder decoder;
  std::vector<Entity> entities;
  decoder.append(repaired ? *repaired : table, entities);
  const std::string_view enrichment = enrichmentRow(entities.front().computed.hex);
  if (!enrichment.empty()) {
    std::vector<AdditionalData> rows;
    decoder.append(arrayOf(enrichment), rows);
    enrich(entities, rows);
  }
  return std::move(entities.front());
}

}  // namespace glyph

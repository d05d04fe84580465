// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/entity/enrichment.h"
#include "glyphorium/entity/table_repair.h"
#include "glyphorium/services/diagnostics/diagnostics.h"

namespace glyph {
namespace {

// Returns the number of rows in all configured tables. configure() reserves memory for all rows at once, so
// that the list does not have to grow and move its entities.
std::size_t configuredRows() {
  std::size_t rows = 0;
  for (const EmbeddedText& text : embeddedTexts()) rows += text.configured ? text.rows : 0;
  return rows;
}

std::string nameOf(std::string_view table) {
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.text.data() == table.data()) return std::string(text.constant);
  }
  return {};
}

}  // namespace

void Glyphorium::configure() {
  std::vector<Entity> entities;
  entities.reserve(configuredRows());
  {
    TableDecoder decoder;
    for (const std::string_view table : entityData_) {
      const std::optional<std::string> repaired = repairedTable(table);
      const std::string error = decoder.append(repaired ? *repaired : table, entities);
      if (!error.empty()) printDiagnostic("Group table '" + nameOf(table) + "' not decoded: " + error);
    }
  }
  if (const auto enrichment = getAdditionalDataFrom(additionalJson)) enrich(entities, *enrichment);
  allBuildInEntities_ = std::move(entities);
  allCustomEntities = getCustomEntities();
  allBuildInEntityGroups() = getBuildInEntityGroups();
  setSelectedEntities();
}

}  // namespace glyph

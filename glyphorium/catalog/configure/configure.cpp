// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/entity/codec.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/catalog/table_repair_internal.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/platform/diagnostics.h"

namespace glyph {

void Glyphorium::configure() {
  std::vector<ComputedEntity> records;
  {
    TableDecoder decoder;
    for (const std::string_view table : entityData_) {
      const std::optional<std::string> repaired = repairedTable(table);
      const std::string error = decoder.append(repaired ? *repaired : table, records);
      if (!error.empty()) printDiagnostic("Group table not decoded: " + error);
    }
  }
  allBuildInEntities_ = getEntitiesByEnriching(std::move(records), getAdditionalDataFrom(additionalJson));
  allBuildInEntityGroups() = getBuildInEntityGroups();
}

}  // namespace glyph

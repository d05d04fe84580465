// SPDX-License-Identifier: MIT
#include "glyphorium/data/name_capitalization.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {

std::vector<ComputedEntity> EntityToolKit::addNames(std::vector<ComputedEntity> to) const {
  for (ComputedEntity& record : to) {
    if (const auto entry = findName(record.hex)) {
      record.fallbackName = capitalizedName(entry->name);
      record.isSFSymbol = entry->isSFSymbol;
    }
  }
  std::erase_if(to, [](const ComputedEntity& record) {
    return record.fallbackName.empty() || lowercased(record.fallbackName) == "<control>" ||
           record.group == "Private Use Area";
  });
  return to;
}

}  // namespace glyph

// SPDX-License-Identifier: MIT
#include "glyphorium/state/selected_entities.h"

#include "glyphorium/text/never_destroyed.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {
namespace {

void didSet(const std::vector<Entity>&) {
  toolKit().sendContentHasChangedNotification();
}

}  // namespace

Observed<std::vector<Entity>>& selectedEntities() {
  static NeverDestroyed<Observed<std::vector<Entity>>> entities(&didSet);
  return *entities;
}

std::optional<std::vector<Entity>>& filteredEntities() {
  static NeverDestroyed<std::optional<std::vector<Entity>>> entities;
  return *entities;
}

}  // namespace glyph

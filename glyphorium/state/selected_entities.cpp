// SPDX-License-Identifier: MIT
#include "glyphorium/state/selected_entities.h"

#include "glyphorium/services/notifications/notification_center.h"
#include "glyphorium/services/notifications/notification_names.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {

namespace state_observers {

void selectedEntitiesDidSet(const std::vector<Entity>&) {
  toolKit().sendContentHasChangedNotification();
}

}  // namespace state_observers

SelectedEntities& selectedEntities() {
  static SelectedEntities entities;
  return entities;
}

std::optional<std::vector<Entity>>& filteredEntities() {
  static std::optional<std::vector<Entity>> entities;
  return entities;
}

void EntityToolKit::sendContentHasChangedNotification() const {
  NotificationCenter::defaultCenter().post({notificationName::contentHasChanged, std::nullopt});
}

}  // namespace glyph

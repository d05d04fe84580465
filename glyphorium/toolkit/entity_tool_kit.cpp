// SPDX-License-Identifier: MIT
#include "glyphorium/toolkit/entity_tool_kit.h"

#include "glyphorium/services/notifications/notification_center.h"
#include "glyphorium/services/notifications/notification_names.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {

EntityToolKit& toolKit() {
  static NeverDestroyed<EntityToolKit> instance;
  return *instance;
}

void EntityToolKit::sendContentHasChangedNotification() const {
  NotificationCenter::defaultCenter().post({notificationName::contentHasChanged, std::nullopt});
}

}  // namespace glyph

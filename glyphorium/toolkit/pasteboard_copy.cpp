// SPDX-License-Identifier: MIT
#include "glyphorium/services/notifications/notification_center.h"
#include "glyphorium/services/notifications/notification_names.h"
#include "glyphorium/services/pasteboard/pasteboard.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {

bool EntityToolKit::writeToPasteboard(std::string_view text,
                                      const std::optional<std::string>& displayedValue) const {
  const bool copied = pasteboard()->setPlainText(text);
  NotificationCenter::defaultCenter().post(
      {notificationName::entityCopied, displayedValue.value_or(std::string(text))});
  return copied;
}

}  // namespace glyph

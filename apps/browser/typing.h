// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace browser {

/// How a text gets into the window that has the focus.
struct TypingTool {
  QString program;
  QStringList arguments;  ///< before the text
};

/// Returns the tool for this desktop, or one with an empty program if none is installed: xdotool on X11,
/// wtype on Wayland.
TypingTool typingTool();

/// Types the text into the window that has the focus. `done` is told whether the tool succeeded. Returns at
/// once.
void typeText(const QString& text, std::function<void(bool)> done);

}  // namespace browser

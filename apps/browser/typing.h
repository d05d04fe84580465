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

/// Returns the window that has the focus on X11, as the number that xdotool takes. Empty elsewhere, and if no
/// window has the focus.
QString focusedWindow();

/// Types the text into the window, which gets the focus, or into the one that has the focus if `window` is
/// empty. `done` is told whether the tool succeeded. Returns at once.
void typeText(const QString& text, const QString& window, std::function<void(bool)> done);

}  // namespace browser

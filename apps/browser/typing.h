// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace browser {

/// A program that types a text into the window that has the focus.
struct TypingTool {
  QString program;
  QStringList arguments;  ///< arguments that precede the text
};

/// Returns the tool for this desktop: xdotool on X11, wtype on Wayland. If the tool is not installed, the
/// result has an empty `program`.
TypingTool typingTool();

/// Returns the window that has the focus on X11, as the number that xdotool expects. Empty on other
/// platforms, and if no window has the focus.
QString focusedWindow();

/// Gives `window` the focus and types the text into it. If `window` is empty, types into the window that has
/// the focus. Returns at once. `done` is called with true if the tool succeeded.
void typeText(const QString& text, const QString& window, std::function<void(bool)> done);

}  // namespace browser

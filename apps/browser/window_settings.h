// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <string>

namespace browser {

/// How the user left the main window. Kept in glyph::settingsStore().
struct WindowSettings {
  QByteArray geometry;  ///< of QWidget::saveGeometry(); empty if it is not known, as the next two
  QByteArray columns;   ///< of QSplitter::saveState()
  QByteArray card;
  bool hasSidebar = true;
  int cellSize = 0;   ///< 0 means the usual size
  std::string scope;  ///< see Scope::text()
};

WindowSettings readWindowSettings();
void writeWindowSettings(const WindowSettings& settings);

}  // namespace browser

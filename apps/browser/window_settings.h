// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <string>

namespace browser {

/// The state of the main window when it was last closed. Stored in glyph::settingsStore().
struct WindowSettings {
  QByteArray geometry;  ///< from QWidget::saveGeometry(); empty if not known
  QByteArray columns;   ///< from QSplitter::saveState(); empty if not known
  QByteArray card;
  bool hasSidebar = true;
  int cellSize = 0;   ///< 0 means the default size
  std::string scope;  ///< see Scope::text()
};

WindowSettings readWindowSettings();
void writeWindowSettings(const WindowSettings& settings);

}  // namespace browser

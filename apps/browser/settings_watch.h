// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <filesystem>

namespace browser {

/// Emits a signal when this program or another one, such as the command line, may have changed the settings
/// file.
class SettingsWatch : public QObject {
  Q_OBJECT

 public:
  SettingsWatch();

 Q_SIGNALS:
  /// Emitted a moment after the last of several changes, and only once for all of them.
  void changed();

 private:
  void watch();

  QFileSystemWatcher watcher_;
  QTimer timer_;
  std::filesystem::path directory_;
};

}  // namespace browser

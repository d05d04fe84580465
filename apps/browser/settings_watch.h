// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <filesystem>

namespace browser {

/// Tells when the settings file may have changed, through this program or another one such as the command
/// line.
class SettingsWatch : public QObject {
  Q_OBJECT

 public:
  SettingsWatch();

 Q_SIGNALS:
  /// A moment after the last of several changes.
  void changed();

 private:
  void watch();

  QFileSystemWatcher watcher_;
  QTimer timer_;
  std::filesystem::path directory_;
};

}  // namespace browser

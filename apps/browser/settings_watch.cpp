// SPDX-License-Identifier: MIT
#include "settings_watch.h"

#include <glyphorium/services/application/application.h>

#include <QStringList>

namespace browser {

SettingsWatch::SettingsWatch() : directory_(glyph::applicationConfigDirectory().value_or("")) {
  timer_.setSingleShot(true);
  timer_.setInterval(60);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, &timer_, qOverload<>(&QTimer::start));
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &timer_, qOverload<>(&QTimer::start));
  connect(&timer_, &QTimer::timeout, this, [this] {
    watch();
    Q_EMIT changed();
  });
  watch();
}

// Watches the directory for new files, and the files for new content. One of the files has the suffix "-wal":
// SQLite writes a change to it before it changes the database. If the directory does not exist yet, watches
// its nearest existing parent.
void SettingsWatch::watch() {
  if (directory_.empty()) return;
  QStringList paths;
  std::error_code ignored;
  std::filesystem::path existing = directory_;
  while (!std::filesystem::exists(existing, ignored) && existing.has_relative_path())
    existing = existing.parent_path();
  const auto add = [&](const std::filesystem::path& path) {
    const QString text = QString::fromStdString(path.string());
    const bool isWatched = watcher_.files().contains(text) || watcher_.directories().contains(text);
    if (!isWatched && std::filesystem::exists(path, ignored)) paths << text;
  };
  add(existing);
  for (const char* const name : {"settings.sqlite", "settings.sqlite-wal"}) add(directory_ / name);
  if (!paths.isEmpty()) watcher_.addPaths(paths);
}

}  // namespace browser

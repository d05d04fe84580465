// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// The settings of one application and one user, in an SQLite file that all processes share. Each key has one
/// row with its value as JSON text. When set() or update() returns, the new value is on the disk.
///
/// - The file is opened on first use. The first write creates the file and its directory. Only the user can
///   read them. If the path is a symbolic link, the target of the link is used.
/// - If a value cannot be written, this process continues with the new value in memory. Each later write,
///   synchronize() and the destructor try again to store the value. A result of update() replaces only the
///   value from which it was computed. If another process has stored another value meanwhile, the result is
///   dropped. synchronize() returns false while values are not stored, and after a result was dropped.
///   Each cause is printed as one diagnostic line.
/// - A damaged file reads as empty. The next write adds ".damaged" to the name of the damaged file and starts
///   a new file. A diagnostic line contains the new name. Values of unknown keys or unexpected types are not
///   changed.
/// - If another process has locked the file, an operation waits as setLockWaitPolicy() describes, by default
///   at most five seconds. For half a minute after a wait has timed out, operations that find the file locked
///   fail without waiting.
///
/// After fork(), the child process must not use a store that was used before the fork. It may use new
/// stores after exec().
class GLYPHORIUM_EXPORT SqliteSettingsStore final : public SettingsStore {
 public:
  /// Uses the file "settings.sqlite" in applicationConfigDirectory().
  SqliteSettingsStore();
  /// Uses the file at this path.
  explicit SqliteSettingsStore(std::filesystem::path file);
  /// Tries once more to store the unsaved values, and closes the file.
  ~SqliteSettingsStore() override;
  SqliteSettingsStore(const SqliteSettingsStore&) = delete;
  SqliteSettingsStore& operator=(const SqliteSettingsStore&) = delete;

  std::optional<SettingValue> object(std::string_view key) override;
  void set(std::string_view key, SettingValue value) override;
  bool synchronize() override;
  /// Other processes cannot write between the call of `change` and the storage of its result.
  void update(std::string_view key, const Change& change) override;
  std::optional<std::string> readFailure(std::string_view key) override;

 private:
  struct Impl;
  const std::unique_ptr<Impl> impl_;
};

}  // namespace glyph

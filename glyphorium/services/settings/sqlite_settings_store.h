// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// The settings of all processes of one user and application, in an SQLite file: one row for each key, its
/// value as JSON text. When set() or update() returns, the new value is on the disk.
///
/// - The file is opened on first use. The first write creates the file and its directory, private to the
/// user.
///   If the path is a symbolic link, the file that it names is used.
/// - If the disk refuses a write, this process goes on with the new value. Each later write, synchronize()
/// and
///   the destructor try again to store it. A value made by update() never replaces another one than it was
///   made from: if another process has stored one meanwhile, the change is lost. synchronize() returns false
///   as long as a value is not stored, and after a loss. One diagnostic line names each cause.
/// - A damaged file reads as empty. The next write renames it, with ".damaged" after its name, and starts a
/// new
///   one; a diagnostic line gives the new name. Values of unknown keys or unexpected types are left as they
///   are.
/// - If another process has locked the file, an operation waits as setLockWaitPolicy() says, five seconds at
///   most by default. For half a minute after a wait in vain, operations fail at once instead of waiting
///   again.
///
/// A process that forked must exec before it uses a store that was in use before.
class GLYPHORIUM_EXPORT SqliteSettingsStore final : public SettingsStore {
 public:
  /// Keeps the settings in "settings.sqlite" in applicationConfigDirectory().
  SqliteSettingsStore();
  explicit SqliteSettingsStore(std::filesystem::path file);
  /// Tries once more to store what is not stored yet, and closes the file.
  ~SqliteSettingsStore() override;
  SqliteSettingsStore(const SqliteSettingsStore&) = delete;
  SqliteSettingsStore& operator=(const SqliteSettingsStore&) = delete;

  std::optional<SettingValue> object(std::string_view key) override;
  void set(std::string_view key, SettingValue value) override;
  bool synchronize() override;
  /// No other process can write between the call of `change` and the storing of its result.
  void update(std::string_view key, const Change& change) override;
  std::optional<std::string> readFailure(std::string_view key) override;

 private:
  struct Impl;
  const std::unique_ptr<Impl> impl_;
};

}  // namespace glyph

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// The settings of all processes of one user and application, in an SQLite file: one row a key, its value as
/// JSON text. A value set is on the disk when set or update returns.
///
/// - The file is opened on first use; it and its directory, private to the user, are created by the first
///   write. A link in the file's place is followed.
/// - Where the disk refuses a write, the values set stay visible to this process and the next write takes
///   them along; synchronize tells, and so does a diagnostic, once for each cause.
/// - A damaged file reads as empty. The next write keeps it under another name ("….damaged") beside the new
///   one. Values of unknown keys or unexpected types are left as they are.
///
/// A process that forked must exec before it uses a store that was in use before.
class GLYPHORIUM_EXPORT SqliteSettingsStore final : public SettingsStore {
 public:
  /// Keeps the settings in "settings.sqlite" in applicationConfigDirectory().
  SqliteSettingsStore();
  explicit SqliteSettingsStore(std::filesystem::path file);
  ~SqliteSettingsStore() override;
  SqliteSettingsStore(const SqliteSettingsStore&) = delete;
  SqliteSettingsStore& operator=(const SqliteSettingsStore&) = delete;

  std::optional<SettingValue> object(std::string_view key) override;
  void set(std::string_view key, SettingValue value) override;
  bool synchronize() override;
  /// No other process can write between what `change` is given and what it returns.
  void update(std::string_view key, const Change& change) override;

 private:
  struct Impl;
  const std::unique_ptr<Impl> impl_;
};

}  // namespace glyph

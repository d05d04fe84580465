// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {

/// The settings file and the connection to it. Each function performs one step and returns its outcome. Not
/// thread-safe.
class SettingsDatabase {
 public:
  enum class Outcome {
    done,
    absent,   ///< the file, the table or the row does not exist
    damaged,  ///< the file is not a settings database, or it is corrupt
    failed    ///< the step failed for another reason, see error()
  };

  /// An empty path means "settings.sqlite" in applicationConfigDirectory(). The directory is determined when
  /// the file is opened.
  explicit SettingsDatabase(std::filesystem::path file) : chosenFile_(std::move(file)) {}
  ~SettingsDatabase() { close(); }
  SettingsDatabase(const SettingsDatabase&) = delete;
  SettingsDatabase& operator=(const SettingsDatabase&) = delete;

  /// Reads the JSON text that is stored for the key into `json`. Does not create files that are missing.
  Outcome read(const std::string& key, std::string& json);

  /// Begins a transaction for writing. Other processes cannot write until the transaction ends. Creates the
  /// file if it is missing. If the file is damaged, returns Outcome::damaged until putAside() has renamed the
  /// file.
  Outcome begin();
  Outcome write(const std::string& key, const std::string& json);
  Outcome commit();
  /// Undoes and ends the current transaction. Does nothing if there is no transaction.
  void rollback();

  /// Returns true if the path no longer leads to the open file, because the file was renamed, replaced or
  /// deleted.
  bool moved() const;

  /// Renames the damaged file and the files that belong to it, and sets `name` to the new path. If another
  /// process has already renamed the file, or if a second check finds no damage, does nothing and sets `name`
  /// to an empty path.
  Outcome putAside(std::filesystem::path& name);

  /// The reason why the last step failed.
  const std::string& error() const { return error_; }
  /// The path of the open file, with all symbolic links resolved. Empty until the database is first used.
  const std::filesystem::path& file() const { return file_; }

 private:
  using Clock = std::chrono::steady_clock;

  template <class Step>
  Outcome attempt(Step step);
  Outcome open(bool create);
  Outcome create();
  void connect();
  void close();
  void check(Database& database) const;
  Outcome readAlone(const std::string& key, std::string& json);
  bool readOnly() const;
  static int waitWhileBusy(void* self, int attempt);
  bool goOnWaiting(bool first);
  Outcome fail(std::string error);
  Outcome failBySystem();

  const std::filesystem::path chosenFile_;
  std::filesystem::path file_;
  std::unique_ptr<Database> connection_;
  pid_t process_ = 0;  // the process that opened the connection
  bool checked_ = false;
  bool configured_ = false;
  bool damaged_ = false;
  Clock::time_point waitBegan_;
  std::optional<Clock::time_point> lastTimeout_;
  std::string error_;
};

}  // namespace glyph

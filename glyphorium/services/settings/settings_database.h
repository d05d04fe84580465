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

/// The settings file and the connection to it, in single steps. Each step returns its outcome. Not
/// thread-safe.
class SettingsDatabase {
 public:
  enum class Outcome {
    done,
    absent,   ///< there is no such file, table or row
    damaged,  ///< the file is no database of settings, or it is corrupt
    failed    ///< for another reason, see error()
  };

  /// The empty path stands for "settings.sqlite" in the application's directory at the time of opening.
  explicit SettingsDatabase(std::filesystem::path file) : chosenFile_(std::move(file)) {}
  ~SettingsDatabase() { close(); }
  SettingsDatabase(const SettingsDatabase&) = delete;
  SettingsDatabase& operator=(const SettingsDatabase&) = delete;

  /// Reads the JSON text stored for the key into `json`. Creates nothing.
  Outcome read(const std::string& key, std::string& json);

  /// Begins a transaction that may write; other processes wait for its end. Creates the file if it is
  /// missing. For a damaged file the outcome is "damaged" until it is put aside.
  Outcome begin();
  Outcome write(const std::string& key, const std::string& json);
  Outcome commit();
  /// Ends the transaction, if there is one, without effect.
  void rollback();

  /// Whether the path now names another file than the open one.
  bool moved() const;

  /// Renames the damaged file and the files that belong to it, and puts the new name into `name`. Does
  /// nothing, and leaves `name` empty, if another process has renamed it or if a second look finds no damage.
  Outcome putAside(std::filesystem::path& name);

  /// Why the last step failed.
  const std::string& error() const { return error_; }
  /// The file in use, links resolved; empty before the first step.
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
  pid_t process_ = 0;  // that opened the connection
  bool checked_ = false;
  bool configured_ = false;
  bool damaged_ = false;
  Clock::time_point waitBegan_;
  std::optional<Clock::time_point> gaveUpWaiting_;
  std::string error_;
};

}  // namespace glyph

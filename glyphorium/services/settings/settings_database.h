// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {

/// The settings file and the connection to it: single steps, each telling its outcome. Not thread-safe.
class SettingsDatabase {
 public:
  enum class Outcome {
    done,
    absent,   ///< there is no such file, table or row
    damaged,  ///< the file is no database or a corrupt one
    failed    ///< for another reason, see error()
  };

  /// The empty path stands for "settings.sqlite" in the application's directory at the time of opening.
  explicit SettingsDatabase(std::filesystem::path file) : chosenFile_(std::move(file)) {}
  ~SettingsDatabase() { close(); }
  SettingsDatabase(const SettingsDatabase&) = delete;
  SettingsDatabase& operator=(const SettingsDatabase&) = delete;

  /// The JSON text stored for the key into `json`. Creates nothing.
  Outcome read(const std::string& key, std::string& json);

  /// Begins the one transaction that may write; others wait for its end. Creates what is missing, and says
  /// "damaged" again for a file that has shown to be so, until it is put aside.
  Outcome begin();
  Outcome write(const std::string& key, const std::string& json);
  Outcome commit();
  /// Ends the transaction, if there is one, without effect.
  void rollback();

  /// Whether the file in place is not the one that is open any more.
  bool moved() const;

  /// Renames the damaged file with all that belongs to it, unless another process has done so. The name that
  /// it has got goes into `name`, empty where there was nothing left to do.
  Outcome putAside(std::filesystem::path& name);

  /// Why the last step failed.
  const std::string& error() const { return error_; }
  /// The file in use, links resolved; empty before the first step.
  const std::filesystem::path& file() const { return file_; }

 private:
  template <class Step>
  Outcome attempt(Step step);
  Outcome open(bool create);
  Outcome create();
  void close();
  Outcome readAlone(const std::string& key, std::string& json);
  bool readOnly() const;
  Outcome fail(std::string error);
  Outcome failBySystem();

  const std::filesystem::path chosenFile_;
  std::filesystem::path file_;
  std::unique_ptr<Database> connection_;
  pid_t process_ = 0;  // that opened the connection
  bool configured_ = false;
  bool damaged_ = false;
  std::string error_;
};

}  // namespace glyph

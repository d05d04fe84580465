// SPDX-License-Identifier: MIT
#include "glyphorium/services/settings/sqlite_settings_store.h"

#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/settings/setting_json.h"
#include "glyphorium/services/settings/settings_database.h"

namespace glyph {

using Outcome = SettingsDatabase::Outcome;

struct GLYPHORIUM_LOCAL SqliteSettingsStore::Impl {
  explicit Impl(std::filesystem::path file) : database(std::move(file)) {}

  // A new value of a setting that is not on the disk yet.
  struct Unsaved {
    std::string json;
    // True if set() made this value: it replaces every stored value. False if update() made this value: it
    // replaces only the value in computedFrom, because it must not undo the changes of other processes.
    bool replacesAnything;
    // The JSON text from which update() computed this value. nullopt if no value could be read.
    std::optional<std::string> computedFrom;
  };

  // Locks the store as long as the session exists. Prints the diagnostics after unlocking, because printing
  // may call code of the host. Sessions may be nested. The end of the outermost session, also by an
  // exception, rolls back an open transaction, so that other processes do not wait for it.
  class Session {
   public:
    explicit Session(Impl& impl) : impl_(impl) {
      impl_.mutex.lock();
      ++impl_.sessions;
    }
    ~Session() {
      std::vector<std::string> toPrint;
      if (--impl_.sessions == 0) {
        toPrint.swap(impl_.lines);
        impl_.updating = false;
        impl_.database.rollback();
      }
      impl_.mutex.unlock();
      for (const std::string& line : toPrint) printProblem(line);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

   private:
    Impl& impl_;
  };

  std::optional<std::string> present(const std::string& key);
  bool begin();
  void save();
  Outcome dropOutdated();
  Outcome writeUnsaved();
  std::optional<std::string> encode(const std::string& key, const SettingValue& value);
  void print(std::string line);
  std::string location() const;

  std::recursive_mutex mutex;  // recursive, because the function that update() calls may use this store
  SettingsDatabase database;
  std::map<std::string, Unsaved> unsaved;
  std::set<std::string> lost;                     // keys for which a result of update() was dropped
  std::map<std::string, std::string> unreadable;  // why the last read of the key failed
  bool updating = false;
  int sessions = 0;
  std::set<std::string> printed;  // diagnostics since the last successful write
  std::vector<std::string> lines;
};

void SqliteSettingsStore::Impl::print(std::string line) {
  if (printed.insert(line).second) lines.push_back(std::move(line));
}

std::string SqliteSettingsStore::Impl::location() const {
  return database.file().empty() ? std::string("Settings") : "Settings in " + database.file().string();
}

std::optional<std::string> SqliteSettingsStore::Impl::present(const std::string& key) {
  if (const auto found = unsaved.find(key); found != unsaved.end()) return found->second.json;
  std::string json;
  const Outcome outcome = database.read(key, json);
  if (outcome == Outcome::done || outcome == Outcome::absent) {
    unreadable.erase(key);
    return outcome == Outcome::done ? std::optional(std::move(json)) : std::nullopt;
  }
  std::string line =
      location() + (outcome == Outcome::damaged ? " are damaged and read as empty: " : " cannot be read: ") +
      database.error();
  unreadable.insert_or_assign(key, line);
  print(std::move(line));
  return std::nullopt;
}

std::optional<std::string> SqliteSettingsStore::Impl::encode(const std::string& key,
                                                             const SettingValue& value) {
  auto json = settingToJson(value);
  if (!json) print("Setting '" + key + "' is not set: its value is not valid JSON");
  return json;
}

// Begins a transaction. If the file is damaged, renames it and begins the transaction in a new file.
bool SqliteSettingsStore::Impl::begin() {
  Outcome begun = Outcome::failed;
  for (int attempt = 0; attempt < 3; ++attempt) {
    begun = database.begin();
    if (begun == Outcome::done) return true;
    database.rollback();
    if (begun != Outcome::damaged) break;
    const std::string damage = database.error();
    std::filesystem::path name;
    begun = database.putAside(name);
    if (begun != Outcome::done) break;
    if (!name.empty()) print("The damaged settings are kept in " + name.string() + ": " + damage);
  }
  print(location() + " cannot be saved and last only until the program ends: " + database.error());
  return false;
}

// Drops each unsaved value that update() computed from a value other than the one that is stored now.
Outcome SqliteSettingsStore::Impl::dropOutdated() {
  for (auto item = unsaved.begin(); item != unsaved.end();) {
    const auto& [key, value] = *item;
    std::optional<std::string> stored;
    if (!value.replacesAnything) {
      std::string json;
      const Outcome found = database.read(key, json);
      if (found == Outcome::done) {
        stored = std::move(json);
      } else if (found != Outcome::absent) {
        return found;
      }
    }
    if (value.replacesAnything || stored == value.computedFrom) {
      ++item;
      continue;
    }
    if (stored != value.json) {
      lost.insert(key);
      print("A change of the setting '" + key +
            "' is lost: it could not be saved, and another program has stored another value");
    }
    item = unsaved.erase(item);
  }
  return Outcome::done;
}

Outcome SqliteSettingsStore::Impl::writeUnsaved() {
  if (const Outcome checked = dropOutdated(); checked != Outcome::done) return checked;
  for (const auto& [key, value] : unsaved) {
    if (const Outcome written = database.write(key, value.json); written != Outcome::done) return written;
  }
  return database.commit();
}

// Writes all unsaved values and commits the transaction. If this fails, keeps the values for a later attempt.
void SqliteSettingsStore::Impl::save() {
  for (int attempt = 0; attempt < 3; ++attempt) {
    const Outcome written = writeUnsaved();
    if (written == Outcome::done && !database.moved()) {
      unsaved.clear();
      printed.clear();
      return;
    }
    database.rollback();
    if (written == Outcome::failed) break;
    // The file is damaged, or another process has renamed it meanwhile. Write the values to the new file.
    if (!begin()) return;
  }
  database.rollback();
  print(location() + " cannot be saved and last only until the program ends: " + database.error());
}

SqliteSettingsStore::SqliteSettingsStore() : impl_(std::make_unique<Impl>(std::filesystem::path())) {}

SqliteSettingsStore::SqliteSettingsStore(std::filesystem::path file)
    : impl_(std::make_unique<Impl>(std::move(file))) {}

SqliteSettingsStore::~SqliteSettingsStore() {
  try {
    synchronize();
  } catch (...) {  // there is not enough memory for this last attempt
  }
}

std::optional<SettingValue> SqliteSettingsStore::object(std::string_view key) {
  const Impl::Session session(*impl_);
  const auto json = impl_->present(std::string(key));
  return json ? std::optional(settingFromJson(*json)) : std::nullopt;
}

void SqliteSettingsStore::set(std::string_view key, SettingValue value) {
  const Impl::Session session(*impl_);
  const std::string name(key);
  auto json = impl_->encode(name, value);
  if (!json) return;
  impl_->unsaved.insert_or_assign(name, Impl::Unsaved{*std::move(json), true, std::nullopt});
  impl_->lost.erase(name);
  // If `change` has called set() during update(), update() saves the value.
  if (!impl_->updating && impl_->begin()) impl_->save();
}

bool SqliteSettingsStore::synchronize() {
  const Impl::Session session(*impl_);
  if (!impl_->updating && !impl_->unsaved.empty() && impl_->begin()) impl_->save();
  return impl_->unsaved.empty() && impl_->lost.empty();
}

void SqliteSettingsStore::update(std::string_view key, const Change& change) {
  const Impl::Session session(*impl_);
  const std::string name(key);
  const bool outermost = !std::exchange(impl_->updating, true);
  const bool begun = outermost && impl_->begin();
  if (begun) impl_->dropOutdated();
  auto unsavedBefore = impl_->unsaved;
  try {
    const auto present = impl_->present(name);
    const auto changed = change(present ? std::optional(settingFromJson(*present)) : std::nullopt);
    if (auto json = changed ? impl_->encode(name, *changed) : std::nullopt) {
      // If the key already has an unsaved value, replace only its JSON text. The new value was computed from
      // the unsaved value, so it depends on the same stored value.
      const auto [place, isNew] = impl_->unsaved.try_emplace(name, Impl::Unsaved{{}, false, present});
      place->second.json = *std::move(json);
    }
    if (begun && !impl_->unsaved.empty()) impl_->save();
  } catch (...) {
    impl_->unsaved.swap(unsavedBefore);
    throw;
  }
}

std::optional<std::string> SqliteSettingsStore::readFailure(std::string_view key) {
  const Impl::Session session(*impl_);
  const auto found = impl_->unreadable.find(std::string(key));
  return found == impl_->unreadable.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace glyph
